#!/usr/bin/python3
"""Times tarn beside NumPy, as it is and without AVX-512: nanoseconds an element, the fastest of many calls.

    TARN_LIBRARY=build/release/libtarn.so.1 PYTHONPATH=python /usr/bin/python3 python/bench.py
"""

import argparse
import json
import os
import subprocess
import sys
import time

import numpy as np

# What is called, and where its first argument lies; power has 2.5 for the second.
CASES = [
    ("exp", "exp", -10, 10),
    ("log", "log", 0.01, 100),
    ("sin", "sin", -10, 10),
    ("pow", "power", 0.01, 100),
]
DTYPES = ["float32", "float64"]
WITHOUT = "AVX512F AVX512CD AVX512_SKX AVX512_CLX AVX512_CNL AVX512_ICL"


def fastest(call, seconds):
    best, end = float("inf"), time.perf_counter() + seconds
    while time.perf_counter() < end:
        start = time.perf_counter()
        call()
        best = min(best, time.perf_counter() - start)
    return best


def times(module, column, options):
    """Of all cases, by function and dtype. Results go into an array that is there."""
    found = []
    for names in CASES:
        for dtype in DTYPES:
            x = np.random.default_rng(1).uniform(*names[2:], options.elements).astype(dtype)
            arguments = (x, np.full_like(x, 2.5)) if names[1] == "power" else (x,)
            out, function = np.empty_like(x), getattr(module, names[column])
            found.append(fastest(lambda: function(*arguments, out=out), options.seconds) * 1e9 / options.elements)
    return found


def main():
    parser = argparse.ArgumentParser(description="Times tarn beside NumPy, as it is and without AVX-512.")
    parser.add_argument("--elements", type=int, default=100000)
    parser.add_argument("--seconds", type=float, default=0.5, help="for each figure")
    parser.add_argument("--numpy-alone", action="store_true", help="NumPy's figures as JSON")
    options = parser.parse_args()
    if options.elements < 1 or options.seconds <= 0:
        parser.error("--elements and --seconds are positive numbers")
    if options.numpy_alone:
        return print(json.dumps(times(np, 1, options)))

    import tarn

    environment = {name: value for name, value in os.environ.items() if name != "NPY_DISABLE_CPU_FEATURES"}
    again = [sys.executable, __file__, "--numpy-alone", f"--elements={options.elements}", f"--seconds={options.seconds}"]
    columns = [times(tarn, 0, options)]
    for variables in ({"NPY_DISABLE_CPU_FEATURES": WITHOUT}, {}):
        run = subprocess.run(again, env={**environment, **variables}, capture_output=True, text=True, check=True)
        columns.append(json.loads(run.stdout))
    print(f"{options.elements} elements, NumPy {np.__version__}, {tarn.library}\n")
    print("| function | dtype | tarn, ns | NumPy without AVX-512, ns | NumPy with all that the processor has, ns |")
    print("|---|---|---|---|---|")
    rows = [f"| `{theirs}` | {dtype} |" for _, theirs, _, _ in CASES for dtype in DTYPES]
    for row, *figures in zip(rows, *columns):
        print(row, " | ".join(f"{figure:.3g}" for figure in figures), "|")


main()
