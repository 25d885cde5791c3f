"""What the proofs share: a kernel's operations as its own text wrote them down (tarn-trace), Gappa for what rounding
does to them, Sollya for what a polynomial leaves of a function, MPFR for tables. Numbers are exact fractions; whatever
is not one is an interval around the true value."""
import json
import math
import os
import re
import struct
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from fractions import Fraction
from functools import lru_cache

import gmpy2
import numpy as np

import lanes

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TRACE = os.environ.get("TARN_TRACE", os.path.join(ROOT, "build/release/tools/tarn-trace"))


class Unproved(Exception):
    """A step of a proof does not hold."""


def require(holds, what):
    if not holds:
        raise Unproved(what)


# Numbers -------------------------------------------------------------------------------------------------------------

def lane_value(lane, pattern):
    """The value of a pattern, as an exact fraction; an integer lane's as a signed integer."""
    formats = {"f64": "<Q <d", "f32": "<I <f", "i64": "<Q <q", "i32": "<I <i", "u64": "<Q <Q", "u32": "<I <I"}
    raw, typed = formats[lane].split()
    value = struct.unpack(typed, struct.pack(raw, int(pattern)))[0]
    return Fraction(value) if math.isfinite(value) else value


def literal(value):
    """A binary fraction as Gappa and Sollya read it exactly."""
    value = Fraction(value)
    require(value.denominator & (value.denominator - 1) == 0, f"{value} is no binary fraction")
    return f"{value.numerator}b-{value.denominator.bit_length() - 1}"


def fraction(text):
    """Gappa's and Sollya's binary numbers, 5b-3, and integers."""
    mantissa, _, exponent = text.partition("b")
    value = Fraction(int(mantissa))
    return value * Fraction(2) ** int(exponent) if exponent else value


class Interval:
    """All values between two fractions."""

    def __init__(self, low, high=None):
        self.low, self.high = Fraction(low), Fraction(low if high is None else high)

    def __add__(self, other):
        other = interval(other)
        return Interval(self.low + other.low, self.high + other.high)

    def __neg__(self):
        return Interval(-self.high, -self.low)

    def __sub__(self, other):
        return self + -interval(other)

    def __mul__(self, other):
        ends = [a * b for a in (self.low, self.high) for b in (interval(other).low, interval(other).high)]
        return Interval(min(ends), max(ends))

    def __truediv__(self, other):
        other = interval(other)
        require(other.low > 0 or other.high < 0, "a divisor is not zero")
        return self * Interval(1 / other.high, 1 / other.low)

    __radd__ = __add__
    __rmul__ = __mul__

    def __rsub__(self, other):
        return interval(other) - self

    def __rtruediv__(self, other):
        return interval(other) / self

    def __abs__(self):
        low = Fraction(0) if self.low <= 0 <= self.high else min(abs(self.low), abs(self.high))
        return Interval(low, self.magnitude)

    @property
    def magnitude(self):
        return max(abs(self.low), abs(self.high))

    def __repr__(self):
        return f"[{float(self.low):.6g}, {float(self.high):.6g}]"


def interval(value):
    return value if isinstance(value, Interval) else Interval(value)


def enclose(function, argument, bits=200):
    """MPFR's enclosure of an increasing function of a fraction or an interval of them."""
    argument = interval(argument)
    ends = []
    for end, mode in ((argument.low, gmpy2.RoundDown), (argument.high, gmpy2.RoundUp)):
        with gmpy2.local_context(gmpy2.context(), precision=bits, round=mode):
            exact = gmpy2.mpfr(gmpy2.mpq(end.numerator, end.denominator))
            ends.append(Fraction(*map(int, gmpy2.mpfr(function(exact)).as_integer_ratio())))
    return Interval(*ends)


def enclose_constant(function, bits=200):
    """MPFR's enclosure of a constant such as lambda: gmpy2.const_pi()."""
    ends = []
    for mode in (gmpy2.RoundDown, gmpy2.RoundUp):
        with gmpy2.local_context(gmpy2.context(), precision=bits, round=mode):
            ends.append(Fraction(*map(int, function().as_integer_ratio())))
    return Interval(*ends)


LN2 = enclose_constant(gmpy2.const_log2)


def exponent_of(value):
    """floor(log2 |value|)."""
    n, d = abs(value.numerator), value.denominator
    guess = n.bit_length() - d.bit_length()
    return guess if Fraction(2) ** guess <= abs(value) else guess - 1


def ulp(value, precision=53):
    """One unit in the last place of an exact result."""
    return Fraction(2) ** (exponent_of(value) - precision + 1)


