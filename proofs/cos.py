#!/usr/bin/python3
"""cos in double precision, |x + pi/2| up to 2^23: the sine of x - m pi for m half an odd integer."""
from fractions import Fraction

import gmpy2

import sines
from proof import Kernel, NearestInteger, agree_with_module, literal, require

kernel = Kernel("cos", 16)
agree_with_module(kernel, "cos")
limit = Fraction(2) ** 23 + 2
y = kernel.result
signed = kernel.operands(y, "add")[1]
r = kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(signed), "xor") if kernel.name(o) == "bits"))
# Sine is odd in r as the polynomial is: signs are left away.
m = kernel.operands(kernel.operands(r, "subtract")[1], "multiply")[0]
pi = sines.Pieces(kernel, r, m)
n, half = kernel.constant_of(m, "subtract")
nearest = NearestInteger(kernel, n)
x, quarter = kernel.constant_of(nearest.x, "add")
require(half == Fraction(1, 2) and x == pi.x, "m is an integer less 1/2")


def chain(names):
    v, C, H = names[nearest.x], literal(nearest.scale), literal(quarter)
    return (f"({names[m]} - ({names[n]} - {literal(half)})) + {nearest.chain(names, v)} + "
            f"({v} - (x + {H})) * {C} + ({H} * {C} - {literal(half)})")


reductions = []
for binade in range(0, 24):
    low, high = Fraction(2) ** binade, min(Fraction(2) ** (binade + 1), limit)
    for ends in ((low, high), (-high, -low)):
        found = sines.Reduction(kernel, pi, nearest.scale, chain, *ends)
        require(found.exact, f"the first two steps are exact from 2^{binade}")
        reductions.append((binade, found))
every = [found for _, found in reductions]
# Below 1, m is 1/2 or -1/2, R far from 0, and all four steps round.
below_1 = sines.Reduction(kernel, pi, nearest.scale, chain, Fraction(-1), Fraction(1))

rests = (r, signed)
largest_rest = max(found.largest for found in (*every, below_1))
far_from_0 = sines.binary(sines.HALF_PI.low - 1)
quarter_turn, lost = sines.binary(sines.HALF_PI.low, 200), sines.loss(every, 2)
at = sines.one_by_one(kernel, gmpy2.cos, sines.PI, quarter_turn, Fraction(1, 2), limit, lost, signs=(1, -1))
worst, (low, high) = max(
    sines.main_bound(kernel, y, rests, lost, largest_rest, at),
    sines.main_bound(kernel, y, rests, sines.loss([below_1], 4), largest_rest, at, from_rest=far_from_0))
near_zero = sines.bound_near_zero(kernel, y, rests, sines.slip_near_zero(reductions))
next_to_zero = sines.largest_error(
    kernel, sines.doubles_near(quarter_turn, sines.NEXT_TO_ZERO, Fraction(1), limit, sines.PI), gmpy2.cos)
sines.report_places("cos", worst, near_zero, next_to_zero, f"|r| from {float(low):.6f} to {float(high):.6f}")
