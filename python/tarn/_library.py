"""libtarn and the catalogue of its functions."""

import ctypes
import json
import os
import pathlib


class _Symbol(ctypes.Structure):
    _fields_ = [
        ("file", ctypes.c_char_p),
        ("base", ctypes.c_void_p),
        ("name", ctypes.c_char_p),
        ("address", ctypes.c_void_p),
    ]


class Library:
    """The shared library, and the path that the loader took it from."""

    def __init__(self):
        named = os.environ.get("TARN_LIBRARY")
        try:
            self._handle = ctypes.CDLL(named or "libtarn.so.1")
        except OSError as error:
            if named:
                raise ImportError(f"tarn: TARN_LIBRARY names what cannot be loaded: {error}") from None
            raise ImportError(
                f"tarn: install libtarn or name it in the environment's TARN_LIBRARY: {error}"
            ) from None
        symbol = _Symbol()
        function = self.function("tarn_expf", 2)
        process = ctypes.CDLL(None)
        process.dladdr.argtypes = [ctypes.c_void_p, ctypes.POINTER(_Symbol)]
        process.dladdr(ctypes.cast(function, ctypes.c_void_p), ctypes.byref(symbol))
        self.path = pathlib.Path(os.fsdecode(symbol.file)).resolve()

    def function(self, name, pointers):
        try:
            function = self._handle[name]
        except AttributeError:
            raise ImportError(f"tarn: {self._handle._name} has no {name}: it is another library or another version") from None
        function.argtypes = [ctypes.c_size_t] + [ctypes.c_void_p] * pointers
        function.restype = None
        return function


def read_catalogue(library):
    """The catalogue of the prefix that the library lies in, or of its build."""
    places = [library.path.parent / "exports.json"]
    places += [parent / "share/ocl_tarn_k1/exports.json" for parent in library.path.parents]
    named = os.environ.get("TARN_CATALOGUE")
    if named:
        places = [pathlib.Path(named)]
    for place in places:
        if place.is_file():
            try:
                catalogue = json.loads(place.read_text())
                catalogue["version"], catalogue["exports"]
                return catalogue
            except (ValueError, KeyError, TypeError):
                raise ImportError(f"tarn: {place} is no catalogue of libtarn's functions") from None
    raise ImportError(
        f"tarn: {named or 'share/ocl_tarn_k1/exports.json'} is missing, the catalogue of {library.path}; "
        "the environment's TARN_CATALOGUE may name it"
    )