def in_units(value, error, precision=53):
    """In ulp of a value, of which the magnitudes are an interval: an error before the last operation, and half a unit
    for that one. Beyond a power of two from a value below it, it may be rounded by a whole unit, but by no more than
    it is beyond the power, which can be held itself."""
    units = error / ulp(value.low, precision)
    if exponent_of(value.low) == exponent_of(value.high + error):
        return units + Fraction(1, 2)
    return max(units + Fraction(1, 2), min(2 * units, units + 1))


def refined(pieces, bounds_of):
    """The largest of what bounds_of(pieces) says of each, and where: those near the largest are halved until that
    changes nothing."""
    bounds = dict(zip(pieces, bounds_of(pieces)))
    for _ in range(12):
        worst = max(bounds.values())
        halves = []
        for low, high in [piece for piece, bound in bounds.items() if bound > worst * Fraction(49, 50)]:
            del bounds[low, high]
            halves += [(low, (low + high) / 2), ((low + high) / 2, high)]
        bounds |= zip(halves, bounds_of(halves))
        if max(bounds.values()) > worst * Fraction(999, 1000):
            break
    return max((bound, piece) for piece, bound in bounds.items())


# A kernel's operations -----------------------------------------------------------------------------------------------

SIGNS = {"add": "+", "subtract": "-", "multiply": "*", "divide": "/"}


class Kernel:
    """The fast path of one kernel. Operations are named by number, as in what tarn-trace writes."""

    def __init__(self, base, width):
        ran = subprocess.run([TRACE, base, str(width)], capture_output=True, text=True)
        if ran.returncode != 0:
            sys.exit(ran.stderr.strip())
        written = json.loads(ran.stdout)
        self.operations = written["operations"]
        self.tables = written["tables"]
        self.result, self.special = self.operations[-1]["operands"]
        reached, pending = set(), [self.result]
        while pending:
            i = pending.pop()
            if i not in reached:
                reached.add(i)
                pending += self.operations[i]["operands"]
        self.reached = sorted(reached)
        self.arguments = [i for i, o in enumerate(self.operations) if o["name"] == "argument"]

    def name(self, i):
        return self.operations[i]["name"]

    def operands(self, i, name=None, text=None):
        """What an operation takes; a proof says which operation it has to be."""
        o = self.operations[i]
        require(name in (None, o["name"]), f"operation {i} is {o['name']}, not {name}")
        require(text in (None, o["text"]), f"operation {i} has {o['text']}, not {text}")
        return o["operands"]

    def is_constant(self, i):
        return self.name(i) == "constant"

    def value(self, i):
        require(self.is_constant(i), f"operation {i} is a constant")
        return lane_value(self.operations[i]["lane"], self.operations[i]["text"])

    def constant_of(self, i, name):
        """Of an operation between something and a constant: both."""
        a, b = self.operands(i, name)
        return (b, self.value(a)) if self.is_constant(a) else (a, self.value(b))

    def all(self, name, lane=None):
        return [i for i in self.reached if self.name(i) == name and lane in (None, self.operations[i]["lane"])]

    def only(self, name, lane=None):
        found = self.all(name, lane)
        require(len(found) == 1, f"{len(found)} operations are {name}")
        return found[0]

    def users(self, i):
        return [j for j in self.reached if i in self.operations[j]["operands"]]

    def same(self, i, j):
        """Whether two operations compute the same: the text may say one thing twice."""
        a, b = self.operations[i], self.operations[j]
        return i == j or (all(a[field] == b[field] for field in ("name", "lane", "text")) and a["name"] != "argument"
                          and len(a["operands"]) == len(b["operands"])
                          and all(self.same(p, q) for p, q in zip(a["operands"], b["operands"])))

    def necks(self, target, source, besides=()):
        """The operations through each of which all of the target's dependence on the source goes, in order, but for
        what goes through others that are named."""
        def depends(i, without, seen):
            if i == source and i != without:
                return True
            if i == without or i in besides or i in seen:
                return False
            seen.add(i)
            return any(depends(o, without, seen) for o in self.operations[i]["operands"])
        return [c for c in self.reached
                if source < c < target and depends(c, None, set()) and not depends(target, c, set())]

    def limit(self):
        """Of a mask that tests the upper word of |x|: the first |x| that is not on the fast path."""
        word, bound = self.operands(max(i for i in range(len(self.operations)) if self.name(i) == "greater"))
        magnitude, = self.operands(word, "words")
        pattern, mask = self.constant_of(self.operands(magnitude, "bits")[0], "and")
        require(self.bits_of(pattern) in self.arguments and mask == 2 ** 63 - 1, "the mask tests |x|")
        return lane_value("f64", (int(self.value(bound)) + 1) << 32)

    def bits_of(self, i):
        """What a bit operation takes the pattern of."""
        return self.operands(i, "bits")[0]

    def entries(self, i):
        """The table that a gather reads, one list a row, and the operation that has the row's number."""
        (row,), (number, column) = self.operands(i, "gather"), self.operations[i]["text"].split()
        table = self.tables[int(number)]
        lane, columns = self.operations[i]["lane"], table["columns"]
        return [lane_value(lane, p) for p in table["entries"][int(column)::columns]], row

    def lanes(self, i, given):
        """What operation i gives on lanes, from operations whose lanes are given; adds to them."""
        if i not in given:
            o = self.operations[i]
            operands = [self.lanes(p, given) for p in o["operands"]]
            with np.errstate(all="ignore"):
                given[i] = lanes.operate(o["name"], o["lane"], o["text"], operands, self.tables)
            if o["name"] == "reciprocal_estimate":
                given[i] = module_call("invf", 16, "_native", "f32", given[o["operands"][0]])  # the estimate itself
            require(given[i] is not None, f"{o['name']} {o['text']} cannot be done on lanes")
        return given[i]

    # Text for Gappa and Sollya: `names` says what stands for operations that are not to be written out.

    def exact(self, i, names):
        """The operations up to i on real numbers."""
        if i in names:
            return names[i]
        if self.is_constant(i):
            return literal(self.value(i))
        a, b = self.operands(i)
        return f"({self.exact(a, names)} {SIGNS[self.name(i)]} {self.exact(b, names)})"

    def rounded(self, i, names, rounding="rnd"):
        """Gappa's definitions of the operations up to i, each rounded; adds them to `names`."""
        if i in names:
            return ""
        if self.is_constant(i):
            names[i] = literal(self.value(i))
            return ""
        if self.name(i) == "round":
            a, = self.operands(i, text="0")
            text = self.rounded(a, names, rounding)
            names[i] = f"v{i}"
            return text + f"v{i} = int<ne>({names[a]});\n"
        a, b = self.operands(i)
        text = self.rounded(a, names, rounding) + self.rounded(b, names, rounding)
        names[i] = f"v{i}"
        return text + f"v{i} = {rounding}({names[a]} {SIGNS[self.name(i)]} {names[b]});\n"

    def rounding_question(self, target, names, definitions, assumptions):
        """Gappa's question: what the roundings up to the target add to it."""
        exact = self.exact(target, names)
        names = dict(names)
        text = self.rounded(target, names)
        return f"{definitions}{text}{{ {assumptions} -> {names[target]} - {exact} in ? }}\n"


