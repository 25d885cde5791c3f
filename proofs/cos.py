#!/usr/bin/python3
"""cos in double precision, |x + pi/2| up to 2^23: the sine of x - m pi for m half an odd integer."""
from fractions import Fraction

import gmpy2

import sines
from proof import Kernel, NearestInteger, agree_with_module, literal, require

kernel = Kernel("cos", 16)
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


slips, largest_rest = {}, Fraction(0)
for binade in range(0, 24):
    low, high = Fraction(2) ** binade, min(Fraction(2) ** (binade + 1), limit)
    for ends in ((low, high), (-high, -low)):
        exact, slip, largest = sines.reduction(kernel, pi, nearest.scale, chain, *ends)
        require(exact, f"the first two steps are exact from 2^{binade}")
        slips[binade] = max(slip, slips.get(binade, Fraction(0)))
        largest_rest = max(largest_rest, largest)
# Below 1, m is 1/2 or -1/2, R far from 0, and all four steps round.
_, slip, largest = sines.reduction(kernel, pi, nearest.scale, chain, Fraction(-1), Fraction(1))
largest_rest = max(largest_rest, largest)

agree_with_module(kernel, "cos", ((1.37 * i ** 3 * (-1) ** i,) for i in range(180)))
rests = (r, signed)
far_from_0 = sines.binary(sines.PI.low / 2 - 1)
worst, (low, high) = max(sines.main_bound(kernel, y, rests, 2, max(slips.values()), largest_rest),
                         sines.main_bound(kernel, y, rests, 4, slip, largest_rest, from_rest=far_from_0))
near_zero = sines.bound_near_zero(kernel, y, rests, sines.slip_near_zero(slips))
next_to_zero = sines.largest_error(kernel, sines.next_to_zeros(Fraction(1, 2), limit, sines.NEXT_TO_ZERO), gmpy2.cos)
sines.report_places("cos", worst, near_zero, next_to_zero, f"|r| from {float(low):.6f} to {float(high):.6f}")
