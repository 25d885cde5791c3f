"""What the proofs of exponentials share: base^x as 2^(n/N) base^R, with n an integer made by a shifter, R = x - n u
and u the N-th part of the base's logarithm of 2; a table of 2^(j/N), j = n mod N, times a polynomial in r, which is R
but for what rounding makes of it; and n/N whole exponents added to the result's pattern."""
from fractions import Fraction

import gmpy2

from proof import Interval, Kernel, enclose, exponent_of, gappa, gappa_each, literal, relative_error, require, ulp


class Power:
    """The parts of such a kernel: y, a row's 2^(j/N) times a polynomial of r, the row's number j being the shifted
    sum's. `table` are the operations that have the row's value."""

    def __init__(self, kernel, y, table, rows):
        self.kernel, self.y, self.table, self.rows, self.N = kernel, y, table, rows, len(rows)
        self.x, = kernel.arguments
        self.r = kernel.necks(y, self.x, besides=table)[0]

    def function_of_row(self, row):
        return {gather: literal(row) for gather in self.table} | {self.r: "r"}

    def polynomial(self):
        """What the table's entry is multiplied by, on real numbers: Sollya's text in x."""
        names = {gather: "1" for gather in self.table} | {self.r: "x"}
        return self.kernel.exact(self.y, names)


class Raised(Power):
    """Where n/N whole exponents are added to y's pattern."""

    def __init__(self, base, width):
        kernel = Kernel(base, width)
        table = kernel.all("gather")
        rows, row = kernel.entries(table[0])
        pattern, mask = kernel.constant_of(row, "and")
        self.shifted = kernel.bits_of(pattern)
        index_bits = len(rows).bit_length() - 1
        require(len(rows) == mask + 1 == 1 << index_bits, "the table has a row for each of N fractions")

        a, b = kernel.operands(kernel.bits_of(kernel.result), "add")
        mantissa, raised = (a, b) if kernel.name(b) == "shift_left" else (b, a)
        whole, = kernel.operands(raised, "shift_left", str(52 - index_bits))
        pattern, kept = kernel.constant_of(whole, "and")
        same = kernel.same(kernel.bits_of(pattern), self.shifted)
        require(same and kept == -len(rows), "n/N whole exponents are added")
        super().__init__(kernel, kernel.bits_of(mantissa), table, rows)

        self.n = next(i for i in kernel.users(self.shifted) if kernel.name(i) == "subtract")


def reduction(power, scale, n, chain, unit, limit):
    """r = (x - n head) - n tail, for n next to x scale as chain(names) says and R = x - n unit: the largest |r| and
    where r - R lies. The product with the head and the first difference are exact."""
    kernel = power.kernel
    s, tail_product = kernel.operands(power.r, "subtract")
    head_product = kernel.operands(s, "subtract")[1]
    (n1, head), (n2, tail) = kernel.constant_of(head_product, "multiply"), kernel.constant_of(tail_product, "multiply")
    require(kernel.operands(s)[0] == power.x and n1 == n2 == n, "r is what two multiples of n leave of x")
    names = {power.x: "x"}
    steps = kernel.rounded(power.r, names)
    n_, s_, r_, head_, tail_ = names[n], names[s], names[power.r], names[head_product], names[tail_product]
    C, H, T = map(literal, (scale, head, tail))
    smallest = Fraction(2) ** exponent_of(unit.low / 2)
    exact = f"{head_} - {n_} * {H}", f"{s_} - (x - {head_})"
    answers = gappa(f"""x = rnd(x_);
{steps}
R = x - {n_} * u;
{{ |x| in [{literal(smallest)}, {literal(limit)}] /\\ u in [{literal(unit.low)}, {literal(unit.high)}]
   -> {n_} - x * {C} in ? /\\ {exact[0]} in ? /\\ {exact[1]} in ? /\\ {r_} in ? /\\ {r_} - R in ? }}
{n_} - x * {C} -> {chain(names)};
x - {head_} -> ({exact[0]}) * (-1) + (x * {C} - {n_}) / {C} + {n_} * (1 / {C} - {H});
{r_} - R -> ({r_} - ({s_} - {tail_})) + ({exact[1]}) - ({exact[0]}) - ({tail_} - {n_} * {T}) + {n_} * ((u - {H}) - {T});
""")
    require(all(answers[e].magnitude == 0 for e in exact), "the first steps of the reduction are exact")
    # Nearer to 0, n = 0 and r = x.
    require(smallest * scale < Fraction(1, 2), "n = 0 for the smallest arguments")
    return max(answers[r_].magnitude, smallest), answers[f"{r_} - R"]


def bound(power, function, base_to, rest_bound, rest_error):
    """The error of the result in ulp, row by row, and the worst row. |r| is at most rest_bound and r - R within
    rest_error; the base's powers are `function` of x to Sollya, and base_to(x) encloses them."""
    shape = relative_error(power.polynomial(), function, -rest_bound, rest_bound)
    spread, slip = base_to(Interval(-rest_bound, rest_bound)), base_to(rest_error)
    questions = []
    for row in power.rows:
        questions.append(power.kernel.rounding_question(power.y, power.function_of_row(row), "r = rnd(r_);\n",
                                                        f"|r| <= {literal(rest_bound)}"))
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
