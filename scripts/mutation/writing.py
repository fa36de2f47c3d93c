"""Writes mutants into a source: all at once, chosen by the environment of a run, or a single one for good."""

import re

from .finding import CONSTANT, closing, masked, statements

CONSTANT_FUNCTION = re.compile(r"\bconstexpr\b[^;={]*\)[^;={]*(?:\{|(?=;))")
CONSTANT_AUTO = re.compile(r"(?:inline |static )*constexpr auto\b")


def constant_functions(code):
    """The bodies of constexpr functions, and what constants without a type are computed from: (start, end) of each."""
    for match in CONSTANT_FUNCTION.finditer(code):
        if match.group().endswith("{"):
            yield match.end(), closing(code, match.end())
    yield from ((start, end) for start, end in statements(code) if CONSTANT_AUTO.match(code, start))


def chosen(mutant, functions):
    """The expression that says whether this run is that of the mutant."""
    is_constant = any(start <= mutant.start < end for start, end in functions)
    return f"mutation::on{'AtRunTime' if is_constant else ''}({mutant.number})"


def insertions(mutants, condition):
    """(position, text) in the order of writing: where several meet, what ends comes before what begins."""
    pieces = []
    for order, mutant in enumerate(mutants):
        pieces.append((mutant.start, 1, order, mutant.before.replace("@", condition(mutant))))
        pieces.append((mutant.end, 0, -order, mutant.after.replace("@", condition(mutant))))
    return [(position, piece) for position, _, _, piece in sorted(pieces)]


def written(text, pieces, cuts=()):
    """The text with the pieces in it, and without "constexpr" where it is cut; lines stay where they are."""
    result, last = ["#include <lvdata/mutation.h>\n#line 1\n"], 0
    for position, piece in pieces:
        result += [text[last:position], piece]
        last = position + (len("constexpr") if position in cuts else 0)
    return "".join(result) + text[last:]


def with_all(text, mutants):
    """The text with all mutants. Constants that they change are computed when they are needed."""
    code = masked(text)
    functions = list(constant_functions(code))
    changed = [start for start, end in statements(code) if any(start <= each.start < end for each in mutants)]
    cuts = {start for start in changed if CONSTANT.match(code, start)}
    pieces = insertions(mutants, lambda mutant: chosen(mutant, functions))
    return written(text, sorted([(start, "const") for start in cuts] + pieces, key=lambda piece: piece[0]), cuts)


def with_one(text, mutant):
    """The text with one mutant, in every run."""
    return written(text, insertions([mutant], lambda _: "true"))
