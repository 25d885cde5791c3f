#!/usr/bin/python3
"""ln(1 + x) in double precision, whatever estimate of a reciprocal a processor may give: 1 + x = s + c exactly, s of 43
bits; s R 2^e - 1 = r exactly, and c R 2^e rounded; both as sum + tail; k ln 2 and the table as heads and tails."""
from fractions import Fraction

import gmpy2

from logs import PolynomialErrors, Rows, for_any_estimate, ln_1p, outward, report_estimates
from proof import (LN2, Interval, Kernel, agree_with_module, enclose, exponent_of, gappa, gappa_each, in_units, literal,
                   require, ulp)

kernel = Kernel("log1p", 16)
agree_with_module(kernel, "log1p")
x, = kernel.arguments
SMALL = Fraction(1, 2 ** 60)
HUGE = 95  # from this power of two on, c is rounded

# result = ((((k tail + T tail) + y_tail) + (p + sum_tail)) + y with the sign of x, which it has.
signed = kernel.operands(kernel.bits_of(kernel.result), "or")
result = next(kernel.operands(o)[0] for o in signed if kernel.name(o) == "bits")
rest, y = kernel.operands(result, "add")
tails, small = kernel.operands(rest, "add")
constants, y_tail = kernel.operands(tails, "add")
p, sum_tail = kernel.operands(small, "add")
head, total = kernel.operands(y, "add")
r, el = kernel.operands(total, "add")


def is_tail(tail, of, larger, smaller):
    first, difference = kernel.operands(tail, "subtract")
    require(first == smaller and kernel.operands(difference, "subtract") == [of, larger], "what the sum lost")


is_tail(y_tail, y, head, total)
is_tail(sum_tail, total, r, el)
product, head_row = kernel.operands(head, "add")
k, ln2_head = kernel.constant_of(product, "multiply")
product, tail_row = kernel.operands(constants, "add")
same_k, ln2_tail = kernel.constant_of(product, "multiply")
require(same_k == k, "one exponent")
(heads, row), (table_tails, same_row) = kernel.entries(head_row), kernel.entries(tail_row)
R = kernel.users(kernel.only("reciprocal_estimate"))[0]
kernel.operands(R, "round", "0")
rows = Rows(kernel, R, row)
require(same_row == row, "one row")

# s is 1 + x, cut to 43 bits from |x| = 2^-31 on, and c = (max(1, x) - s) + min(1, x).
scaled, one = kernel.constant_of(r, "subtract")
s, scale = kernel.operands(scaled, "multiply")
c, same_scale = kernel.operands(el, "multiply")
require(one == 1 and same_scale == scale, "r is s R 2^e - 1, beside c R 2^e")
rows.require_exponent(kernel, s, k)
before_cut, keep = kernel.operands(kernel.bits_of(s), "and")
is_tiny, mask = kernel.constant_of(keep, "or")
magnitude, tiny = kernel.constant_of(is_tiny, "less")
require(mask == -1024 and tiny == Fraction(1, 2 ** 31), "ten bits are cut, but next to 0")
require(kernel.constant_of(kernel.bits_of(before_cut), "add") == (x, 1), "1 + x")
require(kernel.constant_of(kernel.bits_of(magnitude), "and")[1] == 2 ** 63 - 1, "|x|")
without_s, lesser = kernel.operands(c, "add")
greater, same_s = kernel.operands(without_s, "subtract")
require(same_s == s and kernel.constant_of(greater, "larger") == kernel.constant_of(lesser, "smaller") == (x, 1),
        "c is (max(1, x) - s) + min(1, x)")
# 2^e is the power of two that makes s R 2^e, s from 2^E to 2^(E + 1), R 2^(-E - 10) s.
integer64, power = kernel.operands(scale, "multiply")
a, b = kernel.operands(kernel.bits_of(power), "subtract")
require(kernel.value(a) == 0x7F4 << 52 and kernel.constant_of(b, "and")[1] == 0x7FF << 52
        and kernel.bits_of(kernel.constant_of(b, "and")[0]) == s, "2^(-E - 10)")
require(kernel.operands(integer64, "convert") == [R], "R")


# So k is E or E + 1, for s from 2^-53 to where x leaves the fast path.
below, above = kernel.operands(kernel.special, "or")
not_above, = kernel.operands(above, "not")
least, most = kernel.constant_of(below, "less")[1], kernel.constant_of(not_above, "less_or_equal")[1]
K = range(exponent_of(1 + least), exponent_of(1 + most) + 2)


