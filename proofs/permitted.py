#!/usr/bin/python3
"""Searches the largest error that a logarithm or powf has with estimates of a reciprocal that the instruction permits:
no processor need give them. What is found says how near a bound is to what it bounds.
    proofs/permitted.py log|log1p|powf [ROUNDS [SEED]]"""
import sys

import gmpy2
import numpy as np

from logs import ESTIMATE
from proof import Kernel

LANES = 1 << 18
EXACT = {"log": gmpy2.log, "log1p": gmpy2.log1p, "powf": lambda x, y: x ** y}
NEAR = {"log": np.log, "log1p": np.log1p, "powf": np.power}  # in extended precision, to choose


def next_to_1(random):
    """1 + t for t of all sizes, and every other one next to a power of two."""
    def size(least, most):
        return 2.0 ** random.integers(least, most, LANES)
    t = random.uniform(-1, 1, LANES) * size(-12, 0)
    power = np.copysign(size(-14, -1), t) * (1 - random.random(LANES) * size(-12, 0))
    return np.where(random.random(LANES) < 0.5, t, power)


def samples(base, random):
    t = next_to_1(random)
    if base != "powf":
        return (1 + t if base == "log" else t,)
    # Results at the ends of the range, half of them next to powers of two.
    x = np.where(random.random(LANES) < 0.9, 1 - 2.0 ** -11 * random.uniform(1, 1.5, LANES), 1 + t).astype(np.float32)
    x[x == 1] = 2
    powers, others = random.integers(120, 128, LANES) * np.log(2), random.uniform(80, 88, LANES)
    z = np.copysign(np.where(random.random(LANES) < 0.5, powers, others), random.uniform(-1, 1, LANES))
    y = (z / np.log(x.astype(np.float64))).astype(np.float32)
    # Neighbours that fall next to a power of two from below.
    places = [y.view(np.int32) + step for step in range(-40, 41)]
    results = np.stack([np.log2(x.astype(np.float64)) * place.view(np.float32) for place in places])
    nearest = np.argmin(np.where(results > np.rint(results), 1, np.rint(results) - results), axis=0)
    near = np.stack(places)[nearest, np.arange(LANES)].astype(np.int32).view(np.float32)
    return x, np.where(random.random(LANES) < 0.7, near, y)


def main():
    base, *numbers = sys.argv[1:] or [""]
    if base not in EXACT or len(numbers) > 2 or not all(number.isdigit() for number in numbers):
        print("usage: proofs/permitted.py log|log1p|powf [ROUNDS [SEED]]", file=sys.stderr)
        return 2
    rounds, seed = [int(number) for number in numbers] + [20, 1][len(numbers):]
    kernel, random = Kernel(base, 16), np.random.default_rng(seed)
    estimate = kernel.only("reciprocal_estimate")
    R, = kernel.users(estimate)
    precision, worst = 24 if base == "powf" else 53, (0.0,)
    for number in range(rounds):
        print(f"{number}/{rounds}", end="\r", file=sys.stderr, flush=True)
        arguments = samples(base, random)
        given = dict(zip(kernel.arguments, arguments))
        m = kernel.lanes(kernel.operands(estimate)[0], given).astype(np.float64)
        with np.errstate(all="ignore"):
            near = NEAR[base](*(a.astype(np.longdouble) for a in arguments))
            exponent = np.maximum(np.floor(np.log2(np.abs(near))), -126 if base == "powf" else -1022)
            unit = np.exp2(exponent - precision + 1)
        for permitted in (np.ceil((1 - float(ESTIMATE)) / m - 0.5), np.floor((1 + float(ESTIMATE)) / m + 0.5)):
            lanes = given | {R: np.clip(permitted, 512, 1024).astype(np.float32)}
            results = kernel.lanes(kernel.result, lanes)
            ordinary = ~(kernel.lanes(kernel.special, lanes) < 0) & np.isfinite(results) & (near != 0)
            with np.errstate(all="ignore"):
                errors = np.where(ordinary, np.abs(results - near) / unit, 0)
            for i in np.argsort(errors)[-5:]:
                with gmpy2.local_context(gmpy2.context(), precision=200):
                    exact = EXACT[base](*(gmpy2.mpfr(float(a[i])) for a in arguments))
                    error = float(abs(gmpy2.mpfr(float(results[i])) - exact) / gmpy2.mpfr(float(unit[i])))
                worst = max(worst, (error, [float(a[i]) for a in arguments], int(lanes[R][i])))
    error, at, integer = worst
    print(f"{base}: {error:.4f} ulp at {at} with R = {integer}, of {rounds * LANES / 1e6:.0f} million arguments")
    return 0


sys.exit(main())