class NearestInteger:
    """n next to x scale, by a shifter that is added to their product and taken away again."""

    def __init__(self, kernel, n):
        self.n = n
        self.shifted, shifter = kernel.operands(n, "subtract")
        self.scaled, self.shifter = kernel.constant_of(self.shifted, "add")
        require(kernel.value(shifter) == self.shifter, "n is the shifted sum without its shifter")
        self.x, self.scale = kernel.constant_of(self.scaled, "multiply")
        require(exponent_of(self.shifter) == 52, "the shifter rounds to integers")

    def chain(self, names, x):
        """For Gappa: n - x scale by what each step rounds."""
        n, shifted, scaled = names[self.n], names[self.shifted], names[self.scaled]
        C, S = literal(self.scale), literal(self.shifter)
        return f"({n} - ({shifted} - {S})) + ({shifted} - ({scaled} + {S})) + ({scaled} - {x} * {C})"


# Gappa and Sollya ----------------------------------------------------------------------------------------------------

@lru_cache(maxsize=None)
def gappa(script):
    """Gappa's intervals for every question of a script, by the text of the expression; None where its assumptions
    contradict one another."""
    script = "@rnd = float<ieee_64, ne>;\n" + script
    ran = subprocess.run(["gappa", "-Eprecision=200"], input=script, capture_output=True, text=True)
    text = ran.stdout + ran.stderr
    require(ran.returncode == 0 and "no contradiction" not in text, f"Gappa refuses:\n{text}\n{script}")
    if "anything can be proved" in text:
        return None
    found = {}
    for line in text.splitlines():
        match = re.match(r"\s+(.+) in \[([-0-9b]+)(?: \{.*?\})?, ([-0-9b]+)(?: \{.*?\})?\]$", line)
        if match:
            found[match[1]] = Interval(fraction(match[2]), fraction(match[3]))
    return found


