#!/usr/bin/python3
"""sin in double precision, |x| up to 2^24."""
from fractions import Fraction

import gmpy2

import sines
from proof import Kernel, NearestInteger, agree_with_module, exponent_of, require

kernel = Kernel("sin", 16)
agree_with_module(kernel, "sin")
limit = Fraction(2) ** 24
# The result is y with the sign of x, y the polynomial of r with a sign.
y = kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(kernel.result), "xor")))
signed = kernel.operands(y, "add")[1]
r = kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(signed), "xor") if kernel.name(o) == "bits"))
# Sine is odd in r as the polynomial is: signs are left away.
n = kernel.operands(kernel.operands(r, "subtract")[1], "multiply")[0]
pi = sines.Pieces(kernel, r, n)
nearest = NearestInteger(kernel, n)

reductions = []
for binade in range(0, exponent_of(limit)):
    found = sines.Reduction(kernel, pi, nearest.scale, lambda names: nearest.chain(names, "x"), Fraction(2) ** binade,
                            Fraction(2) ** (binade + 1))
    require(found.exact, f"the first two steps are exact from 2^{binade}")
    reductions.append((binade, found))
# Below 1, n = 0 as below: r = x.
require(nearest.scale < Fraction(1, 2), "x below 1 is its own rest")

every = [found for _, found in reductions]
lost = sines.loss(every, 2)
worst, (low, high) = sines.main_bound(
    kernel, y, (r, signed), lost, max(found.largest for found in every),
    sines.one_by_one(kernel, gmpy2.sin, sines.PI, Fraction(0), sines.NEAR_ZERO, limit, lost))
near_zero = sines.bound_near_zero(kernel, y, (r, signed), sines.slip_near_zero(reductions))
next_to_zero = sines.largest_error(
    kernel, sines.doubles_near(Fraction(0), sines.NEXT_TO_ZERO, Fraction(1), limit, sines.PI), gmpy2.sin)
sines.report_places("sin", worst, near_zero, next_to_zero, f"|r| from {float(low):.6f} to {float(high):.6f}")
