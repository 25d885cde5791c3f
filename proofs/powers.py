"""What the proofs of exponentials share: base^x as 2^(n/N) base^R, with n an integer made by a shifter, R = x - n u
and u the N-th part of the base's logarithm of 2; a table of 2^(j/N), j = n mod N, times a polynomial in r, which is R
but for what rounding makes of it; and n/N whole exponents added to the result's pattern."""
from fractions import Fraction

import gmpy2

from proof import Interval, Kernel, enclose, exponent_of, gappa, gappa_each, literal, relative_error, require, ulp


class Power:
    """The parts of such a kernel, found in what it does."""

    def __init__(self, base, width):
        kernel = self.kernel = Kernel(base, width)
        self.x, = kernel.arguments
        self.table = kernel.all("gather")
        self.rows, row = kernel.entries(self.table[0])
        pattern, mask = kernel.constant_of(row, "and")
        self.shifted = kernel.bits_of(pattern)
        self.N = int(mask) + 1
        index_bits = self.N.bit_length() - 1
        require(len(self.rows) == self.N == 1 << index_bits, "the table has a row for each of N fractions")

        a, b = kernel.operands(kernel.bits_of(kernel.result), "add")
        mantissa, raised = (a, b) if kernel.name(b) == "shift_left" else (b, a)
        whole, = kernel.operands(raised, "shift_left", str(52 - index_bits))
        pattern, kept = kernel.constant_of(whole, "and")
        require(kernel.same(kernel.bits_of(pattern), self.shifted) and kept == -self.N, "n/N whole exponents are added")
        self.y = kernel.bits_of(mantissa)

        self.scaled, self.shifter = kernel.constant_of(self.shifted, "add")
        self.n = next(i for i in kernel.users(self.shifted) if kernel.name(i) == "subtract")
        require(kernel.operands(self.n)[0] == self.shifted and kernel.value(kernel.operands(self.n)[1]) == self.shifter,
                "n is the shifted sum without its shifter")
        self.step = Fraction(2) ** (exponent_of(self.shifter) - 52)  # what a unit of the sum's last place is worth
        self.r = kernel.neck(self.y, self.x, besides=self.table)

    def function_of_row(self, row):
        return {gather: literal(row) for gather in self.table} | {self.r: "r"}

    def polynomial(self):
        """What the table's entry is multiplied by, on real numbers: Sollya's text in x."""
        names = {gather: "1" for gather in self.table} | {self.r: "x"}
        return self.kernel.exact(self.y, names)


def bound(power, function, base_to, rest_bound, rest_error):
    """The error of the result in ulp, row by row, and the worst row. |r| is at most rest_bound and r - R within
    rest_error; the base's powers are `function` of x to Sollya, and base_to(x) encloses them."""
    shape = relative_error(power.polynomial(), function, rest_bound)
    spread, slip = base_to(Interval(-rest_bound, rest_bound)), base_to(rest_error)
    questions = []
    for row in power.rows:
        names = power.function_of_row(row)
        exact = power.kernel.exact(power.y, dict(names))
        text = power.kernel.rounded(power.y, names)
        questions.append(f"r = rnd(r_);\n{text}exact = {exact};\n"
                         f"{{ |r| <= {literal(rest_bound)} -> {names[power.y]} - exact in ? }}\n")
    largest, where = Fraction(0), None
    for j, (row, rounding) in enumerate(zip(power.rows, gappa_each(questions))):
        fraction = enclose(gmpy2.exp2, Fraction(j, power.N))
        true = fraction * spread
        # The table, the polynomial and R - r, as a part of the exact result.
        relative = (1 + shape) * (row / fraction) * slip - 1
        error = relative.magnitude * true.high + rounding.magnitude
        # The unit of the row's lowest result serves all of it.
        in_units = error / ulp(true.low)
        if in_units > largest:
            largest, where = in_units, j
    return largest, where
