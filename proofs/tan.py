#!/usr/bin/python3
"""tan in double precision, |x| up to 128000: r = |x| - n pi/2 in four pieces; r P(r^2) / Q(r^2), or upside down for odd
n."""
from fractions import Fraction

import gmpy2

import sines
from proof import (Interval, Kernel, NearestInteger, agree_with_module, dyadic, enclose, exponent_of, gappa_each, in_units,
                   literal, require, sollya, ulp)

HALF_PI = sines.PI / 2
kernel = Kernel("tan", 16)
limit = Fraction(128000)
y = next(i for i in kernel.all("divide"))
choices = [kernel.operands(o, "select") for o in kernel.operands(y)]
require(choices[0][1:] == choices[1][:0:-1] and choices[0][0] == choices[1][0], "the quotient or its inverse")
numerator, denominator = choices[0][2], choices[0][1]
r = next(o for o in kernel.operands(numerator, "multiply") if kernel.name(o) == "subtract")
n = kernel.operands(kernel.operands(r)[1], "multiply")[0]
pieces_of_pi = sines.Pieces(kernel, r, n, HALF_PI)
nearest = NearestInteger(kernel, n)
square = next(i for i in kernel.all("multiply") if kernel.operands(i) == [r, r])

slips, largest_rest = {}, Fraction(0)
for binade in range(-1, exponent_of(limit) + 1):
    high = min(Fraction(2) ** (binade + 1), limit)
    exact, slips[binade], largest = sines.reduction(kernel, pieces_of_pi, nearest.scale,
                                                    lambda names: nearest.chain(names, "x"), Fraction(2) ** binade, high)
    require(exact, f"the first two steps are exact from 2^{binade}")
    largest_rest = max(largest_rest, largest)
require(nearest.scale < 1, "x below 1/2 is its own rest")


def tangent(x):
    return enclose(gmpy2.tan, x)


def convergent(depth):
    """tan r = r A(r^2)/B(r^2) but for a part: Lambert's fraction r/(1 - z/(3 - z/(5 - ...))) cut off, whose rest lies
    between 0 and z/(2 depth). Polynomials as lists of coefficients, lowest first; and the part for r up to 1."""
    def cut(rest):  # the fraction with its rest at z = 1 and as polynomials
        over, under = [Fraction(2 * depth - 1)], [Fraction(1)]
        over[0] -= rest
        for odd in range(2 * depth - 3, 0, -2):
            # odd - z under/over
            longest = max(len(over), len(under) + 1)
            new = [odd * c for c in over] + [Fraction(0)] * (longest - len(over))
            for power, c in enumerate(under):
                new[power + 1] -= c
            over, under = new, over
        return under, over

    def at_one(rest):
        A, B = cut(rest)
        return sum(A) / sum(B)
    return *cut(Fraction(0)), abs(at_one(Fraction(1, 2 * depth)) / at_one(Fraction(0)) - 1)


def quotient_errors(pieces):
    """For each interval of r, how far P/Q is from tan r / r, as a part: of P B - Q A, a polynomial, Sollya has the norm."""
    A, B, part = convergent(12)
    names = {square: "x", r: "1"}
    text = [" + ".join(f"({c.numerator}) * x^{power}" for power, c in enumerate(p)) for p in (A, B)]
    script = (f"a = {text[0]}; b = {text[1]};\n"
              f"p = {kernel.exact(numerator, dict(names))}; q = {kernel.exact(denominator, dict(names))};\n"
              "d = canonical(p * b - q * a);\n")
    for low, high in pieces:
        ends = f"[{literal(low * low)}; {literal(high * high)}]"
        script += f"sup(supnorm(d + 1, 1, {ends}, absolute, 2^(-5)));\ninf(abs(evaluate(q * a, {ends})));\n"
    numbers = [dyadic(line) for line in sollya(script)[-2 * len(pieces):]]
    return [difference / least * (1 + part) + part for difference, least in zip(numbers[::2], numbers[1::2])]


def rounding_errors(pieces):
    """For each interval of r, parts of r P/Q that its roundings are, but for the division's: those of the numerator, the
    denominator and, through both, of r's square."""
    answers = gappa_each([kernel.rounding_question(target, {r: "r", square: "z"}, "r = rnd(r_);\nz = rnd(r * r);\n",
                                                   f"r in [{literal(low)}, {literal(high)}]")
                          for low, high in pieces for target in (numerator, denominator)])
    P, Q = (kernel.exact(target, {r: "1", square: "x"}) for target in (numerator, denominator))
    script = f"p = canonical({P}); q = canonical({Q}); d = canonical(diff(p) * q - p * diff(q));\n"
    for low, high in pieces:
        ends = f"[{literal(low * low)}; {literal(high * high)}]"
        script += f"inf(evaluate(p, {ends}));\ninf(evaluate(q, {ends}));\nsup(abs(evaluate(d, {ends})));\n"
    numbers = [dyadic(line) for line in sollya(script)[-3 * len(pieces):]]
    parts = []
    for i, (low, high) in enumerate(pieces):
        least_p, least_q, slope = numbers[3 * i:3 * i + 3]
        e_p = answers[2 * i].magnitude / (least_p * low)
        e_q = answers[2 * i + 1].magnitude / least_q
        of_square = slope / (least_p * least_q) * ulp(high * high) / 2
        parts.append((e_p + e_q / (1 - e_q)) * (1 + of_square) + of_square)
    return parts


def bound(low_end, high_end, roundings, slip):
    """For |r| between two ends; the largest error in ulp of tan R or its inverse, and where."""
    cuts = []
    for e in range(-16, 1):
        a = enclose(gmpy2.atan, Fraction(2) ** e)
        cuts += [sines.binary(a.low - 8 * slip), sines.binary(a.high + 8 * slip)]
    pieces = sines.subdivide(low_end, high_end, cuts, 32)
    worst = (Fraction(0), None)
    for (low, high), approximation, rounding in zip(pieces, quotient_errors(pieces), rounding_errors(pieces)):
        delta = roundings * ulp(high + Fraction(1, 2 ** 40)) / 2 + slip
        values = tangent(Interval(low - delta, high + delta))
        # tan' / tan = 2 / sin 2r
        part = approximation + rounding + approximation * rounding
        part += delta * (1 / values.low + values.high) * (1 + Fraction(1, 2 ** 30))
        for value, what in ((values, "tan"), (1 / values, "cot")):
            units = in_units(value, part * value.high)
            worst = max(worst, (units, f"{what}, |r| from {float(low):.6f} to {float(high):.6f}"))
    return worst


agree_with_module(kernel, "tan", ((0.137 * i ** 3 * (-1) ** i,) for i in range(90)))
slip = max(slips.values())
far = bound(sines.NEAR_ZERO, sines.binary(largest_rest + Fraction(1, 2 ** 50)), 2, slip)
# Next to zero the reduction rounds once, last: a unit at most of the result, as the quotient's rounding is.
binades = sines.binades_near_zero()
near = 2 + sines.slip_near_zero(slips) + 2 ** 53 * max(
    a + b + a * b for a, b in zip(quotient_errors(binades), rounding_errors(binades)))
next_to_zero = sines.largest_error(kernel, sines.next_to_zeros(Fraction(1), limit, sines.NEXT_TO_ZERO, HALF_PI), gmpy2.tan)
sines.report_places("tan", far[0], near, next_to_zero, far[1])
