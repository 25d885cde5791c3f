"""What NumPy's own functions do, and its errors: dtypes, shapes, out."""

import inspect
import os
import subprocess
import sys

import numpy as np
import pytest

import tarn


@pytest.mark.parametrize(
    "x", [[0.5, 1], (1, 2), 3, 0.5, np.float32(2), np.float64(2), np.array(2, "f"), np.arange(3, dtype="f"),
          np.arange(3), np.arange(3, dtype="i4"), np.arange(3, dtype="u8"), np.arange(3, dtype=">f8"), [], np.zeros((0, 3), "f"),
          np.ones((2, 0)), np.ones((1, 2, 3), "f")],
    ids=repr,
)  # fmt: skip
def test_dtype_shape_and_type_of_one_argument(x):
    like = np.exp2(x)
    computed = tarn.exp2(x)
    assert type(computed) is type(like)
    assert computed.shape == like.shape
    assert computed.dtype == like.dtype


single, double = np.ones(3, "f"), np.ones(3)


@pytest.mark.parametrize(
    "x, y", [(single, 2), (single, 2.5), (2, single), (single, double), (double, single), (single, np.arange(3)), (2, 3),
             (single, [1, 2, 3]), (single[:, None], single), (double, np.ones((4, 1, 3))), (single, True), (single, np.zeros((1, 0, 3)))],
    ids=lambda value: repr(np.asarray(value).dtype) + repr(np.shape(value)),
)  # fmt: skip
def test_dtype_and_shape_of_two_arguments(x, y):
    like = np.logaddexp(x, y)
    computed = tarn.pow(x, y)
    assert type(computed) is type(like)
    assert (computed.dtype, computed.shape) == (like.dtype, like.shape)


def test_short_numbers_go_to_the_shortest_precision_there_is():
    for dtype in (np.int8, np.uint8, np.int16, np.uint16, np.bool_, np.float16):
        assert tarn.exp(np.ones(2, dtype)).dtype == np.float32
    assert tarn.exp(np.ones(2, np.uint32)).dtype == np.exp(np.ones(2, np.uint32)).dtype == np.float64


def test_integers_with_numbers():
    assert tarn.ldexp(np.ones(2, "f"), 3).tolist() == [8, 8]
    assert tarn.ldexp([1.0, 3.0], np.array([[1], [2]])).tolist() == [[2, 6], [4, 12]]
    assert tarn.pown(2.0, np.int64(-2)) == 0.25
    mantissa, exponent = tarn.frexp(np.array([10.0, 0.25], "f"))
    assert (mantissa.tolist(), exponent.tolist()) == ([0.625, 0.5], [4, -1])
    assert (mantissa.dtype, exponent.dtype) == (np.float32, np.int32)
    assert tarn.ldexp([], []).shape == (0,)
    with pytest.raises(TypeError, match=r"^tarn.ldexp: k is of dtype float64; it takes integers$"):
        tarn.ldexp(1.0, 1.5)
    with pytest.raises(ValueError, match=r"^tarn.ldexp: k has 2147483648, which int32 lacks$"):
        tarn.ldexp(np.ones(2), [0, 2**31])


def test_scalars_come_out_as_scalars():
    assert type(tarn.exp(np.float32(1))) is np.float32 and type(tarn.exp(1)) is np.float64
    sine, cosine = tarn.sincos(0.0)
    assert type(sine) is type(cosine) is np.float64 and (sine, cosine) == (0, 1)
    out = np.zeros(())
    assert tarn.exp(0.5, out=out) is out and out == tarn.exp(0.5)


def test_overlapping_results_are_as_if_nothing_overlapped():
    for dtype in ("f", "d"):
        x = np.linspace(-1, 1, 50000).astype(dtype)
        expected = tarn.exp(x)
        buffer = np.concatenate([x, x[:1]])
        tarn.exp(buffer[:-1], out=buffer[1:])
        assert (buffer[1:] == expected).all()
        backwards = x.copy()
        tarn.exp(backwards, out=backwards[::-1])
        assert (backwards[::-1] == expected).all()
        # A second result with an argument.
        onto = x.copy()
        sine, cosine = tarn.sincos(onto, out=(None, onto))
        assert cosine is onto and (sine == tarn.sincos(x)[0]).all() and (onto == tarn.sincos(x)[1]).all()


