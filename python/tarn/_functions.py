"""A Python function for each function of the catalogue, for both precisions."""

import inspect

import numpy as np

from ._library import Library, read_catalogue

_dtypes = {"float": np.dtype(np.float32), "double": np.dtype(np.float64), "int": np.dtype(np.int32)}
_int32 = _dtypes["int"]
_single = _dtypes["float"]


class _Overload:
    """One function of libtarn: its arguments, its results, and what is known of it."""

    def __init__(self, library, entry):
        self.entry = entry
        self.arguments = [_dtypes[argument["lane"]] for argument in entry["arguments"]]
        results = [entry["result"], entry["second"]] if entry["second"] else [entry["result"]]
        self.results = [_dtypes[result["lane"]] for result in results]
        self.dtypes = self.arguments + self.results
        name = "tarn_" + entry["base"] + ("" if entry["variant"] == "full" else "_" + entry["variant"])
        self.call = library.function(name, len(self.arguments) + len(self.results))


def _address(array):
    return array.__array_interface__["data"][0]


def _within_int32(name, argument, values):
    """Of a count or an exponent: NumPy would wrap what int32 lacks."""
    if values.dtype.kind not in "iub":
        if values.size or values.dtype != np.float64:  # [] has no other dtype
            raise TypeError(f"{name}: {argument} is of dtype {values.dtype}; it takes integers")
    elif values.dtype.itemsize >= 4 and values.dtype != _int32 and values.size:
        limits = np.iinfo(_int32)
        for value in (values.min(), values.max()):
            if not limits.min <= int(value) <= limits.max:
                raise ValueError(f"{name}: {argument} has {value}, which int32 lacks")
    return values.astype(_int32, copy=False)


def _precision(name, named):
    """The dtype that a NumPy function for float32 and float64 computes in; Python's numbers go along with arrays."""
    for argument, value in named:
        kind = np.asarray(value).dtype
        if kind.kind not in "fiub" or kind.itemsize > 8:
            raise TypeError(f"{name}: {argument} is of dtype {kind}; it takes float32 and float64")
    common = np.result_type(*(value if type(value) in (bool, int, float) else np.asarray(value) for _, value in named))
    return np.result_type(common, _single)


def _outputs(name, out, count):
    """The arrays that results are wanted in, None where a new one is."""
    if out is None:
        return [None] * count
    wanted = list(out) if isinstance(out, tuple) else [out]
    if len(wanted) != count:
        raise ValueError(f"{name}: out has {len(wanted)} arrays for {count} results")
    for array in wanted:
        if array is not None and not isinstance(array, np.ndarray):
            raise TypeError(f"{name}: out takes an array, not {type(array).__name__}")
    return wanted


def _check(name, array, dtype, shape):
    if array.dtype != dtype:
        raise TypeError(f"{name}: out is of dtype {array.dtype}, the result of {dtype}")
    if array.shape != shape:
        raise ValueError(f"{name}: out has shape {array.shape}, the result {shape}")
    if not array.flags.writeable:
        raise ValueError(f"{name}: out is read-only")


def _run_plain(overload, values, wanted):
    """The usual call: arrays of one shape that libtarn takes as they lie. None where they are anything else."""
    shape = values[0].shape
    if not shape:
        return None
    places = []
    for array, dtype in zip((*values, *wanted), overload.dtypes):
        if array is None:
            places.append(None)
            continue
        if type(array) is not np.ndarray or array.dtype != dtype or array.shape != shape:
            return None
        flags = array.flags
        if not flags.c_contiguous or (len(places) >= len(values) and not flags.writeable):
            return None
        places.append(array.__array_interface__["data"][0])
    # Results lie apart from all else, or exactly on an argument.
    size = values[0].size
    for at in range(len(values), len(places)):
        if places[at] is not None:
            width = overload.dtypes[at].itemsize
            for other in range(at):
                if places[other] is not None:
                    apart = places[at] - places[other]
                    other_width = overload.dtypes[other].itemsize
                    in_place = apart == 0 and width == other_width and other < len(values)
                    if -width * size < apart < other_width * size and not in_place:
                        return None
    computed = list(wanted)
    for at, array in enumerate(wanted):
        if array is None:
            computed[at] = np.empty(shape, overload.results[at])
            places[len(values) + at] = computed[at].__array_interface__["data"][0]
    overload.call(size, *places)
    return computed


