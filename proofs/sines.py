"""What the proofs of sine and cosine share: r = x - m pi for a whole or half m, pi in four pieces, then an odd
polynomial of r; the sign is put on r, which changes no rounding."""
from fractions import Fraction

import gmpy2
import numpy as np

import lanes
from proof import (Interval, enclose, enclose_constant, exponent_of, gappa, gappa_each, interval, literal, refined,
                   report, require, sollya, ulp)

PI = enclose_constant(gmpy2.const_pi, 300)
HALF_PI = PI / 2
BELOW_1 = 1 - Fraction(1, 2 ** 60)
# Below this the reduction rounds once; below the other, arguments are taken one by one.
NEAR_ZERO = Fraction(1, 2 ** 15)
NEXT_TO_ZERO = Fraction(1, 2 ** 48)


class Pieces:
    """r = (((x - m p1) - m p2) - m p3) - m p4, found from r: the steps, the products and the pieces of pi or half of
    it."""

    def __init__(self, kernel, r, m, period=PI):
        self.m, self.period = m, period
        self.steps, self.products, self.pieces = [], [], []
        step = r
        while kernel.name(step) == "subtract" and kernel.name(kernel.operands(step)[1]) == "multiply":
            before, product = kernel.operands(step)
            factor, piece = kernel.constant_of(product, "multiply")
            require(factor == m, "each step takes a multiple of m away")
            self.steps.insert(0, step)
            self.products.insert(0, product)
            self.pieces.insert(0, piece)
            step = before
        require(len(self.pieces) == 4, "pi is in four pieces")
        self.x = step
        # What the pieces leave.
        self.rest = period - sum(self.pieces)


class Reduction:
    """Of x from low to high, found by Gappa: whether the first two differences are exact, as the products down to the
    third piece have to be; the largest |R|; what the last step takes away at most; and the slip, which is what the last
    product's rounding and pi beyond the pieces make. chain(names) says how m follows from x scale, in rounded steps."""

    def __init__(self, kernel, pieces, scale, chain, low, high):
        r, m = pieces.steps[-1], pieces.m
        names = {pieces.x: "x"}
        text = kernel.rounded(r, names)
        m_, C, P = names[m], literal(scale), [literal(piece) for piece in pieces.pieces]
        step, product = [names[i] for i in pieces.steps], [names[i] for i in pieces.products]
        lost = [f"{product[i]} - {m_} * {P[i]}" for i in range(4)]
        first, second = f"{step[0]} - (x - {product[0]})", f"{step[1]} - ({step[0]} - {product[1]})"
        nearest = f"{m_} - x * {C}"
        questions = " /\\ ".join(f"{e} in ?" for e in lost + [first, second, nearest, m_])
        rest = f"({lost[0]}) * (-1) + (x * {C} - {m_}) / {C} + {m_} * (1 / {C} - {P[0]})"
        both = f"(x * {C} - {m_}) / {C} + {m_} * ((1 / {C} - {P[0]}) - {P[1]})"
        answers = gappa(f"""x = rnd(x_);
{text}
{{ x in [{literal(low)}, {literal(high)}] -> {questions} }}
{nearest} -> {chain(names)};
x - {product[0]} -> {rest};
{step[0]} - {product[1]} -> ({first}) - ({lost[0]}) - ({lost[1]}) + {both};
""")
        require(all(answers[e].magnitude == 0 for e in lost[:3]), f"products are exact from {float(low)}")
        self.exact = answers[first].magnitude == 0 and answers[second].magnitude == 0
        self.slip = answers[lost[3]].magnitude + answers[m_].magnitude * pieces.rest.magnitude
        self.last = answers[m_].magnitude * pieces.pieces[3]
        self.largest = answers[nearest].magnitude / scale
        self.largest += answers[m_].magnitude * (1 / scale - pieces.period).magnitude


def loss(reductions, roundings):
    """What reductions lose of r between two ends: so many steps round, each a value next to r, and the last changes
    nothing where it takes less than a quarter of a unit away."""
    slip, last = max(each.slip for each in reductions), max(each.last for each in reductions)

    def lost(low, high):
        near = Fraction(1, 2 ** 20)  # what has still to lose its last pieces
        unit = ulp(high + near)
        of_last = last if low > near and last < ulp(low - near) / 4 else unit / 2
        return (roundings - 1) * unit / 2 + of_last + slip
    return lost


