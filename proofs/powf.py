#!/usr/bin/python3
"""x^y of floats, computed in double precision: z = y ln x, ln x as log.py has it with a cubic; e^z =
2^(n/2048) (1 + f), f linear in what n leaves. What the double result is off, as a part of it, and the rounding to a
float."""
from fractions import Fraction

import gmpy2

from logs import PolynomialErrors, Rows, for_any_estimate, ln_1p, outward, polynomial_errors, report_estimates
from proof import (LN2, Interval, Kernel, agree_with_module, enclose, gappa, literal, refined, relative_error, require,
                   ulp)

kernel = Kernel("powf", 16)
agree_with_module(kernel, "powf")
x, y = kernel.arguments
UNIT = Fraction(1, 2 ** 53)  # half a unit of a double, as a part of it
# Beyond, results overflow; or are below 2^-128, where a float's unit is 2^-149 and a part of them that many less.
LARGEST_Z = Fraction(8873, 100)

# The result's double: table + table f with n / 2048 added to its exponent.
double, = kernel.operands(kernel.result, "convert")
a, raised = kernel.operands(kernel.bits_of(double), "add")
scaled_entry = kernel.bits_of(a)
entry, product = kernel.operands(scaled_entry, "add")
same_entry, f = kernel.operands(product, "multiply")
entries, j = kernel.entries(entry)
left, slope = kernel.constant_of(f, "multiply")
t, n = kernel.operands(left, "subtract")
shifted, shifter = kernel.operands(n, "subtract")
low_t, same_shifter = kernel.constant_of(shifted, "add")
z, scale = kernel.constant_of(t, "multiply")
whole, = kernel.operands(raised, "shift_left", "52")
eleven, = kernel.operands(kernel.bits_of(whole), "shift_right", "11")
low_bits, mask = kernel.constant_of(j, "and")
word, = kernel.operands(low_bits, "low_word")
require(same_entry == entry and len(entries) == mask + 1 == 2048, "a row for each of 2048 fractions")
whole_t, half = kernel.operands(low_t, "subtract")
require(whole_t == t and kernel.value(half) == Fraction(1, 2), "t - 1/2")
require(same_shifter == kernel.value(shifter) == Fraction(3, 2) * 2 ** 52, "the shifter rounds to integers")
require(kernel.bits_of(word) == shifted == kernel.bits_of(kernel.bits_of(eleven)), "n's lower bits and the others")

# z = ((p + T) + k ln 2) y.
ln_x, wide_y = kernel.operands(z, "multiply")
with_row, exponent = kernel.operands(ln_x, "add")
p, gather = kernel.operands(with_row, "add")
k, ln2 = kernel.constant_of(exponent, "multiply")
table, row = kernel.entries(gather)
r = kernel.operands(p, "add")[0]
R = kernel.users(kernel.only("reciprocal_estimate"))[0]
kernel.operands(R, "round", "0")
rows = Rows(kernel, R, row)
rows.require_exponent(kernel, x, kernel.operands(k, "convert")[0])
mantissa_product, one = kernel.constant_of(r, "subtract")
m, wide_R = kernel.operands(mantissa_product, "multiply")
require(one == 1 and kernel.operands(wide_R, "convert") == [R], "r is m R - 1")
require(kernel.operands(wide_y, "convert") == [y], "y itself")
# m is a float: m R and r have 35 bits at most.
require(kernel.operations[kernel.operands(m, "convert")[0]]["lane"] == "f32", "r is exact")

widest = max(max(map(abs, for_any_estimate(integer))) for integer in rows)
require(widest < Fraction(1, 2 ** 9), "rests are small")
polynomial = kernel.exact(p, {r: "x"})
errors = PolynomialErrors(polynomial, widest)


def rounding(target, names, assumptions):
    found = gappa(kernel.rounding_question(target, names, "r = rnd(r_);\nT = rnd(T_);\n", assumptions))
    return next(iter(found.values())).magnitude


# Without a T: r is a multiple of 2^-24; in parts of r.
without_row = max(rounding(p, {r: "r"}, f"|r| in [1b-{e}, 1b-{e - 1}]") * 2 ** e for e in range(10, 25)) * 2
with_any_row = rounding(with_row, {r: "r", gather: "T"}, f"|r| <= 1b-9 /\\ |T| <= {literal(max(map(abs, table)))}")

