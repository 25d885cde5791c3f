"""What the proofs of sine and cosine share: r = x - m pi for a whole or half m, pi in four pieces, then an odd
polynomial of r; the sign is put on r, which changes no rounding."""
from fractions import Fraction

import gmpy2

from proof import (dyadic, enclose, enclose_constant, exponent_of, gappa, gappa_each, lane_value, literal, pattern_of, report,
                   require, sollya, ulp)

PI = enclose_constant(gmpy2.const_pi, 300)
# Below this the reduction rounds once; below the other, arguments are taken one by one.
NEAR_ZERO = Fraction(1, 2 ** 15)
NEXT_TO_ZERO = Fraction(1, 2 ** 48)


class Pieces:
    """r = (((x - m p1) - m p2) - m p3) - m p4, found from r: the steps, the products and the pieces of pi or half of it."""

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


def reduction(kernel, pieces, scale, chain, low, high):
    """Gappa's word for x from low to high: that products down to the third piece are exact, and whether the first two
    differences are; what is lost by the last piece's product and by pi beyond the pieces; the largest |R|. chain(names)
    says how m follows from x scale, in rounded steps."""
    r, m = pieces.steps[-1], pieces.m
    names = {pieces.x: "x"}
    text = kernel.rounded(r, names)
    m_, C, P = names[m], literal(scale), [literal(piece) for piece in pieces.pieces]
    step, product = [names[i] for i in pieces.steps], [names[i] for i in pieces.products]
    lost = [f"{product[i]} - {m_} * {P[i]}" for i in range(4)]
    first, second = f"{step[0]} - (x - {product[0]})", f"{step[1]} - ({step[0]} - {product[1]})"
    nearest = f"{m_} - x * {C}"
    questions = " /\\ ".join(f"{e} in ?" for e in lost + [first, second, nearest, m_])
    answers = gappa(f"""x = rnd(x_);
{text}
{{ x in [{literal(low)}, {literal(high)}] -> {questions} }}
{nearest} -> {chain(names)};
x - {product[0]} -> ({lost[0]}) * (-1) + (x * {C} - {m_}) / {C} + {m_} * (1 / {C} - {P[0]});
{step[0]} - {product[1]} -> ({first}) - ({lost[0]}) - ({lost[1]}) + (x * {C} - {m_}) / {C} + {m_} * ((1 / {C} - {P[0]}) - {P[1]});
""")
    require(all(answers[e].magnitude == 0 for e in lost[:3]), f"products are exact from {float(low)}")
    exact = answers[first].magnitude == 0 and answers[second].magnitude == 0
    slip = answers[lost[3]].magnitude + answers[m_].magnitude * pieces.rest.magnitude
    largest = answers[nearest].magnitude / scale + answers[m_].magnitude * (1 / scale - pieces.period).magnitude
    return exact, slip, largest


def next_to_zeros(first, limit, distance, period=PI):
    """The doubles x up to the limit that are the nearest to some m pi and within a distance of it, over m = first,
    first + 1, ..."""
    bits = 160
    step = int(period.low * 2 ** bits)
    value, top, near, count = step * first.numerator // first.denominator, int(limit * 2 ** bits), int(distance * 2 ** bits), 0
    found = []
    while value <= top:
        shift = value.bit_length() - 53
        double = (value + (1 << (shift - 1))) >> shift << shift
        if abs(double - value) < near + 2 * count + 2:  # each m pi is known to as many units as steps were taken
            found.append(Fraction(double, 2 ** bits))
        value += step
        count += 1
    return found


def largest_error(kernel, arguments, function):
    """Of the kernel itself at given arguments, in ulp."""
    largest = Fraction(0)
    for x in arguments:
        result = lane_value("f64", kernel.evaluate(pattern_of("f64", x)))
        with gmpy2.local_context(gmpy2.context(), precision=400):
            exact = Fraction(*function(gmpy2.mpfr(gmpy2.mpq(x.numerator, x.denominator))).as_integer_ratio())
        largest = max(largest, abs(result - exact) / ulp(exact))
    return largest * (1 + Fraction(1, 2 ** 100))


def subdivide(low, high, cuts, parts):
    """Intervals between two fractions that end at the cuts, each binade in so many parts."""
    ends = {low, high} | {c for c in cuts if low < c < high}
    e = exponent_of(low)
    while Fraction(2) ** e < high:
        for i in range(parts):
            end = Fraction(2) ** e * (1 + Fraction(i, parts))
            if low < end < high:
                ends.add(end)
        e += 1
    ends = sorted(ends)
    return list(zip(ends, ends[1:]))