def gappa_each(scripts):
    """Many scripts, side by side; every script asks one question. None where no number fulfils what it assumes, such
    as an interval between neighbouring doubles."""
    def one(script):
        found = gappa(script)
        if found is None:
            return None
        answers = list(found.values())
        require(len(answers) == 1, f"Gappa leaves a question open:\n{script}")
        return answers[0]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(pool.map(one, scripts))


def sollya(script, count):
    """Sollya's answers to a script that asks for so many numbers."""
    script = f"prec = 300!; display = dyadic!; verbosity = 0!;\n{script}quit;\n"
    ran = subprocess.run(["sollya", "--warnonstderr"], input=script, capture_output=True, text=True)
    lines = ran.stdout.split()
    numbers = all(re.fullmatch(r"-?\d+(b-?\d+)?", line) for line in lines)
    require(ran.returncode == 0 and len(lines) == count and numbers,
            f"Sollya refuses:\n{ran.stdout}{ran.stderr}\n{script}")
    return [fraction(line) for line in lines]


def relative_error(polynomial, function, low, high):
    """Where polynomial/function - 1 lies for x between two ends. Samples say around which value; the distance from
    there is a supremum norm that Sollya proves."""
    near, norm = sollya(f"""
p = canonical({polynomial}); A = {literal(low)}; B = {literal(high)}; e = p / ({function}) - 1;
low = evaluate(e, B); high = low;
for i from 0 to 127 do {{
    v = evaluate(e, A + (B - A) * i / 128 + 1b-99); if (v < low) then low = v; if (v > high) then high = v; }};
near = round((low + high) / 2, 100, RN);
near;
sup(supnorm(canonical(p / (1 + near)), {function}, [A; B], relative, 2^(-20)));
""", 2)
    return (1 + near) * Interval(1 - norm, 1 + norm) - 1


def report(base, width, bound, where):
    """The line that scripts/prove reads: an upper bound in ulp, rounded up, and where it is largest, for people."""
    print(f"proved {base} {width} {math.ceil(bound * 10000) / 10000:.4f} {where}")


def module_call(base, width, form, lane, *arguments):
    """The module's own result on lanes, NaN being any NaN."""
    words = b"".join(argument.view(f"u{argument.dtype.itemsize}").astype(np.uint64).tobytes() for argument in arguments)
    caller = os.path.join(os.path.dirname(TRACE), "tarn-call")
    ran = subprocess.run([caller, f"__ocl_tarn_k1_{base}{width}{form}"], input=words, capture_output=True)
    require(ran.returncode == 0, ran.stderr.decode())
    return lanes.of_patterns(lane, np.frombuffer(ran.stdout, dtype=np.uint64))


def any_lanes(lane, arguments, count=1 << 14):
    """For each argument lanes of all kinds: all exponents alike, around 1, and special ones."""
    random, kind = np.random.default_rng(20), lanes.TYPES[lane]
    word = np.dtype(f"u{np.dtype(kind).itemsize}")
    info = np.finfo(kind)
    special = np.array([0, 1, np.inf, np.nan, info.max, info.tiny, info.smallest_subnormal, 0.5, 2], dtype=kind)
    special = np.concatenate([special, -special])
    for _ in range(arguments):
        yield random.permutation(np.concatenate([
            random.integers(0, np.iinfo(word).max, count, dtype=word, endpoint=True).view(kind),
            (random.normal(size=count) * 2.0 ** random.integers(-20, 20, count)).astype(kind), np.tile(special, 20)]))


def agree_with_module(kernel, base, width=16):
    """The trace computes what the module computes, where it calls lanes ordinary: a guard against a trace that misreads
    its kernel."""
    lane = kernel.operations[kernel.arguments[0]]["lane"]
    arguments = list(any_lanes(lane, len(kernel.arguments)))
    given = dict(zip(kernel.arguments, arguments))
    ours = kernel.lanes(kernel.result, given)
    ordinary = np.nonzero(~(kernel.lanes(kernel.special, given) < 0))[0]
    ordinary = ordinary[:len(ordinary) // width * width]
    require(len(ordinary) > 1000, f"{len(ordinary)} lanes are ordinary")
    arguments, ours = [argument[ordinary] for argument in arguments], ours[ordinary]
    theirs = module_call(base, width, "", kernel.operations[kernel.result]["lane"], *arguments)
    for i in np.nonzero(~lanes.same(ours, theirs))[0]:
        raise Unproved(f"{base} of {[a[i] for a in arguments]}: the trace gives {ours[i]}, the module {theirs[i]}")