def exact_parts(low, high):
    """Whether Gappa finds both steps of c exact for x between two ends, neither 1 nor 2^-31 within."""
    cut = "t" if max(abs(low), abs(high)) <= tiny else "float<43, -1074, zr>(t)"
    larger, smaller = ("1", "x") if high <= 1 else ("x", "1")
    script = f"""x = rnd(x_);
t = rnd(1 + x);
s = {cut};
d = rnd({larger} - s);
c = rnd(d + {smaller});
{{ x in [{literal(low)}, {literal(high)}] -> d - ({larger} - s) in ? /\\ c - (d + {smaller}) in ? }}
{larger} - s -> (t - s) + ((1 + x) - t) - {smaller};
d + {smaller} -> (d - ({larger} - s)) + (t - s) + ((1 + x) - t);
"""
    return all(a.magnitude == 0 for a in gappa(script).values())


# Up to 2^-53 above 0 and 2^-54 below the sum is 1 and c is x.
require(1 + 2.0 ** -53 == 1 == 1 - 2.0 ** -54, "next to 0 the sum is 1")
for e in range(-54, HUGE):
    require(e < -53 or exact_parts(Fraction(2) ** e, Fraction(2) ** (e + 1)), f"s + c = 1 + x from 2^{e}")
    if e < 0:
        require(exact_parts(-Fraction(2) ** (e + 1), -Fraction(2) ** e), f"s + c = 1 + x from -2^{e}")

# Uncut, s has an R that is a power of two, and s R 2^e is s.
for integer in range(513, 1024):
    ends = [(1 + end) * rows.whole(integer) / integer for end in for_any_estimate(integer)]
    require(min(ends) > 1 + 2 * tiny or max(ends) < 1 - 2 * tiny, "R is 512 or 1024 next to 0")
# Cut, it is a multiple of 2^-52.
answers = gappa("""m = fixed<-52, dn>(m_);
R = int<ne>(R_);
P = rnd(m * R);
r = rnd(P - 1);
{ m in [1b-10, 1b-9] /\\ R in [512, 1024] /\\ m * R - 1 in [-1b-8, 1b-8] -> P - m * R in ? /\\ r - (P - 1) in ? }
P - 1 -> (P - m * R) + (m * R - 1);
""")
require(all(a.magnitude == 0 for a in answers.values()), "r is exact")
# |c| is below a unit of 43 bits and half a one of 53; what c R 2^e and, for huge x, c itself are rounded by.
EL = Fraction(1, 2 ** 42) * (1 + Fraction(1, 2 ** 10))
EL_ROUNDING = 2 * EL / 2 ** 53
# r is a multiple of 2^-53, and so of el's unit, which is what the sum's tail needs to be exact.
require(ulp(EL) < Fraction(1, 2 ** 53), "el's unit")


def sums_of(rests):
    """Where sum lies."""
    return lambda integer: (rests(integer)[0] - EL, rests(integer)[1] + EL)


widest = max(max(map(abs, sums_of(for_any_estimate)(integer))) for integer in rows)
require(widest < Fraction(1, 2 ** 9), "rests are small")
errors = PolynomialErrors(f"x + ({kernel.exact(p, {total: 'x'})})", widest)

# k ln 2 and the table in heads are exact, and not less than the sum, which makes y_tail exact: multiples of 2^-42 below
# 2^11.
grid = Fraction(1, 2 ** 42)
require(all((value / grid).denominator == 1 and abs(value) < 1 for value in [ln2_head, *heads]), "heads")
for integer in rows:
    value = abs(heads[integer - 512])
    require(value == 0 or value >= max(map(abs, sums_of(for_any_estimate)(integer))), "y_tail")
require(ln2_head - Fraction(36, 100) > widest, "y_tail")


def rounding_of_rest(low, high, constant, tail, y_tail_most):
    """Gappa's question: what the roundings make of everything but y."""
    return kernel.rounding_question(
        rest, {total: "v", constants: "q", y_tail: "a", sum_tail: "b"},
        "v = rnd(v_);\nq = rnd(q_);\na = rnd(a_);\nb = rnd(b_);\n",
        f"v in [{literal(low)}, {literal(high)}] /\\ q in [{literal(constant.low)}, {literal(constant.high)}] /\\ "
        f"|a| <= {literal(y_tail_most)} /\\ |b| <= {literal(tail)}")