def sine(x):
    return enclose(gmpy2.sin, x)  # increasing as far as pi/2


def local_errors(polynomial, pieces):
    """For each interval of r, Sollya's bound of |polynomial/sin - 1|."""
    script = f"p = canonical({polynomial});\n"
    for low, high in pieces:
        script += f"sup(supnorm(p, sin(x), [{literal(low)}; {literal(high)}], relative, 2^(-10)));\n"
    lines = sollya(script)
    return [dyadic(line) for line in lines[-len(pieces):]]


def slopes_in_square(polynomial, pieces):
    """For each interval of r, the largest slope of the polynomial's quotient by r as a function of r's square."""
    lines = sollya(f"d = diff(canonical({polynomial}));\n" + "".join(
        f"sup(abs(evaluate(d, [{literal(low * low)}; {literal(high * high)}])));\n" for low, high in pieces))
    return [dyadic(line) for line in lines[-len(pieces):]]


def binary(value, bits=70):
    """A binary fraction next to a value, for ends of intervals."""
    scale = Fraction(2) ** (bits - exponent_of(value))
    return Fraction(round(value * scale)) / scale


def main_bound(kernel, y, rests, roundings, slip, largest_rest, from_rest=NEAR_ZERO):
    """For |r| from from_rest on. roundings: how many steps of the reduction round, each a value next to r; slip: what
    the reduction loses besides. The bound in ulp of sin R, and the interval of r where it is."""
    boundaries = []
    for e in range(-16, 0):
        a = enclose(gmpy2.asin, Fraction(2) ** e)
        boundaries += [binary(a.low - slip * 8), binary(a.high + slip * 8)]
    pieces = subdivide(from_rest, binary(largest_rest + Fraction(1, 2 ** 60)), boundaries, 64)
    errors = local_errors(kernel.exact(y, dict.fromkeys(rests, "x")), pieces)
    # The square is rounded by itself, so that its error meets the polynomial's slope as a whole.
    square = next(i for i in kernel.all("multiply") if kernel.operands(i) == [rests[0], rests[0]])
    questions = [kernel.rounding_question(y, dict.fromkeys(rests, "r") | {square: "z"}, "r = rnd(r_);\nz = rnd(r * r);\n",
                                          f"r in [{literal(low)}, {literal(high)}]") for low, high in pieces]
    slopes = slopes_in_square(kernel.exact(y, {square: "x"} | dict.fromkeys(rests, "1")), pieces)
    worst, where = Fraction(0), None
    for (low, high), error, slope_in_square, rounding in zip(pieces, errors, slopes, gappa_each(questions)):
        rounding = rounding.magnitude + high * slope_in_square * ulp(high * high) / 2
        near = high + Fraction(1, 2 ** 20)  # what has still to lose its last pieces
        delta = roundings * ulp(near) / 2 + slip
        top = min(high, PI.low / 2)
        # sin changes by at most cos of the lower end.
        slope = min(Fraction(1), 1 - low * low / 2 + low ** 4 / 24)
        least = max(sine(low - delta).low if low < PI.low / 2 else 1 - delta, Fraction(0))
        total = rounding + error * sine(top).high + delta * (slope + delta)
        in_units = total / ulp(min(least, 1 - Fraction(1, 2 ** 60)))
        if in_units > worst:
            worst, where = in_units, (low, high)
    return worst, where


def slip_near_zero(slips):
    """In units of sin R where |R| is small, of the slip in each binade of x: R is at least NEXT_TO_ZERO, or x is not
    the double nearest to its m pi and half the space between doubles away."""
    return max(slip / ulp(min(NEXT_TO_ZERO, Fraction(2) ** (binade - 53)) / 2) for binade, slip in slips.items())


def binades_near_zero():
    return [(Fraction(2) ** e, Fraction(2) ** (e + 1)) for e in range(-60, exponent_of(NEAR_ZERO))]


def bound_near_zero(kernel, y, rests, slip_in_units):
    """For |r| below NEAR_ZERO, where the reduction rounds once, last: what went before are multiples of 2^-52, the third
    piece's product is one of 2^-68. In ulp of sin R: the rounding of r, the slip, the polynomial, its rounding. Half a
    unit of r or of y is a whole one of sin R across a power of two."""
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
