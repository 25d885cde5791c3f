"""Operations of a trace done on many lanes at once, as the processor does them: NumPy's are its own."""
from fractions import Fraction

import numpy as np

TYPES = {"f64": np.float64, "i64": np.int64, "u64": np.uint64, "f32": np.float32, "i32": np.int32, "u32": np.uint32}
ARITHMETIC = {"add": np.add, "subtract": np.subtract, "multiply": np.multiply, "divide": np.divide,
              "and": np.bitwise_and, "or": np.bitwise_or, "xor": np.bitwise_xor, "not": np.invert,
              "negate": np.negative, "sqrt": np.sqrt}
COMPARISONS = {"less": np.less, "less_or_equal": np.less_equal, "greater": np.greater,
               "greater_or_equal": np.greater_equal, "equal": np.equal, "unequal": np.not_equal}


def of_patterns(lane, patterns):
    """Lanes that have these bits."""
    return np.array(patterns, dtype=np.uint64 if lane.endswith("64") else np.uint32).view(TYPES[lane])


def of_fractions(values):
    """Lanes of double precision that have these values, which have to be such numbers."""
    lanes = np.array([float(value) for value in values])
    assert fractions(lanes) == list(map(Fraction, values)), "these are no doubles"
    return lanes


def fractions(lanes):
    return [Fraction(value) for value in lanes.tolist()]


def same(a, b):
    """Lane by lane, whether the bits are the same, or both are NaN."""
    words = np.dtype(f"u{a.dtype.itemsize}")
    return (a.view(words) == b.view(words)) | ((a != a) & (b != b))


def half_of(wide, upper):
    return (wide.view(np.uint64) >> np.uint64(32 if upper else 0)).astype(np.uint32)


def operate(name, lane, text, operands, tables):
    """One operation; None where only a processor can do it."""
    kind, first = TYPES[lane], operands[0] if operands else None
    if name == "constant":
        return of_patterns(lane, [int(text)])
    if name in ARITHMETIC:
        return ARITHMETIC[name](*operands)
    if name in COMPARISONS:
        return -COMPARISONS[name](*operands).astype(kind)
    if name == "bits":
        return first.view(kind)
    if name == "words":  # of a mask, the half that says what the whole says
        return half_of(first, True).view(kind)
    if name in ("high_word", "low_word"):
        return half_of(first, name == "high_word").view(kind)
    if name == "widen_unsigned":
        return first.view(np.uint32).astype(np.uint64).view(kind)
    if name in ("shift_left", "shift_right"):
        return (np.left_shift if name == "shift_left" else np.right_shift)(first, first.dtype.type(int(text)))
    if name == "select":
        return np.where(first < 0, operands[1], operands[2])
    if name in ("smaller", "larger"):
        return np.where(first < operands[1] if name == "smaller" else first > operands[1], *operands)
    if name == "gather":
        table, column = map(int, text.split())
        return of_patterns(lane, tables[table]["entries"])[first * tables[table]["columns"] + column]
    if name == "round" and text == "0":
        return np.rint(first)
    if name == "convert":
        return first.astype(kind)
    return None
