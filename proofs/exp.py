#!/usr/bin/python3
"""exp in double precision: n = round(1024 x / ln 2), r = x - n (head + tail); at width 2 in 64ths, n from the rounding
instruction, and the power of two put together from bits."""
from fractions import Fraction

import gmpy2

import powers
from proof import LN2, Kernel, NearestInteger, agree_with_module, enclose, lane_value, literal, report, require


def exp(x):
    return enclose(gmpy2.exp, x)


def widths_alike():
    power = powers.Raised("exp", 16)
    kernel = power.kernel
    nearest = NearestInteger(kernel, power.n)
    rest, slip = powers.reduction(power, nearest.scale, power.n, lambda names: nearest.chain(names, "x"), LN2 / power.N,
                                  kernel.limit())
    require(exp(-kernel.limit()).low > Fraction(2) ** -1022 * (1 + Fraction(1, 2 ** 40)), "results are normal")
    agree_with_module(kernel, "exp")
    worst, row = powers.bound(power, "exp(x)", exp, rest, slip)
    report("exp", 16, worst, f"row {row}")


def width_2():
    kernel = Kernel("exp", 2)
    # power times p, power's pattern an exponent beside the fraction of 2^(j/64).
    raised, _ = ends = kernel.operands(kernel.result, "multiply")
    if kernel.name(raised) != "bits":
        raised = ends[1]
    a, b = kernel.operands(kernel.bits_of(raised), "or")
    gather, exponent = (a, b) if kernel.name(a) == "gather" else (b, a)
    fractions, row = kernel.entries(gather)
    number, mask = kernel.constant_of(row, "and")
    require(len(fractions) == mask + 1 == 64, "the table has a row for each of 64 fractions")
    rows = [lane_value("f64", 1023 << 52 | int(f)) for f in fractions]
    power = powers.Power(kernel, kernel.result, [raised], rows)
    # The exponent is (number + 64 1023) / 64, number the low half of a shifted sum: n, as the rounding gives it too.
    moved, = kernel.operands(exponent, "shift_left", "52")
    whole, zero = kernel.constant_of(moved, "add")
    biased = kernel.operands(kernel.bits_of(whole), "shift_right", "6")[0]
    same_number, bias = kernel.constant_of(kernel.bits_of(biased), "add")
    low_half, mask = kernel.constant_of(number, "and")
    t, shifter = kernel.constant_of(kernel.bits_of(low_half), "add")
    require((zero, bias, mask, same_number) == (0, 64 * 1023, 2 ** 32 - 1, number), "the exponent of 2^(n/64)")
    require(shifter == Fraction(3, 2) * 2 ** 52, "the shifter rounds to integers")
    n = kernel.only("round")
    require(kernel.operands(n, text="0") == [t], "n is rounded from the same product")
    scale = kernel.constant_of(t, "multiply")[1]

    def chain(names):
        return f"({names[n]} - {names[t]}) + ({names[t]} - x * {literal(scale)})"
    rest, slip = powers.reduction(power, scale, n, chain, LN2 / 64, kernel.limit())
    require(exp(-kernel.limit()).low > Fraction(2) ** -1020, "results are normal")
    agree_with_module(kernel, "exp", 2)
    worst, row = powers.bound(power, "exp(x)", exp, rest, slip)
    report("exp", 2, worst, f"row {row}")


widths_alike()
width_2()
