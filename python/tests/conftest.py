import ctypes

import numpy as np
import pytest

import tarn
from tarn import _functions

_TYPES = {"float": ctypes.c_float, "double": ctypes.c_double, "int": ctypes.c_int32}


@pytest.fixture(scope="session")
def one_by_one():
    """libtarn called on one element at a time, through types of its own: what every array has to give."""
    library = ctypes.CDLL(str(tarn.library))

    def call(entry, *arrays):
        name = "tarn_" + entry["base"] + ("" if entry["variant"] == "full" else "_" + entry["variant"])
        results = [entry["result"], entry["second"]] if entry["second"] else [entry["result"]]
        types = [_TYPES[result["lane"]] for result in results]
        given = [_TYPES[argument["lane"]] for argument in entry["arguments"]]
        columns = [[] for _ in results]
        for elements in zip(*(array.ravel().tolist() for array in arrays)):
            stored = [of() for of in types]
            library[name](
                ctypes.c_size_t(1),
                *(ctypes.byref(of(element)) for of, element in zip(given, elements)),
                *map(ctypes.byref, stored),
            )
            for column, value in zip(columns, stored):
                column.append(value.value)
        return [np.array(column, of).reshape(arrays[0].shape) for column, of in zip(columns, types)]

    return call


def every_function():
    """Name, function, entry of the catalogue and dtype: of all forms in both precisions."""
    precisions = {"float": "float32", "double": "float64"}
    for entry in _functions.catalogue["exports"]:
        if entry["width"] != 16:
            continue
        base = entry["base"][:-1] if entry["precision"] == "float" else entry["base"]
        function = _functions.forms[entry["variant"]].get(base)
        if function and entry["second_is"] != "returned":
            yield pytest.param(
                function, entry, np.dtype(precisions[entry["precision"]]), id=f"{entry['base']}-{entry['variant']}"
            )
