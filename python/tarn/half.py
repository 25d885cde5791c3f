"""The half forms, between full and native in accuracy: OpenCL allows them 8192 ulp. Single precision only."""

from . import _functions

globals().update(_functions.forms["half"])
__all__ = sorted(_functions.forms["half"])
