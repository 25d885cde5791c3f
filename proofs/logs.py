"""What the proofs of logarithms share: R, the integer nearest to the processor's estimate of 1/m for m from 2^-10 to
2^-9, the row of ln(512/R) or ln(1024/R) that goes with it, and a polynomial of the rest m R - 1."""
import math
import subprocess
import sys
from fractions import Fraction

import gmpy2
import numpy as np

import lanes
from proof import TRACE, Interval, enclose, literal, report, require, sollya

# What the instruction promises of its estimate, and what narrowing its argument adds.
ESTIMATE = Fraction(3, 2 ** 13) + Fraction(1, 2 ** 23)


def ln_1p(low, high):
    return enclose(gmpy2.log1p, Interval(low, high))


def outward(low, high, unit=Fraction(1, 2 ** 80)):
    return low // unit * unit, -(-high // unit) * unit


class Rows:
    """For every R there may be, its row and whether the exponent is one less for it."""

    def __init__(self, kernel, R, row):
        upper, self.R = kernel.only("greater", "i32"), R
        integers = np.arange(512, 1025)
        given = {R: integers.astype(np.float32)}
        require(list(kernel.lanes(row, given)) == list(range(513)), "a row for each R")
        self.lower_half = dict(zip(integers.tolist(), (kernel.lanes(upper, given) == 0).tolist()))

    def __iter__(self):
        return iter(self.lower_half)

    def whole(self, integer):
        """What R's rest is a rest of: m R is about 1 where 512 or 1024 times m is whole/R."""
        return 512 if self.lower_half[integer] else 1024

    def require_exponent(self, kernel, x, k):
        """That m is x but for its exponent, from 2^-10 to 2^-9, and k ln 2 what is left of ln x beside a row and a
        rest: for every exponent with every R, and m for each bit of it, whose operations know no other bit's."""
        m, = kernel.operands(kernel.only("reciprocal_estimate"))
        if kernel.name(m) == "convert":
            m, = kernel.operands(m)
        lane = kernel.operations[x]["lane"]
        low, count = (52, 2046) if lane == "f64" else (23, 254)
        fields = [0, 2 ** low - 1, *(1 << bit for bit in range(low))]
        sample = lanes.of_patterns(lane, [e << low | field for e in range(1, count + 1) for field in fields])
        significands = kernel.lanes(m, {x: sample})
        (x_part, _), (m_part, m_power) = np.frexp(sample), np.frexp(significands)
        require(bool((x_part == m_part).all() and (m_power == -9).all()), "m is x but for its exponent")
        kept = kernel.constant_of(kernel.constant_of(kernel.bits_of(m), "or")[0], "and")[1]
        require(kept == 2 ** low - 1, "m is made bit by bit")
        # R by R for all exponents at once.
        sample = lanes.of_patterns(lane, [e << low for e in range(1, count + 1)])
        for integer in self:
            given = {x: sample, self.R: np.full(sample.shape, integer, dtype=np.float32)}
            # x = m 2^c, and whole is 2^9 or 2^10.
            expected = np.frexp(sample)[1] + 9 - (9 if self.whole(integer) == 512 else 10)
            require(bool((kernel.lanes(k, given) == expected).all()), f"k with R = {integer}")

    def true(self, integer):
        return enclose(gmpy2.log, Fraction(self.whole(integer), integer))


def for_any_estimate(integer):
    """Where m R - 1 lies for the m that may have this R: |R - 1/m| is at most 1/2 and what the estimate is off."""
    low = (integer - Fraction(1, 2)) / (1 + ESTIMATE)
    high = (integer + Fraction(1, 2)) / (1 - ESTIMATE)
    return integer / min(high, Fraction(1024)) - 1, integer / max(low, Fraction(512)) - 1


def reciprocals():
    """For each R the least and the largest float m for which this processor's estimate of 1/m rounds to R."""
    lines = subprocess.run([TRACE, "--reciprocals"], capture_output=True, text=True, check=True).stdout.splitlines()
    found = {}
    for R, *ends in map(str.split, lines):
        found[int(R)] = tuple(Fraction(float.fromhex(end)) for end in ends)
    require(set(found) <= set(range(512, 1025)), "R is within the table")
    return found


def this_processor():
    """The rests that this processor's estimates leave; m is a double, within half a unit of a float."""
    unit, found = Fraction(1, 2 ** 24), {}
    for R, (least, most) in reciprocals().items():
        least, most = max(least * (1 - unit), Fraction(1, 1024)), min(most * (1 + unit), Fraction(1, 512))
        found[R] = (least * R - 1, most * R - 1)
    return lambda integer: found[integer]


def polynomial_errors(polynomial, pieces):
    """How far a polynomial of r (Sollya's text in x) is from ln(1 + r), as a part of it, in each interval of r."""
    questions = (f"sup(supnorm(p, log(1 + x), [{literal(low)}; {literal(high)}], relative, 2^(-10)));\n"
                 for low, high in pieces)
    return sollya(f"p = canonical({polynomial});\n" + "".join(questions), len(pieces))


class PolynomialErrors:
    """The same in each of so many parts of where r may be."""

    def __init__(self, polynomial, widest, parts=128):
        self.widest, self.parts = Fraction(math.ceil(widest * 2 ** 30), 2 ** 30), parts
        ends = [self.widest * (2 * i - parts) / parts for i in range(parts + 1)]
        self.errors = polynomial_errors(polynomial, list(zip(ends, ends[1:])))

    def between(self, low, high):
        first, last = (int((end / self.widest + 1) * self.parts / 2) for end in (low, high))
        require(0 <= first and last <= self.parts, "r is where it may be")
        return max(self.errors[min(first, self.parts - 1):last + 1])


def report_estimates(base, bound_for):
    """The bound for every estimate that the instruction permits; with --here also that for this processor's."""
    if "--here" in sys.argv[1:]:
        bound, where = bound_for(this_processor())
        print(f"with this processor's estimates at most {float(bound):.4f} ulp ({where})")
    report(base, 16, *bound_for(for_any_estimate))
