"""The native forms: fast, and only as accurate as each says."""

from . import _functions

globals().update(_functions.forms["native"])
__all__ = sorted(_functions.forms["native"])
