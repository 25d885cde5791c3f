"""Intervals, units, and what Gappa and Sollya answer, against values known otherwise."""
import random
from fractions import Fraction

import gmpy2
import numpy as np
import pytest

import proof
import sines
from proof import (Interval, Unproved, enclose, enclose_constant, exponent_of, fraction, gappa, gappa_each, in_units,
                   literal, sollya, ulp)

chance = random.Random(7)


def mpfr(value):
    with gmpy2.local_context(gmpy2.context(), precision=500):
        return gmpy2.mpfr(gmpy2.mpq(value.numerator, value.denominator))


def holds(interval, value):
    return interval.low <= value <= interval.high


def some(low=-8, high=8):
    return Fraction(chance.randint(low * 1000, high * 1000), chance.randint(1, 999))


def test_intervals_hold_all_their_values():
    for _ in range(300):
        a, b = sorted([some(), some()]), sorted([some(), some()])
        A, B = Interval(*a), Interval(*b)
        for x in (*a, (a[0] + a[1]) / 3 * 2 - a[0] / 3):
            for y in (*b, sum(b) / 2):
                assert holds(A + B, x + y) and holds(A - B, x - y) and holds(A * B, x * y) and holds(abs(A), abs(x))
                assert holds(3 - A, 3 - x) and abs(x) <= A.magnitude
                if not holds(B, 0):
                    assert holds(A / B, x / y) and holds(1 / B, 1 / y)
        # And no more than they are.
        assert (A + B).high == a[1] + b[1] and (A - B).low == a[0] - b[1]
        assert (A * B).high == max(x * y for x in a for y in b)
    with pytest.raises(Unproved):
        Interval(1) / Interval(-1, 1)


def test_enclosures_hold_the_value_and_little_else():
    for function in (gmpy2.exp, gmpy2.sin, gmpy2.atan, gmpy2.log1p):
        for _ in range(50):
            x = abs(some(-1, 1)) % 1
            found = enclose(function, x)
            with gmpy2.local_context(gmpy2.context(), precision=400):
                value = Fraction(*map(int, function(mpfr(x)).as_integer_ratio()))
            assert holds(found, value) and found.high - found.low <= abs(value) / 2 ** 190
            wide = enclose(function, Interval(x / 2, x))
            assert holds(wide, value) and wide.low <= found.low
    pi = enclose_constant(gmpy2.const_pi)
    digits = "3.141592653589793238462643383279502884197169399375105820974944592307816406286"
    assert pi.low < Fraction(digits) < pi.high


def test_units_are_those_of_doubles_and_floats():
    for _ in range(300):
        x = chance.uniform(-1, 1) * 2.0 ** chance.randint(-200, 200)
        assert ulp(Fraction(x)) == Fraction(float(np.spacing(abs(x))))
        single = np.float32(chance.uniform(-1, 1))
        assert ulp(Fraction(float(single)), 24) == Fraction(float(np.spacing(abs(single))))
        assert exponent_of(Fraction(x)) == int(np.floor(np.log2(abs(x))))
    for e in (-30, 0, 9):
        power = Fraction(2) ** e
        assert exponent_of(power) == e and exponent_of(power - power / 2 ** 99) == e - 1
        assert ulp(power) == 2 * ulp(power * Fraction(999, 1000)) and ulp(power, 24) == power / 2 ** 23
        assert fraction(literal(power * 7)) == power * 7
    with pytest.raises(Unproved):
        literal(Fraction(1, 3))


def test_units_across_a_power_of_two():
    unit = Fraction(1, 2 ** 53)
    assert in_units(Interval(Fraction(5, 8), Fraction(6, 8)), 2 * unit) == Fraction(5, 2)
    # 1 - 1.2 units may come out as 1 + 2 units or as 1, of which the latter is what a small error makes.
    below_1 = Interval(1 - 2 * unit, 1 - unit)
    assert in_units(below_1, 3 * unit) == 4 and in_units(below_1, unit * Fraction(21, 20)) == Fraction(41, 20)
    # Every rounding there is within it.
    for _ in range(500):
        value = 1 - unit * Fraction(chance.randint(1000, 2000), 1000)
        error = unit * Fraction(chance.randint(0, 4000), 1000)
        for exact in (value + error, value - error):
            assert abs(Fraction(float(exact)) - value) / unit <= in_units(below_1, error)


