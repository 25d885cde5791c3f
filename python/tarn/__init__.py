"""Vector math on NumPy arrays, with measured errors: libtarn's functions in float32 and float64.

tarn.exp(x), tarn.pow(x, y, out=r), tarn.sincos(x) -> (sine, cosine): the names are C's without the f of single
precision. tarn.native and tarn.half have the faster forms. An element's bits depend on that element alone.

libtarn is the file that the environment's TARN_LIBRARY names, or libtarn.so.1 as the loader finds it. Which functions
there are, and what their docstrings say, comes from the catalogue that is installed with it.
"""

from . import _functions

__version__ = _functions.catalogue["version"]
library = _functions.library.path
globals().update(_functions.forms["full"])
__all__ = sorted(_functions.forms["full"])

from . import half, native  # noqa: E402