def pieces_of(integer, low, high):
    """The row's sums in parts, cut where ln(1 + x) crosses a power of two at k = 0, and by binades next to 0."""
    value = rows.true(integer)
    if heads[integer - 512] == 0:
        # There sum is x.
        side = 1 if high > SMALL * 2 else -1
        top = high if side > 0 else -low
        ends = [Fraction(2) ** i * (1 + Fraction(f, 8)) for i in range(-60, 0) for f in range(8 if i > -20 else 1)]
        ends.append(top)
        ends += [abs(enclose(gmpy2.expm1, side * Fraction(2) ** e).low) for e in range(-60, -8)]
        ends = sorted(e for e in ends if e <= top)
        pieces = list(zip(ends, ends[1:]))
        if side < 0:
            return [(-b, -a) for a, b in pieces]
        # s = 1 has R = 1024 for x below 0, too.
        return pieces + [(-Fraction(1, 2 ** i), -Fraction(1, 2 ** (i + 1))) for i in range(53, 60)]
    ends = [low + (high - low) * i / 16 for i in range(17)]
    ends += [enclose(gmpy2.expm1, side * Fraction(2) ** e - value).low for e in range(-14, -1) for side in (-1, 1)]
    ends = sorted(e for e in ends if low <= e <= high)
    return list(zip(ends, ends[1:]))


def bound_for(rests):
    """The largest error in ulp, and where, if R has m R - 1 within rests(R)."""
    sums = sums_of(rests)
    flat = [integer for integer in rows if heads[integer - 512] != 0]
    questions = []
    for integer in flat:
        low, high = outward(*sums(integer))
        largest = max(-low, high)
        y_most = max(abs(heads[integer - 512]) + largest, Fraction(1, 2 ** 20))
        tail = Interval(table_tails[integer - 512])
        questions.append(rounding_of_rest(low, high, tail, ulp(largest) / 2, ulp(y_most) / 2))
    by_row = dict(zip(flat, (a.magnitude for a in gappa_each(questions))))
    work = [(integer, piece) for integer in rows for piece in pieces_of(integer, *sums(integer))]
    zero = [(i, outward(*piece, ulp(min(map(abs, piece))))) for i, piece in work if i not in by_row]
    by_piece = iter([a.magnitude for a in gappa_each([rounding_of_rest(*piece, Interval(0), Fraction(0), Fraction(0))
                                                      for _, piece in zero])])
    worst, most_but_y = (Fraction(0), None), Fraction(0)
    for integer, (low, high) in work:
        part, largest = ln_1p(low, high), max(abs(low), abs(high))
        error = errors.between(low, high) * part.magnitude
        if integer in by_row:
            off = rows.true(integer) - heads[integer - 512] - table_tails[integer - 512]
            error += off.magnitude + by_row[integer] + EL_ROUNDING * (1 + 2 * largest) + 2 * largest * ulp(largest) / 2
        else:
            error += next(by_piece)
        # Everything that is not y's, for other exponents.
        most_but_y = max(most_but_y, error)
        value = abs(part + rows.true(integer))
        worst = max(worst, (in_units(value, error), f"k = 0, R = {integer}, |ln(1 + x)| from {float(value.low):.7f}"))
    # Away from k = 0: the tails are not as small, and the sum of 512 or 1024 may be rounded.
    tail_of_ln2 = 1100 * abs(ln2_tail) + max(map(abs, table_tails))
    any_rest = gappa(rounding_of_rest(-Fraction(1, 2 ** 9), Fraction(1, 2 ** 9), Interval(-outward(0, tail_of_ln2)[1],
                     outward(0, tail_of_ln2)[1]), Fraction(1, 2 ** 62), ulp(Fraction(800)) / 2))
    most_but_y += next(iter(any_rest.values())).magnitude + EL_ROUNDING * 2 + Fraction(1, 2 ** 8) * Fraction(1, 2 ** 62)
    most_but_y += ulp(tail_of_ln2) * 3 / 2  # the product, its sum with the table's tail, and what the table is off
    for k in [k for k in K if k != 0]:
        error = most_but_y + abs(k) * (ln2_head + ln2_tail - LN2).magnitude
        value = abs(k * LN2) + Interval(Fraction(-36, 100), Fraction(36, 100))
        worst = max(worst, (in_units(value, error), f"k = {k}"))
    return worst


# Below 2^-60 the result is x + p, |p| at most x^2 but where squares are below all numbers: half a unit and 2^-7.
next_to_zero = Fraction(1, 2) + SMALL * 2 ** 53 * 2
report_estimates("log1p", lambda rests: max(bound_for(rests), (next_to_zero, "next to 0")))