def test_gappas_answers_are_read():
    product = "x = rnd(x_);\ny = rnd(y_);\n{ x in [1, 1.5] /\\ y in [1, 1.25] -> rnd(x * y) - x * y in ? }\n"
    (error,) = gappa(product).values()
    assert (error.low, error.high) == (-Fraction(1, 2 ** 53), Fraction(1, 2 ** 53))
    several = gappa("{ x in [0.5, 3] -> x + 1 in ? /\\ x * 2 in ? /\\ -x in ? }")
    assert [(a.low, a.high) for a in several.values()] == [(Fraction(3, 2), 4), (1, 6), (-3, Fraction(-1, 2))]
    in_order = gappa_each([f"{{ x in [0, {n}] -> x in ? }}" for n in range(1, 9)])
    assert [found.high for found in in_order] == list(range(1, 9))
    # No double is there, no answer, no sense.
    assert gappa_each(["x = rnd(x_);\n{ x in [1b-0, 1b-0] /\\ x in [2, 3] -> x in ? }"]) == [None]
    with pytest.raises(Unproved):
        gappa_each(["{ x in [0, 1] -> x / y in ? }"])
    with pytest.raises(Unproved, match="Gappa refuses"):
        gappa("{ x in [0, 1 -> x in ? }")
    with pytest.raises(Unproved, match="Sollya refuses"):
        sollya("evaluate(exp(x), ;\n1;\n", 2)
    assert sollya("1b-3;\n-7;\n", 2) == [Fraction(1, 8), -7]


def test_sollyas_norms_hold_what_mpfr_finds():
    taylor = "x - x^3 * 1b-3"
    pieces = [(Fraction(1, 8), Fraction(1, 4)), (Fraction(1, 4), Fraction(1, 2))]
    for (low, high), norm in zip(pieces, sines.local_errors(taylor, pieces)):
        with gmpy2.local_context(gmpy2.context(), precision=200):
            places = [mpfr(low + (high - low) * i / 50) for i in range(51)]
            found = max(abs((x - x ** 3 / 8) / gmpy2.sin(x) - 1) for x in places)
        assert found <= float(norm) <= float(found) * 1.01
    error = proof.relative_error("1 + x + x^2 * 1b-1", "exp(x)", -Fraction(1, 64), Fraction(1, 64))
    for i in range(-32, 33):
        x = Fraction(i, 2048)
        value = (1 + x + x * x / 2) / enclose(gmpy2.exp, x) - 1
        assert error.low <= value.low and value.high <= error.high
    assert error.magnitude < Fraction(1, 64) ** 3


def test_doubles_next_to_multiples_are_all_there():
    for offset, distance in ((0, 2.0 ** -48), (1 / 4, 2.0 ** -49), (-1 / 2, 2.0 ** -47)):
        offset, distance, limit = Fraction(offset), Fraction(distance), Fraction(40000)
        found = set(sines.doubles_near(offset, distance, Fraction(1), limit, sines.PI))
        expected = set()
        with gmpy2.local_context(gmpy2.context(), precision=250):
            for m in range(1, int(limit / 3)):
                center = mpfr(offset) + m * gmpy2.const_pi()
                start = float(center)
                for direction in (-np.inf, np.inf):
                    x = start
                    while abs(gmpy2.mpfr(x) - center) <= mpfr(distance):
                        expected.add(Fraction(x))
                        x = float(np.nextafter(x, direction))
        assert found == {x for x in expected if 1 <= x <= limit} and len(found) > 20


def test_intervals_of_r_leave_nothing_out():
    strips = [(Fraction(3, 10), Fraction(4, 10)), (Fraction(6, 10), Fraction(9, 10))]
    pieces = sines.less(sines.subdivide(Fraction(1, 9), Fraction(8, 7), 3), strips)
    covered = sorted(pieces + strips)
    assert covered[0][0] == Fraction(1, 9) and covered[-1][1] == Fraction(8, 7)
    assert all(a[1] == b[0] for a, b in zip(covered, covered[1:]))
    # The highest place of a function, with what an interval's width adds.
    bound, (low, high) = proof.refined(pieces, lambda parts: [(b * (1 - b) + (b - a)) * 4 for a, b in parts])
    assert 1 <= bound + Fraction(1, 25) and bound < Fraction(26, 25) and low < Fraction(6, 10)


def test_a_crossing_has_the_largest_error_of_its_doubles():
    half = enclose(gmpy2.asin, Fraction(1, 2))
    crossing = sines.Crossing(half, sines.sine, -1, True)
    # A kernel that always gives 1/2, and an exact rest: the farthest double decides, below in units of 2^-54.
    bound = crossing.bound(lambda r: np.full(r.shape, 0.5), Fraction(0))
    far = max((Fraction(1, 2) - sines.sine(Interval(r)).low) * 2 ** 54 for r in crossing.doubles)
    assert far <= bound < far * Fraction(101, 100)
    with_loss = crossing.bound(lambda r: np.full(r.shape, 0.5), Fraction(1, 2 ** 52))
    assert bound + 3 < with_loss < bound + 4
