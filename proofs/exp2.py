#!/usr/bin/python3
"""exp2 in double precision: n = round(128 x) / 128, r = x - n."""
from fractions import Fraction

import gmpy2

import powers
from proof import agree_with_module, enclose, exponent_of, gappa, literal, report, require

power = powers.Raised("exp2", 16)
kernel, limit = power.kernel, power.kernel.limit()
agree_with_module(kernel, "exp2")
x, shifter = kernel.constant_of(power.shifted, "add")
require(x == power.x and kernel.value(kernel.operands(power.n)[1]) == shifter, "x itself is shifted, there and back")
step = Fraction(2) ** (exponent_of(shifter) - 52)
require(step == Fraction(1, power.N), "the shifter rounds to the table's fractions")
a, b = kernel.operands(power.r, "subtract")
require((a, b) == (power.x, power.n), "r is x - n")
S = literal(shifter)
names = {power.x: "x"}
steps = kernel.rounded(power.r, names)
n, r, shifted = names[power.n], names[power.r], names[power.shifted]
smallest = step / 4
reduction = gappa(f"""x = rnd(x_);
{steps}
{{ |x| in [{literal(smallest)}, {literal(limit)}] -> x - {n} in ? /\\ {r} - (x - {n}) in ? }}
x - {n} -> ({n} - ({shifted} - {S})) * (-1) - ({shifted} - (x + {S}));
""")
require(reduction[f"{r} - (x - {n})"].magnitude == 0, "r is exact")
# Nearer to 0 the shifted sum is the shifter: n = 0 and r = x.
rest = max(reduction[f"x - {n}"].magnitude, smallest)
worst, row = powers.bound(power, "2^x", lambda x: enclose(gmpy2.exp2, x), rest, Fraction(0))
report("exp2", 16, worst, f"row {row}")
