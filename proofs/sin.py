#!/usr/bin/python3
"""sin in double precision, |x| up to 2^24."""
from fractions import Fraction

import gmpy2

import sines
from proof import (Kernel, agree_with_module, exponent_of, gappa, literal, report, require, ulp)
from sines import PI

kernel = Kernel("sin", 16)
limit = Fraction(2) ** 24
# The result is y with the sign of x, y the polynomial of r with a sign.
y = kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(kernel.result), "xor")))
signed = kernel.operands(y, "add")[1]
r = kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(signed), "xor") if kernel.name(o) == "bits"))
# Sine is odd in r as the polynomial is: signs are left away.
n = kernel.operands(kernel.operands(r, "subtract")[1], "multiply")[0]
pi = sines.Pieces(kernel, r, n)
a, shifted = pi.x, kernel.operands(n, "subtract")[0]
t, shifter = kernel.constant_of(shifted, "add")
scale = kernel.constant_of(t, "multiply")[1]


# Binade by binade of x: n is x/pi rounded, and the steps are exact down to the third piece. `slip` is what the last
# piece's product and pi beyond the pieces lose, at most.
C, S, P = literal(scale), literal(shifter), [literal(piece) for piece in pi.pieces]
slips, largest_rest = {}, Fraction(0)
for binade in range(0, exponent_of(limit)):
    names = {a: "a"}
    text = kernel.rounded(r, names)
    t_, n_, shifted_ = names[t], names[n], names[shifted]
    step, product = [names[i] for i in pi.steps], [names[i] for i in pi.products]
    exact = [f"{product[i]} - {n_} * {P[i]}" for i in range(3)] + [f"{step[0]} - (a - {product[0]})", f"{step[1]} - ({step[0]} - {product[1]})"]
    last = f"{product[3]} - {n_} * {P[3]}"
    questions = " /\\ ".join(f"{e} in ?" for e in exact + [last, n_, step[1], f"{n_} - a * {C}"])
    answers = gappa(f"""a = rnd(a_);
{text}
{{ a in [{literal(2 ** binade)}, {literal(2 ** (binade + 1))}] -> {questions} }}
{n_} - a * {C} -> ({n_} - ({shifted_} - {S})) + ({shifted_} - ({t_} + {S})) + ({t_} - a * {C});
a - {product[0]} -> ({product[0]} - {n_} * {P[0]}) * (-1) + (a * {C} - {n_}) / {C} + {n_} * (1 / {C} - {P[0]});
{step[0]} - {product[1]} -> ({step[0]} - (a - {product[0]})) - ({product[0]} - {n_} * {P[0]}) - ({product[1]} - {n_} * {P[1]}) + (a * {C} - {n_}) / {C} + {n_} * ((1 / {C} - {P[0]}) - {P[1]});
""")
    require(all(answers[e].magnitude == 0 for e in exact), f"the reduction is exact from 2^{binade}")
    slips[binade] = answers[last].magnitude + answers[n_].magnitude * pi.rest.magnitude
    # x - n pi, of x within half a period and what n's own rounding adds.
    largest_rest = max(largest_rest, answers[f"{n_} - a * {C}"].magnitude / scale + answers[n_].magnitude * (abs(1 / scale - PI)).magnitude)
# Below 1, n = 0 as below: r = x.
require(scale < Fraction(1, 2), "x below 1 is its own rest")

# Next to zero the third step is exact too: what went before are multiples of 2^-52, the product is one of 2^-68.
agree_with_module(kernel, "sin", 16, ((1.37 * i ** 3,) for i in range(200)))
worst, (low, high) = sines.main_bound(kernel, y, (r, signed), 2, max(slips.values()), largest_rest)
near_zero = sines.bound_near_zero(kernel, y, (r, signed), sines.slip_near_zero(slips))
next_to_zero = sines.largest_error(kernel, sines.next_to_zeros(Fraction(1), limit, sines.NEXT_TO_ZERO), gmpy2.sin)
print(f"away from 0 {float(worst):.4f}, near 0 {float(near_zero):.4f}, next to 0 {float(next_to_zero):.4f}")
report("sin", 16, max(worst, near_zero, next_to_zero), f"|r| from {float(low):.6f} to {float(high):.6f}")
