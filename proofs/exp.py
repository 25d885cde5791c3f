#!/usr/bin/python3
"""exp in double precision, widths but 2: n = round(1024 x / ln 2), r = x - n (head + tail)."""
from fractions import Fraction
import gmpy2
import powers
from proof import agree_with_module, enclose, enclose_constant, gappa, literal, report, require

power = powers.Power("exp", 16)
kernel = power.kernel
limit = kernel.limit()
log2 = enclose_constant(gmpy2.const_log2)
unit = log2 / power.N

# The reduction: s = x - n head, r = s - n tail, the first product and both of s and n head being exact.
scale = kernel.constant_of(power.scaled, "multiply")[1]
s, tail_product = kernel.operands(power.r, "subtract")
head_product = kernel.operands(s, "subtract")[1]
head, tail = kernel.constant_of(head_product, "multiply")[1], kernel.constant_of(tail_product, "multiply")[1]
names = {power.x: "x"}
steps = kernel.rounded(power.r, names)
v = {part: names[i] for part, i in dict(t=power.scaled, shifted=power.shifted, n=power.n, s=s, r=power.r,
                                         nh=head_product, nt=tail_product).items()}
C, S, H, T = map(literal, (scale, power.shifter, head, tail))
smallest = Fraction(1, 4096)
reduction = gappa(f"""x = rnd(x_);
{steps}
R = x - {v['n']} * u;
{{ |x| in [{literal(smallest)}, {literal(limit)}] /\\ u in [{literal(unit.low)}, {literal(unit.high)}]
   -> {v['n']} - x * {C} in ? /\\ {v['nh']} - {v['n']} * {H} in ? /\\ {v['s']} - (x - {v['nh']}) in ? /\\ {v['r']} in ? /\\ {v['r']} - R in ? }}
{v['n']} - x * {C} -> ({v['n']} - ({v['shifted']} - {S})) + ({v['shifted']} - ({v['t']} + {S})) + ({v['t']} - x * {C});
x - {v['nh']} -> ({v['nh']} - {v['n']} * {H}) * (-1) + (x * {C} - {v['n']}) / {C} + {v['n']} * (1 / {C} - {H});
{v['r']} - R -> ({v['r']} - ({v['s']} - {v['nt']})) + ({v['s']} - (x - {v['nh']})) - ({v['nh']} - {v['n']} * {H}) - ({v['nt']} - {v['n']} * {T}) + {v['n']} * ((u - {H}) - {T});
""")
asked = lambda text: reduction[text.format(**v)]
require(asked(f"{{n}} - x * {C}").magnitude <= 1, "n is the nearest integer but for rounding")
for exactly in (f"{{nh}} - {{n}} * {H}", "{s} - (x - {nh})"):
    require(asked(exactly).magnitude == 0, f"{exactly} is exact")
# Nearer to 0 the shifted sum is the shifter: n = 0 and r = x.
require(smallest * scale < Fraction(1, 2), "n = 0 for the smallest arguments")
rest, rest_error = max(asked("{r}").magnitude, smallest), asked("{r} - R").magnitude

agree_with_module(kernel, "exp", 16, ((0.37 * i * i * (-1) ** i,) for i in range(40)))
worst, row = powers.bound(power, "exp(x)", lambda x: enclose(gmpy2.exp, x), rest, rest_error)
report("exp", 16, worst, f"row {row}")
