#!/usr/bin/python3
"""tan in double precision, |x| up to 128000: r = |x| - n pi/2 in four pieces; r P(r^2) / Q(r^2), or upside down for odd
n."""
from fractions import Fraction

import gmpy2

import sines
from proof import (Interval, Kernel, NearestInteger, agree_with_module, enclose, exponent_of, gappa_each, in_units,
                   literal, refined, require, sollya, ulp)

kernel = Kernel("tan", 16)
agree_with_module(kernel, "tan")
limit = Fraction(128000)
y = next(i for i in kernel.all("divide"))
choices = [kernel.operands(o, "select") for o in kernel.operands(y)]
require(choices[0][1:] == choices[1][:0:-1] and choices[0][0] == choices[1][0], "the quotient or its inverse")
numerator, denominator = choices[0][2], choices[0][1]
r = next(o for o in kernel.operands(numerator, "multiply") if kernel.name(o) == "subtract")
n = kernel.operands(kernel.operands(r)[1], "multiply")[0]
pieces_of_pi = sines.Pieces(kernel, r, n, sines.HALF_PI)
nearest = NearestInteger(kernel, n)
square = next(i for i in kernel.all("multiply") if kernel.operands(i) == [r, r])

reductions = []
for binade in range(-1, exponent_of(limit) + 1):
    found = sines.Reduction(kernel, pieces_of_pi, nearest.scale, lambda names: nearest.chain(names, "x"),
                            Fraction(2) ** binade, min(Fraction(2) ** (binade + 1), limit))
    require(found.exact, f"the first two steps are exact from 2^{binade}")
    reductions.append((binade, found))
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
    """For each interval of r, how far P/Q is from tan r / r, as a part: of P B - Q A, a polynomial, Sollya has the
    norm."""
    A, B, part = convergent(12)
    names = {square: "x", r: "1"}
    text = [" + ".join(f"({c.numerator}) * x^{power}" for power, c in enumerate(p)) for p in (A, B)]
    script = (f"a = {text[0]}; b = {text[1]};\n"
              f"p = {kernel.exact(numerator, dict(names))}; q = {kernel.exact(denominator, dict(names))};\n"
              "d = canonical(p * b - q * a);\n")
    for low, high in pieces:
        ends = f"[{literal(low * low)}; {literal(high * high)}]"
        script += f"sup(supnorm(d + 1, 1, {ends}, absolute, 2^(-5)));\ninf(abs(evaluate(q * a, {ends})));\n"
    numbers = sollya(script, 2 * len(pieces))
    return [difference / least * (1 + part) + part for difference, least in zip(numbers[::2], numbers[1::2])]


def rounding_errors(pieces):
    """For each interval of r, parts of r P/Q that its roundings are, but for the division's: those of the numerator,
    the denominator and, through both, of r's square."""
    answers = gappa_each([kernel.rounding_question(target, {r: "r", square: "z"}, "r = rnd(r_);\nz = rnd(r * r);\n",
                                                   f"r in [{literal(low)}, {literal(high)}]")
                          for low, high in pieces for target in (numerator, denominator)])
    P, Q = (kernel.exact(target, {r: "1", square: "x"}) for target in (numerator, denominator))
    script = f"p = canonical({P}); q = canonical({Q}); d = canonical(diff(p) * q - p * diff(q));\n"
    for low, high in pieces:
        ends = f"[{literal(low * low)}; {literal(high * high)}]"
        script += f"inf(evaluate(p, {ends}));\ninf(evaluate(q, {ends}));\nsup(abs(evaluate(d, {ends})));\n"
    numbers = sollya(script, 3 * len(pieces))
    parts = []
    for i, (low, high) in enumerate(pieces):
        least_p, least_q, slope = numbers[3 * i:3 * i + 3]
        e_p = answers[2 * i].magnitude / (least_p * low)
        e_q = answers[2 * i + 1].magnitude / least_q
        of_square = slope / (least_p * least_q) * ulp(high * high) / 2
        parts.append((e_p + e_q / (1 - e_q)) * (1 + of_square) + of_square)
    return parts


def cotangent(x):
    return 1 / tangent(x)


def bound(largest_rest, lost, one_by_one):
    """For |r| from NEAR_ZERO on, in ulp of tan R or its inverse, and where."""
    def bound_of(piece, approximation, rounding):
        low, high = piece
        loss = lost(low, high)
        values = tangent(Interval(low - loss, high + loss))
        # tan' / tan = 2 / sin 2r
        part = approximation + rounding + approximation * rounding
        part += loss * (1 / values.low + values.high) * (1 + Fraction(1, 2 ** 30))
        return max(in_units(value, part * value.high) for value in (values, 1 / values))

    def bounds_of(pieces):
        return map(bound_of, pieces, quotient_errors(pieces), rounding_errors(pieces))

    def result(upside_down):
        def of(x):
            over, under = (kernel.lanes(o, {r: x}) for o in (numerator, denominator))
            return under / over if upside_down else over / under
        return of

    crossings = []
    for e in range(exponent_of(sines.NEAR_ZERO), 1):
        at = enclose(gmpy2.atan, Fraction(2) ** e)
        for crossing, upside_down in ((sines.Crossing(at, tangent, e, True), False),
                                      (sines.Crossing(at, cotangent, -e, False), True)):
            if crossing.strip[0] >= sines.NEAR_ZERO:
                crossings.append((crossing, crossing.bound(result(upside_down), lost(*crossing.strip))))
    pieces = sines.subdivide(sines.NEAR_ZERO, sines.binary(largest_rest + Fraction(1, 2 ** 50)), 8)
    pieces = sines.less(pieces, [crossing.strip for crossing, _ in crossings[::2]])
    return sines.largest_of(*refined(pieces, bounds_of), crossings, one_by_one)


every = [found for _, found in reductions]
lost = sines.loss(every, 2)
worst, (low, high) = bound(max(found.largest for found in every), lost, sines.one_by_one(
    kernel, gmpy2.tan, sines.HALF_PI, Fraction(0), sines.NEAR_ZERO, limit, lost))
# Next to zero the reduction rounds once, last: a unit at most of the result, as the quotient's rounding is.
binades = sines.binades_near_zero()
near_zero = 2 + sines.slip_near_zero(reductions) + 2 ** 53 * max(
    a + b + a * b for a, b in zip(quotient_errors(binades), rounding_errors(binades)))
next_to_zero = sines.largest_error(
    kernel, sines.doubles_near(Fraction(0), sines.NEXT_TO_ZERO, Fraction(1), limit, sines.HALF_PI), gmpy2.tan)
sines.report_places("tan", worst, near_zero, next_to_zero, f"|r| from {float(low):.6f} to {float(high):.6f}")
