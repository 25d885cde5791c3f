#!/usr/bin/python3
"""log in double precision, positive normal x = 2^e 1024 m, whatever estimate of 1/m a processor may give: R is that
estimate's nearest integer, r = m R - 1, ln x = k ln 2 + T(R) + ln(1 + r)."""
from fractions import Fraction

import gmpy2

from logs import PolynomialErrors, Rows, for_any_estimate, ln_1p, report_estimates
from proof import (LN2, Interval, Kernel, agree_with_module, enclose, gappa, gappa_each, in_units, literal, require,
                   ulp)

kernel = Kernel("log", 16)
agree_with_module(kernel, "log")
x, = kernel.arguments

# (poly + T) + k ln 2.
with_row, exponent = kernel.operands(kernel.result, "add")
poly, gather = kernel.operands(with_row, "add")
k, ln2 = kernel.constant_of(exponent, "multiply")
table, row = kernel.entries(gather)
R, = kernel.users(kernel.only("reciprocal_estimate"))
kernel.operands(R, "round", "0")
R64 = next(i for i in kernel.users(R) if kernel.name(i) == "convert")
r = kernel.necks(poly, x)[-1]
high_part, low_part = kernel.operands(r, "add")
product, one = kernel.constant_of(high_part, "subtract")
m_head = next(o for o in kernel.operands(product, "multiply") if o != R64)
m, = (kernel.bits_of(next(o for o in kernel.operands(kernel.bits_of(m_head), "and") if not kernel.is_constant(o))),)
require(one == 1 and R64 in kernel.operands(low_part, "multiply"), "r is m R - 1 in two halves")
(same_m, kept) = kernel.constant_of(kernel.bits_of(m_head), "and")
require(kernel.bits_of(same_m) == m and kept == -2 ** 26, "the head of m has 26 bits less")

rows = Rows(kernel, R, row)
rows.require_exponent(kernel, x, k)

# r = m R - 1 is exact: a multiple of 2^-62 that is small.
widest = max(max(abs(e) for e in for_any_estimate(integer)) for integer in rows)
names = {m: "m", R64: "R", m_head: "h"}
steps = kernel.rounded(r, names)
high_, low_, r_, small = names[high_part], names[low_part], names[r], literal(Fraction(3, 2048))
answers = gappa(f"""m = rnd(m_);
h = fixed<-36, dn>(m);
R = int<ne>(R_);
{steps}
{{ m in [1b-10, 1b-9] /\\ R in [512, 1024] /\\ m * R - 1 in [-{small}, {small}]
   -> {high_} - (h * R - 1) in ? /\\ {low_} - (m - h) * R in ? /\\ {r_} - ({high_} + {low_}) in ? }}
h * R - 1 -> (m * R - 1) + (h - m) * R;
{high_} + {low_} -> ({high_} - (h * R - 1)) + ({low_} - (m - h) * R) + (m * R - 1);
""")
require(answers and all(a.magnitude == 0 for a in answers.values()) and widest < Fraction(3, 2048), "r is exact")

polynomial = PolynomialErrors(kernel.exact(poly, {r: "x"}), widest)


def pieces_of(integer, low, high):
    """The row's rests, cut where ln x crosses a power of two while k = 0, and next to 0 for the rows without a T. Rests
    are multiples of 2^-62, none of which is where a cut is."""
    unit, value = Fraction(2) ** -62, rows.true(integer)
    cuts = [Interval(low), Interval(high)]
    least = -54 if table[integer - 512] == 0 else -12
    cuts += [enclose(gmpy2.expm1, side * Fraction(2) ** e - value) for e in range(least, -1) for side in (-1, 1)]
    if table[integer - 512] == 0:
        # x is a double, and r is x - 1 next to 1.
        side = 1 if high > 0 else -1
        cuts += [Interval(side * Fraction(2) ** e) for e in range(-53, -8)]
        cuts = [c for c in cuts if c.magnitude >= Fraction(1, 2 ** 53)]
    cuts = sorted((c for c in cuts if low <= c.low and c.high <= high), key=lambda c: c.low)
    ends = [(-(-a.low // unit) * unit, b.high // unit * unit) for a, b in zip(cuts, cuts[1:])]
    return [(a, b) for a, b in ends if a <= b]


def bound_for(rests):
    """The largest error in ulp, and where, if R has m R - 1 within rests(R)."""
    work = [(integer, piece) for integer in rows for piece in pieces_of(integer, *rests(integer))]
    questions = [kernel.rounding_question(with_row, {r: "r", gather: literal(table[integer - 512])}, "r = rnd(r_);\n",
                                          f"r in [{literal(low)}, {literal(high)}]") for integer, (low, high) in work]
    largest, absolute = (Fraction(0), None), {}
    for (integer, (low, high)), rounding in zip(work, gappa_each(questions)):
        if rounding is None:
            continue
        part, row_value = ln_1p(low, high), rows.true(integer)
        # The polynomial, the table, and the roundings.
        total = (polynomial.between(low, high) * part.magnitude + (row_value - table[integer - 512]).magnitude
                 + rounding.magnitude)
        absolute[integer] = max(absolute.get(integer, Fraction(0)), total)
        value = abs(part + row_value)
        largest = max(largest, (total / ulp(value.low), f"k = 0, R = {integer}, |ln x| from {float(value.low):.7f}"))
    # Away from k = 0: the product as it is rounded, the last sum.
    for k in [k for k in range(-1075, 1025) if k != 0]:
        off = (Fraction(float(k * ln2)) - k * LN2).magnitude
        for integer in rows if abs(k) < 16 else [512]:
            if abs(k) < 16:
                value, error = abs(k * LN2 + rows.true(integer) + ln_1p(*rests(integer))), absolute[integer] + off
            else:
                # Any row: T + ln(1 + r) is below 0.35.
                value = abs(k * LN2) + Interval(Fraction(-35, 100), Fraction(35, 100))
                error = max(absolute.values()) + off
            where = f"k = {k}" if abs(k) >= 16 else f"k = {k}, R = {integer}"
            largest = max(largest, (in_units(value, error), where))
    return largest


report_estimates("log", bound_for)