def doubles_near(offset, distance, low, limit, period):
    """The doubles from low to the limit that are within a distance, of less than 2^-40, of an offset, one of binary
    fractions, and some whole multiple of the period."""
    found = []
    for e in range(exponent_of(low), exponent_of(limit) + 1):
        unit = Fraction(2) ** (e - 52)
        first = max(0, int((Fraction(2) ** e - offset) / period.low) - 1)
        last = max(0, int((Fraction(2) ** (e + 1) - offset) / period.low) + 2)
        centers = (offset + m * period.low for m in range(first, last))
        if distance < unit / 4:
            # In 2^64ths of a unit, of which only what is beyond whole units is kept; each product is off by m of these.
            fine = unit / 2 ** 64
            step, begin = (np.uint64(int(value // fine) % 2 ** 64) for value in (period.low, offset))
            margin = int(distance / fine) + last + 2
            places = np.arange(first, last, dtype=np.uint64) * step + begin + np.uint64(margin)
            centers = (offset + (first + int(m)) * period.low for m in np.nonzero(places <= np.uint64(2 * margin))[0])
        for center in centers:
            begin = max(-((distance - center) // unit), 2 ** 52)
            end = min((center + distance) // unit, 2 ** 53 - 1, limit // unit)
            found += [i * unit for i in range(begin, end + 1)]
    return found


def largest_error(kernel, arguments, function):
    """Of the kernel itself at given arguments, in ulp."""
    largest = Fraction(0)
    results = kernel.lanes(kernel.result, {kernel.arguments[0]: lanes.of_fractions(arguments)})
    for x, result in zip(arguments, lanes.fractions(results)):
        with gmpy2.local_context(gmpy2.context(), precision=400):
            exact = Fraction(*map(int, function(gmpy2.mpfr(gmpy2.mpq(x.numerator, x.denominator))).as_integer_ratio()))
        largest = max(largest, abs(result - exact) / ulp(exact))
    return largest * (1 + Fraction(1, 2 ** 100))


def one_by_one(kernel, function, period, shift, low, limit, lost, signs=(1,)):
    """A function of a crossing: the largest error at all arguments from low to the limit with a rest in its strip,
    which they have next to shift + m period for some m."""
    def largest(crossing):
        begin, end = crossing.strip
        distance = (end - begin) / 2 + lost(begin, end)
        return largest_error(kernel, [sign * x for sign in signs for side in (1, -1) for x in doubles_near(
            shift + side * (begin + end) / 2, distance, low, limit, period)], function)
    return largest


def subdivide(low, high, parts):
    """Intervals between two fractions, each binade in so many parts."""
    ends = {low, high}
    for e in range(exponent_of(low), exponent_of(high) + 1):
        ends |= {end for i in range(parts) if low < (end := Fraction(2) ** e * (1 + Fraction(i, parts))) < high}
    ends = sorted(ends)
    return list(zip(ends, ends[1:]))


def less(pieces, strips):
    """Intervals without what is in strips."""
    for strip_low, strip_high in strips:
        parts = [part for low, high in pieces for part in ((low, min(high, strip_low)), (max(low, strip_high), high))]
        pieces = [(low, high) for low, high in parts if low < high]
    return pieces


def sine(x):
    """Of an interval up to pi/2, or a little beyond."""
    if x.high <= HALF_PI.low:
        return enclose(gmpy2.sin, x)
    beyond = x.high - HALF_PI.low
    return Interval(min(enclose(gmpy2.sin, min(x.low, HALF_PI.low)).low, 1 - beyond * beyond / 2), 1)


def local_errors(polynomial, pieces):
    """For each interval of r, Sollya's bound of |polynomial/sin - 1|."""
    script = f"p = canonical({polynomial});\n"
    for low, high in pieces:
        script += f"sup(supnorm(p, sin(x), [{literal(low)}; {literal(high)}], relative, 2^(-10)));\n"
    return sollya(script, len(pieces))


def slopes_in_square(polynomial, pieces):
    """For each interval of r, the largest slope of the polynomial's quotient by r as a function of r's square."""
    questions = (f"sup(abs(evaluate(d, [{literal(low * low)}; {literal(high * high)}])));\n" for low, high in pieces)
    return sollya(f"d = diff(canonical({polynomial}));\n" + "".join(questions), len(pieces))


def binary(value, bits=70):
    """A binary fraction next to a value, for ends of intervals."""
    scale = Fraction(2) ** (bits - exponent_of(value))
    return Fraction(round(value * scale)) / scale


class Crossing:
    """The doubles r next to where a function of r crosses a power of two, at some `at`. With an interval of r there,
    half a unit of the last rounding could be a whole one of the exact result, and both roundings of the reduction at
    their worst with it; for a double the kernel's result is known."""

    def __init__(self, at, function, exponent, increases):
        self.at, self.function = at, function
        below, above = (exponent - 1, exponent) if increases else (exponent, exponent - 1)
        self.units = Fraction(2) ** (below - 52), Fraction(2) ** (above - 52)
        unit, nearest = ulp(at.low), at.low // ulp(at.low)
        self.doubles = [(nearest + i) * unit for i in range(-32, 33)]
        self.strip = self.doubles[0] - unit / 2, self.doubles[-1] + unit / 2

    def bound(self, evaluate, loss):
        """The largest error over these, evaluate(lanes) being the kernel's results and R within a loss of r."""
        worst = Fraction(0)
        for r, result in zip(self.doubles, lanes.fractions(evaluate(lanes.of_fractions(self.doubles)))):
            for low, high, unit in ((r - loss, min(r + loss, self.at.high), self.units[0]),
                                    (max(r - loss, self.at.low), r + loss, self.units[1])):
                if low <= high:
                    worst = max(worst, (self.function(Interval(low, high)) - result).magnitude / unit)
        return worst


def main_bound(kernel, y, rests, lost, largest_rest, one_by_one, from_rest=NEAR_ZERO):
    """For |r| from from_rest on, of which the reduction loses lost(low, high) between two ends; one_by_one(crossing) is
    the largest error at arguments with rests there. The bound in ulp of sin R, and the interval of r where it is."""
    product, = (o for o in kernel.operands(y, "add") if o not in rests)
    polynomial = kernel.exact(y, dict.fromkeys(rests, "x"))
    # The square is rounded by itself, so that its error meets the polynomial's slope as a whole.
    square = next(i for i in kernel.all("multiply") if kernel.operands(i) == [rests[0], rests[0]])
    quotient = kernel.exact(y, {square: "x"} | dict.fromkeys(rests, "1"))

    def bound_of(piece, error, slope_in_square, rounding):
        low, high = piece
        values, loss = sine(Interval(low, high)), lost(low, high)
        # How far the last sum is from sin r before it is rounded.
        off = rounding.magnitude + high * slope_in_square * ulp(high * high) / 2 + error * values.high
        slope = max(sine(HALF_PI - low + loss).high if low < HALF_PI.low else loss, high + loss - HALF_PI.low)
        # Its operands are multiples of what may be the sum's unit.
        product_least = low - sine(interval(low)).high - off
        exact = product_least > 0 and min(ulp(low), ulp(product_least)) >= ulp(values.high + off)
        last = 0 if exact else ulp(values.high + off) / 2
        return (off + last + loss * slope) / ulp(min(sine(Interval(low - loss, high + loss)).low, BELOW_1))

    def bounds_of(pieces):
        questions = [kernel.rounding_question(
            product, dict.fromkeys(rests, "r") | {square: "z"}, "r = rnd(r_);\nz = rnd(r * r);\n",
            f"r in [{literal(low)}, {literal(high)}]") for low, high in pieces]
        errors, slopes = local_errors(polynomial, pieces), slopes_in_square(quotient, pieces)
        return map(bound_of, pieces, errors, slopes, gappa_each(questions))

    def result(r):
        return kernel.lanes(y, dict.fromkeys(rests, r))

    crossings = [Crossing(enclose(gmpy2.asin, Fraction(2) ** e), sine, e, True) for e in range(-16, 0)]
    crossings = [c for c in crossings if c.strip[0] >= from_rest]
    pieces = less(subdivide(from_rest, binary(largest_rest + Fraction(1, 2 ** 60)), 8), [c.strip for c in crossings])
    at_crossings = [(c, c.bound(result, lost(*c.strip))) for c in crossings]
    return largest_of(*refined(pieces, bounds_of), at_crossings, one_by_one)


def largest_of(bound, piece, crossings, one_by_one):
    """The larger of a bound and those at crossings; where the latter exceed it, arguments decide instead."""
    for crossing, at_most in crossings:
        if at_most > bound:
            bound, piece = max((bound, piece), (min(at_most, one_by_one(crossing)), crossing.strip))
    return bound, piece


def slip_near_zero(reductions):
    """In units of sin R where |R| is small, of the slip in each binade of x: R is at least NEXT_TO_ZERO, or x is not
    the double nearest to its m pi and half the space between doubles away."""
    return max(each.slip / ulp(min(NEXT_TO_ZERO, Fraction(2) ** (binade - 53)) / 2) for binade, each in reductions)


def binades_near_zero():
    return [(Fraction(2) ** e, Fraction(2) ** (e + 1)) for e in range(-60, exponent_of(NEAR_ZERO))]


def bound_near_zero(kernel, y, rests, slip_in_units):
    """For |r| below NEAR_ZERO, where the reduction rounds once, last: what went before are multiples of 2^-52, the
    third piece's product is one of 2^-68. In ulp of sin R: the rounding of r, the slip, the polynomial, its rounding.
    Half a unit of r or of y is a whole one of sin R across a power of two."""
    binades = binades_near_zero()
    questions = [kernel.rounding_question(y, dict.fromkeys(rests, "r"), "r = rnd(r_);\n",
                                          f"r in [{literal(low)}, {literal(high)}]") for low, high in binades]
    rounding = max(answer.magnitude / ulp(low / 2) for (low, _), answer in zip(binades, gappa_each(questions)))
    error, = local_errors(kernel.exact(y, dict.fromkeys(rests, "x")), [(binades[0][0], NEAR_ZERO)])
    # A part of a value is 2^53 times as many units at most.
    return 1 + slip_in_units + rounding + 2 ** 53 * error


def report_places(base, away, near, next_to, where):
    """The largest of the three, and each for people."""
    print(f"away from 0 {float(away):.4f}, near 0 {float(near):.4f}, next to 0 {float(next_to):.4f}")
    report(base, 16, max(away, near, next_to), where)