# e^z, as a part of it: t is off by its rounding and its factor's, f by its own, the sum of two is rounded, and
# (1 + slope u) entry, u from 0 to 1, stands for 2^((j + u) / 2048).
most_t = LARGEST_Z * scale
t_off = ulp(most_t) / 2 + LARGEST_Z * (scale - 2048 / LN2).magnitude
middle = enclose(gmpy2.exp2, Fraction(-1, 4096))
t_part = t_off * LN2.high / 2048 * 2 + 3 * UNIT


def exponential_error(low, high, numbers):
    """In parts of e^z, for u - 1/2 between two ends and these rows."""
    shape = relative_error(f"(1 + {literal(slope)} * (x + 1b-1))", "2^(x * 1b-11)", low, high)
    every = [(1 + shape) * middle * (entries[j] / enclose(gmpy2.exp2, Fraction(j, 2048))) - 1 for j in numbers]
    least, most = min(each.low for each in every), max(each.high for each in every)
    return Interval(least, most) * (1 + Fraction(1, 2 ** 20)) + Interval(-t_part, t_part)


ROUND = Fraction(1, 2 ** 30)
exponential = exponential_error(-Fraction(1, 2) - ROUND, Fraction(1, 2) + ROUND, range(2048))
# Within 2^-22 of a power of two, as a part of it, u is next to 0 or 1.
NEXT = Fraction(1, 2 ** 10)
require(Fraction(1, 2 ** 22) * 2048 / LN2.low < NEXT, "u next to a power of two")
next_to_power = max(exponential_error(-Fraction(1, 2) - ROUND, -Fraction(1, 2) + NEXT, [0]).high,
                    exponential_error(Fraction(1, 2) - NEXT, Fraction(1, 2) + ROUND, [2047]).high)


def in_floats(z_off):
    """The units of the result, and half of one for its rounding. Only where a double beyond a power of two from an
    exact value below it is off by more than a unit is it rounded by a whole one."""
    both = (1 + exponential.magnitude) * (1 + z_off * (1 + z_off)) - 1
    across = (1 + next_to_power) * (1 + z_off * (1 + z_off)) - 1
    require(both < Fraction(1, 2 ** 22), "doubles are near")
    return max(both * 2 ** 24 + Fraction(1, 2), across * 2 ** 24 + 1 if across * 2 ** 24 >= 1 else 0)


def logarithm_error(integer, piece, error):
    """What ln x is off at k = 0, and that as a part of it: for R, r in a piece and the polynomial's error there."""
    (low, high), entry = piece, table[integer - 512]
    part = ln_1p(low, high)
    if entry == 0:
        # All of it goes with r.
        error += without_row * (1 + 2 * max(abs(low), abs(high)))
        return error * part.magnitude, error
    error = error * part.magnitude + (rows.true(integer) - entry).magnitude + with_any_row
    return error, error / abs(part + rows.true(integer)).low


def bound_for(rests):
    coarse, most = [], Fraction(0)
    for integer in rows:
        low, high = rests(integer)
        ends = [low + (high - low) * i / 16 for i in range(17)]
        found = [logarithm_error(integer, piece, errors.between(*piece)) for piece in zip(ends, ends[1:])]
        most = max(most, *(absolute for absolute, _ in found))
        coarse.append((max(part for _, part in found), integer))
    # Rows that may be the worst are looked at closely.
    worst = (Fraction(0), None)
    for part, integer in sorted(coarse, reverse=True):
        if part > worst[0]:
            closely, _ = refined([outward(*rests(integer))], lambda pieces: [
                logarithm_error(integer, *each)[1] for each in zip(pieces, polynomial_errors(polynomial, pieces))])
            worst = max(worst, (closely, f"k = 0, R = {integer}"))
    for k in range(1, 150):
        # ln x is the sum of three: its product, its constant, itself.
        error = most + 2 * with_any_row + k * (ln2 - LN2).magnitude + 2 * ulp(k * ln2 + 1)
        worst = max(worst, (error / (k * LN2.low - Fraction(36, 100)), f"k = {k}"))
    logarithm, where = worst
    z_off = LARGEST_Z * (logarithm + 2 * UNIT)
    return in_floats(z_off), where


report_estimates("powf", bound_for)