def _run(name, overload, values, wanted):
    try:
        shape = np.broadcast_shapes(*(value.shape for value in values))
    except ValueError:
        shapes = ", ".join(str(value.shape) for value in values)
        raise ValueError(f"{name}: shapes that do not broadcast: {shapes}") from None
    for array, dtype in zip(wanted, overload.results):
        if array is not None:
            _check(name, array, dtype, shape)
    given = [array for array in wanted if array is not None]
    if len(given) == 2 and np.may_share_memory(*given) and np.shares_memory(*given):
        raise ValueError(f"{name}: the arrays of out overlap")

    # Pieces that each operand has at one stride, copied where it has not, or is of another dtype or in a result's way.
    # Without broadcasting a piece may be as long as what lies in one.
    flags = ["external_loop", "buffered", "zerosize_ok", "copy_if_overlap"]
    if all(value.shape == shape for value in values):
        flags.append("growinner")
    op_flags = [["readonly"]] * len(values) + [["writeonly", "allocate", "no_broadcast"]] * len(wanted)
    with np.nditer(values + wanted, flags, op_flags, overload.dtypes, casting="same_kind", buffersize=8192) as pieces:
        if pieces.itersize:
            for piece in pieces:
                parts = [np.ascontiguousarray(part) for part in piece]
                overload.call(parts[0].size, *map(_address, parts))
                for part, place in zip(parts[len(values) :], piece[len(values) :]):
                    if part is not place and not np.shares_memory(part, place):
                        place[...] = part
        return pieces.operands[len(values) :]


def _function(name, overloads):
    any_of = next(iter(overloads.values()))
    arguments = ["k" if dtype == _int32 else "xyz"[at] for at, dtype in enumerate(any_of.arguments)]
    count, results = len(arguments), len(any_of.results)
    floats = [at for at, dtype in enumerate(any_of.arguments) if dtype != _int32]

    def function(*values, out=None):
        if len(values) != count:
            raise TypeError(f"{name} takes {count} argument{'s' * (count > 1)}, {len(values)} given")
        wanted = _outputs(name, out, results)
        overload = overloads.get(values[0].dtype) if type(values[0]) is np.ndarray else None
        computed = _run_plain(overload, values, wanted) if overload else None
        if computed:
            return computed[0] if results == 1 else tuple(computed)
        try:
            precision = _precision(name, [(arguments[at], values[at]) for at in floats])
            arrays = [np.asarray(value) for value in values]
        except ValueError as error:  # a list of lists of several lengths
            raise ValueError(f"{name}: {error}".split("\n")[0]) from None
        overload = overloads.get(precision)
        if overload is None:
            raise TypeError(f"{name} has no form for {precision}: it takes {' and '.join(map(str, overloads))}")
        arrays = [
            array if at in floats else _within_int32(name, arguments[at], array) for at, array in enumerate(arrays)
        ]
        computed = _run(name, overload, arrays, wanted)
        given = [
            array if array is not None else result[()] if result.ndim == 0 else result
            for array, result in zip(wanted, computed)
        ]
        return given[0] if results == 1 else tuple(given)

    parameters = [inspect.Parameter(argument, inspect.Parameter.POSITIONAL_ONLY) for argument in arguments]
    parameters.append(inspect.Parameter("out", inspect.Parameter.KEYWORD_ONLY, default=None))
    function.__signature__ = inspect.Signature(parameters)
    module, _, short = name.rpartition(".")
    function.__module__, function.__name__, function.__qualname__ = module, short, short
    function.__doc__ = _text(overloads)
    return function


def _text(overloads):
    entries = [overload.entry for overload in overloads.values()]
    lines = [entries[0]["formula"] + "."]
    if entries[0]["domain"]:
        lines.append(f"Domain: {entries[0]['domain']}.")
    for dtype, overload in overloads.items():
        entry = overload.entry
        lines.append("")
        if entry["special_values"]:
            lines.append(f"{dtype}: {entry['special_values']}")
        error, bound = entry["error"], entry["opencl_bound"]
        allowed = f" (OpenCL allows {bound:g})" if bound else ""
        if error and error["measured"]:
            lines.append(f"{dtype}: largest error found {error['ulp']:.4g} ulp{allowed}; {error['measured']}.")
        elif error:
            lines.append(f"{dtype}: within {error['ulp']:g} ulp.")
        lines += [f"{dtype}: {sentence}" for sentence in entry["array_exceptions"]]
    return "\n".join(lines)


def _all_forms(library, entries):
    """By form and name. Conversions and NaNs are NumPy's own business; what returns a pair also stores one."""
    found = {"full": {}, "native": {}, "half": {}}
    for entry in entries:
        lanes = [argument["lane"] for argument in entry["arguments"]]
        if (
            entry["width"] == 16
            and entry["group"] != "Conversions"
            and entry["second_is"] != "returned"
            and lanes[0] in ("float", "double")
        ):
            base = entry["base"].removesuffix("f") if entry["precision"] == "float" else entry["base"]
            overload = _Overload(library, entry)
            found[entry["variant"]].setdefault(base, {})[overload.arguments[0]] = overload
    modules = {"full": "tarn.", "native": "tarn.native.", "half": "tarn.half."}
    return {
        form: {base: _function(modules[form] + base, overloads) for base, overloads in bases.items()}
        for form, bases in found.items()
    }


library = Library()
catalogue = read_catalogue(library)
forms = _all_forms(library, catalogue["exports"])
