"""Every function against libtarn called for one element at a time, bit for bit."""

import os
import pathlib
import re

import numpy as np
import pytest
from conftest import every_function

import tarn

rng = np.random.default_rng(2064)


def same_bits(a, b):
    a, b = np.asarray(a), np.asarray(b)
    assert a.dtype == b.dtype and a.shape == b.shape
    nans = np.isnan(a) & np.isnan(b)
    code = f"u{a.dtype.itemsize}"
    return ((np.ascontiguousarray(a).view(code) == np.ascontiguousarray(b).view(code)) | nans).all()


def arguments(entry, dtype, shape):
    """Arrays that the function is defined on, at least mostly, with specials among them."""
    arrays = []
    for argument in entry["arguments"]:
        if argument["lane"] == "int":
            arrays.append(rng.integers(-9, 9, shape).astype(np.int32))
        else:
            array = (rng.standard_normal(shape) * 10.0 ** rng.integers(-3, 2, shape)).astype(dtype)
            array.ravel()[:6] = [0.0, -0.0, 1.0, np.inf, np.nan, -np.inf]
            arrays.append(array)
    return arrays


@pytest.mark.parametrize("function, entry, dtype", every_function())
def test_contiguous_strided_and_in_place(function, entry, dtype, one_by_one):
    given = arguments(entry, dtype, (7, 10))
    expected = one_by_one(entry, *given)
    many = len(expected) > 1

    def check(computed):
        computed = computed if many else [computed]
        assert len(computed) == len(expected)
        for result, of in zip(computed, expected):
            assert same_bits(result, of)

    check(function(*given))
    check(function(*(np.asfortranarray(array) for array in given)))
    check(function(*(np.repeat(array, 2, 1)[:, ::2] for array in given)))
    check(function(*(array.astype(array.dtype.newbyteorder()) for array in given)))
    reversed_twice = function(*(np.ascontiguousarray(array[::-1, ::-1])[::-1, ::-1] for array in given))
    check(reversed_twice)
    # Onto the first argument itself, where its elements are the result's.
    if expected[0].dtype == dtype:
        onto = given[0].copy()
        out = (onto, None) if many else onto
        computed = function(onto, *given[1:], out=out)
        assert (computed[0] if many else computed) is onto
        check(computed)


def test_functions_are_those_of_the_header():
    header = pathlib.Path(os.environ.get("TARN_HEADER", pathlib.Path(__file__).parents[2] / "include/tarn.h"))
    declared = re.findall(r"^void tarn_(\w+?)(_native|_half)?\((.*)\);", header.read_text(), re.M)
    wanted = {"": set(), "_native": set(), "_half": set()}
    for base, form, arguments in declared:
        if not base.startswith(("cvt", "nan", "sincosreg")):
            wanted[form].add(base.removesuffix("f") if "const float*" in arguments else base)
    assert "exp" in wanted["_half"] and "erf" in wanted[""]
    assert wanted == {"": set(tarn.__all__), "_native": set(tarn.native.__all__), "_half": set(tarn.half.__all__)}


@pytest.mark.parametrize("name", ["exp", "log", "sin", "arctan", "cbrt", "tanh"])
def test_near_numpy(name):
    x = np.abs(rng.standard_normal(1000)) + 0.1
    ours = getattr(tarn, name.replace("arc", "a"))
    np.testing.assert_allclose(ours(x), getattr(np, name)(x), rtol=1e-14)
    np.testing.assert_allclose(ours(x.astype("f")), getattr(np, name)(x.astype("f")), rtol=1e-6)


def test_large_arrays_in_pieces():
    x = rng.standard_normal((300, 301)).astype("f")
    whole = tarn.pow(np.abs(x), np.full_like(x, 2.5))
    assert same_bits(tarn.pow(np.abs(x), np.float32(2.5)), whole)
    assert same_bits(tarn.exp(x.T), np.ascontiguousarray(tarn.exp(x).T))
    assert same_bits(tarn.exp(x[::3, 1::2]), np.ascontiguousarray(tarn.exp(x)[::3, 1::2]))
    row, column = x[0, :], x[:, :1]
    full = tarn.hypot(np.tile(row, (300, 1)), np.tile(column, (1, 301)))
    assert same_bits(tarn.hypot(row, column), full)
    out = np.zeros((300, 602), "f")
    assert tarn.exp(x, out=out[:, ::2]).base is out
    assert same_bits(out[:, ::2], tarn.exp(x)) and not out[:, 1::2].any()
