"""A trace that is not the kernel's is refused, and a row that is not the proof's."""
import re
import shutil
import subprocess
import sys
from fractions import Fraction
from pathlib import Path

import gmpy2
import numpy as np
import pytest

import lanes
import powers
from proof import Kernel, Unproved, agree_with_module, enclose, module_call

ROOT = Path(__file__).parents[2]
KERNELS = [("exp", 2), *((base, 16) for base in ("exp", "exp2", "log", "log1p", "sin", "cos", "tan", "powf"))]


@pytest.mark.parametrize("base, width", KERNELS)
def test_the_trace_is_the_kernel(base, width):
    agree_with_module(Kernel(base, width), base, width)


@pytest.mark.parametrize("base, width", KERNELS)
def test_special_lanes_are_marked(base, width):
    """What is no number or has no result on the fast path: there the trace gives something else than the module."""
    kernel = Kernel(base, width)
    types = [kernel.operations[i]["lane"] for i in kernel.arguments]
    values = {"exp": [1000, np.inf], "exp2": [1025, np.inf], "log": [0, -1, np.inf, 1e-310], "log1p": [-1, -2, np.inf],
              "sin": [1e8, np.inf], "cos": [1e7, np.inf], "tan": [2e5, np.inf], "powf": [0, -1, np.inf, 1e-40]}[base]
    given = {i: np.array(values, dtype=lanes.TYPES[lane]) for i, lane in zip(kernel.arguments, types)}
    assert (kernel.lanes(kernel.special, given) < 0).all()


def named(trace, name):
    """The operations of that name on numbers; the last are the polynomial's."""
    return [o for o in trace["operations"] if o["name"] == name and o["lane"] == "f64"]


def swap(trace):
    """An addition and a multiplication in each other's place."""
    a, b = named(trace, "add")[-1], named(trace, "multiply")[-1]
    a["name"], b["name"] = b["name"], a["name"]


def reverse(trace):
    named(trace, "subtract")[-1]["operands"].reverse()


def last_bit(trace):
    constants = [o for o in named(trace, "constant") if 0.1 < abs(lanes.of_patterns("f64", [int(o["text"])])[0]) < 1]
    constants[-1]["text"] = str(int(constants[-1]["text"]) ^ 1)


def table_bit(trace):
    entries = trace["tables"][0]["entries"]
    entries[:] = [entry ^ (row % 2) for row, entry in enumerate(entries)]


def fuse(trace):
    """A product that is added as it is, not rounded."""
    products = {i: o for i, o in enumerate(trace["operations"]) if o["name"] == "multiply"}
    total = next(o for o in named(trace, "add") if any(p in products for p in o["operands"]))
    product, other = sorted(total["operands"], key=lambda p: p not in products)
    total["name"], total["operands"] = "fma", products[product]["operands"] + [other]


@pytest.mark.parametrize("base", ["exp2", "tan"])
@pytest.mark.parametrize("change", [swap, reverse, last_bit, table_bit, fuse])
def test_another_kernel_is_refused(base, change, tampered):
    if base == "tan" and change is table_bit:
        pytest.skip("tan has no table")
    tampered(base, 16, change)
    with pytest.raises((Unproved, StopIteration)):
        agree_with_module(Kernel(base, 16), base, 16)
    ran = subprocess.run([sys.executable, ROOT / f"proofs/{base}.py"], capture_output=True, text=True)
    assert ran.returncode != 0 and "\nproved" not in "\n" + ran.stdout


def test_without_the_module_a_changed_table_changes_the_bound(tampered):
    """What the proof makes of a trace, not only whether it is the kernel's."""
    def bound():
        power = powers.Raised("exp2", 16)
        return powers.bound(power, "2^x", lambda x: enclose(gmpy2.exp2, x), Fraction(1, 256), Fraction(0))[0]

    def last_bit_of_a_row(trace):
        trace["tables"][0]["entries"][77] ^= 2
    before = bound()
    tampered("exp2", 16, last_bit_of_a_row)
    assert bound() > before + Fraction(1, 2)


def test_a_wrong_row_is_found_and_mended(tmp_path):
    for directory in ("proofs", "src/families"):
        shutil.copytree(ROOT / directory, tmp_path / directory, ignore=shutil.ignore_patterns("__pycache__"))
    rows, claim = tmp_path / "src/families/exp.def", tmp_path / "proofs/exp2.py"
    committed = rows.read_text()

    def prove(*arguments):
        command = [sys.executable, tmp_path / "proofs/prove.py", *arguments]
        return subprocess.run(command, capture_output=True, text=True)
    claim.write_text("print('proved exp2 16 1.7001 row 3')\n")
    checked = prove("--check", "exp2")
    assert checked.returncode == 1 and "the row of exp2 says otherwise" in checked.stdout
    assert rows.read_text() == committed
    assert prove("exp2").returncode == 0 and prove("--check", "exp2").returncode == 0
    mended = rows.read_text()
    start = committed.index('{.base = "exp2"')
    assert mended == committed[:start] + re.sub(r"\.proved = [0-9.]+", ".proved = 1.7001", committed[start:], count=1)
    claim.write_text("print('proved exp2 16 1.7002 row 3')\nraise SystemExit(1)\n")
    failed = prove("exp2")
    assert failed.returncode == 1 and "not proved" in failed.stdout and rows.read_text() == mended
    unknown = prove("gamma")
    assert unknown.returncode == 2 and unknown.stderr.startswith("scripts/prove: no proof of gamma; there are cos, exp")


def test_a_call_that_cannot_be_made_is_one_line():
    with pytest.raises(Unproved, match="^usage: tarn-call NAME"):
        module_call("sincos", 16, "", "f64", np.array([1.0]))