def test_nothing_is_computed_for_bad_arguments():
    out = np.full(3, 7.0)
    for call, error, says in [
        (lambda: tarn.exp("text"), TypeError, "tarn.exp: x is of dtype <U4; it takes float32 and float64"),
        (lambda: tarn.exp(1j), TypeError, "tarn.exp: x is of dtype complex128; it takes float32 and float64"),
        (lambda: tarn.exp(None), TypeError, "tarn.exp: x is of dtype object; it takes float32 and float64"),
        (lambda: tarn.exp(np.ones(2, "g")), TypeError, "tarn.exp: x is of dtype float128; it takes float32 and float64"),
        (lambda: tarn.exp(), TypeError, "tarn.exp takes 1 argument, 0 given"),
        (lambda: tarn.pow(1.0), TypeError, "tarn.pow takes 2 arguments, 1 given"),
        (lambda: tarn.pow(double, np.ones(4), out=out), ValueError, "tarn.pow: shapes that do not broadcast: (3,), (4,)"),
        (lambda: tarn.exp(single, out=out), TypeError, "tarn.exp: out is of dtype float64, the result of float32"),
        (lambda: tarn.exp(np.ones(4), out=out), ValueError, "tarn.exp: out has shape (3,), the result (4,)"),
        (lambda: tarn.exp(1.0, out=[1.0]), TypeError, "tarn.exp: out takes an array, not list"),
        (lambda: tarn.sincos(double, out=out), ValueError, "tarn.sincos: out has 1 arrays for 2 results"),
        (lambda: tarn.sincos(double, out=(out, out)), ValueError, "tarn.sincos: the arrays of out overlap"),
        (lambda: tarn.half.exp(1.0), TypeError, "tarn.half.exp has no form for float64: it takes float32"),
    ]:
        with pytest.raises(error) as raised:
            call()
        assert str(raised.value) == says
        assert "\n" not in str(raised.value)
        assert (out == 7).all()
    out.flags.writeable = False
    with pytest.raises(ValueError, match="^tarn.exp: out is read-only$"):
        tarn.exp(double, out=out)
    with pytest.raises(ValueError) as raised:
        tarn.exp([[1.0], [1.0, 2.0]])
    assert "\n" not in str(raised.value)


def test_docstrings_come_from_the_catalogue():
    assert tarn.exp.__doc__.startswith("e^x.\nDomain: every x.\n")
    assert "OpenCL allows 3" in tarn.exp.__doc__ and "float32" in tarn.exp.__doc__ and "float64" in tarn.exp.__doc__
    assert "OpenCL allows 8192" in tarn.half.exp.__doc__ and "float64" not in tarn.half.exp.__doc__
    assert str(inspect.signature(tarn.ldexp)) == "(x, k, /, *, out=None)"
    assert "exp(+-0) is one unit below 1" in tarn.exp.__doc__
    assert tarn.native.exp.__module__ == "tarn.native" and tarn.pow.__name__ == "pow"


def imports_with(**environment):
    run = subprocess.run(
        [sys.executable, "-c", "import tarn"], env={**os.environ, **environment}, capture_output=True, text=True
    )
    return run.returncode, run.stderr.strip().split("\n")[-1]


def test_a_library_that_is_missing_or_another(tmp_path):
    missing = str(tmp_path / "libtarn.so.1")
    code, says = imports_with(TARN_LIBRARY=missing)
    assert code == 1 and says.startswith("ImportError: tarn: TARN_LIBRARY names what cannot be loaded: ") and missing in says
    code, says = imports_with(TARN_LIBRARY="libc.so.6")
    assert code == 1 and says == "ImportError: tarn: libc.so.6 has no tarn_expf: it is another library or another version"
    code, says = imports_with(TARN_CATALOGUE=missing)
    assert code == 1 and says.startswith(f"ImportError: tarn: {missing} is missing, the catalogue of ")
    (tmp_path / "exports.json").write_text("[]")
    code, says = imports_with(TARN_CATALOGUE=str(tmp_path / "exports.json"))
    assert code == 1 and says.endswith("is no catalogue of libtarn's functions")
