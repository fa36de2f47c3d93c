"""Analysis of documents: findings, differences, figures, rows of tables."""

from __future__ import annotations

import json
import math
import operator
from collections.abc import Iterable, Mapping
from typing import Any, NamedTuple, TypedDict

from . import _lvdata
from ._sources import Source, mode_text, name_of, text_argument, text_of, units_of


#: The maximum number of listed findings per severity.
MOST_FINDINGS = 2**31 - 1


class Finding(NamedTuple):
    """Something in a document that its record does not keep unchanged, or that is probably a mistake."""

    severity: str  #: "error", "warning" or "info".
    id: str  #: Three digits, which never change: `lvdata explain` and docs/rules.md explain them.
    line: int | None  #: The line, counted from 1; None when no line applies.
    path: str  #: XPath of the element or attribute.
    message: str  #: What is wrong, and what happens to the content.
    file: str | None = None  #: The name of the file; None for a document without a file.


def check(
    source: Source, *, ignore: Iterable[str] = (), roundtrip: bool = False, most: int = 1000
) -> list[Finding]:
    """What would be lost or changed if the document was read and written back, and which values are probably a mistake.

    A text that is not XML at all is a finding, too. The findings are in the order of their lines and the same as those
    of `lvdata check --format json`.

    :param ignore: ids of rules that are skipped
    :param roundtrip: also report any difference, byte for byte, from what the record prints
    :param most: the maximum number of listed findings per severity
    :raises ValueError: for an unknown id
    :raises ParseError: for a document that exceeds the limits
    """
    ignored = known_rules(ignore)
    if not 0 <= operator.index(most) <= MOST_FINDINGS:
        raise ValueError(f"most must be a number from 0 to {MOST_FINDINGS}, not {most}")
    text, file = text_of(source)
    name = name_of(file)
    return [Finding(*each, name) for each in _lvdata.findings(text, file, ignored, bool(roundtrip), most)]


def known_rules(ids: Iterable[str]) -> list[str]:
    """The ids; ValueError for an unknown one."""
    wanted = [ids] if isinstance(ids, str) else list(ids)
    known = _lvdata.rule_ids()
    for each in wanted:
        if each not in known:
            raise ValueError(f"'{each}' is not the id of a rule; known ids: {', '.join(known)}")
    return wanted


class TableEntryChange(TypedDict, total=False):
    """The entry of an array with the largest change."""

    index: int
    before: str
    after: str
    change: str
    unit: str


class TableChange(TypedDict, total=False):
    """How the entries of an array changed, compared by position."""

    entries_before: int
    entries_after: int
    differing: int
    largest: TableEntryChange


class ColourChange(TypedDict, total=False):
    """The size of a colour difference, or why it is not known."""

    size: float | None
    reason: str
    formula: str
    observer: str
    white_before: str
    white_after: str


class Difference(NamedTuple):
    """One thing in which two records differ. Values are texts: exact decimals, or what the record holds."""

    path: str  #: XPath of the element or attribute.
    kind: str  #: "set", "cleared", "changed" or "reordered".
    before: str | None = None  #: The value in the first record; None where it has none.
    before_unit: str | None = None  #: Its unit; None where it has none.
    after: str | None = None  #: The value in the second record.
    after_unit: str | None = None  #: Its unit.
    change: str | None = None  #: Of a number the second minus the first, exactly.
    table: TableChange | None = None  #: Of an array that both have.
    duv: ColourChange | None = None  #: Of chromaticities: Δu'v'.
    de00: ColourChange | None = None  #: Of X, Y and Z: ΔE00.
    words: str = ""  #: The difference in one line without its path.

    def __str__(self) -> str:
        return f"{self.path}: {self.words}"


class Diff(list[Difference]):
    """The differences of two records, in the order of writing; empty when they are equal."""

    def __init__(
        self, differences: Iterable[Difference] = (), *, within_tolerance: int = 0, ignored: int = 0
    ) -> None:
        super().__init__(differences)
        self.within_tolerance = within_tolerance  #: How many are not listed because they are within the tolerances.
        self.ignored = ignored  #: How many are not listed because of their path.


def diff(
    before: Source, after: Source, *, tolerances: Mapping[str, float] | None = None, ignore: Iterable[str] = ()
) -> Diff:
    """Compares two records of one class, as `lvdata diff` does.

    :param tolerances: the largest difference of a kind that is not listed, such as {"de00": 0.5}
    :param ignore: paths whose differences are not listed, with everything below; "//Name" at any depth
    :raises ValueError: for an unknown kind of tolerance, and for records of different classes
    :raises ParseError: for a document that cannot be read
    """
    limits = _known_tolerances(tolerances or {})
    paths = [text_argument("ignore", each) for each in ([ignore] if isinstance(ignore, str) else ignore)]
    text, words = _lvdata.differences(text_of(before), text_of(after), limits, paths)
    found = json.loads(text)
    listed = [Difference(**each, words=line) for each, line in zip(found["differences"], words)]
    return Diff(listed, within_tolerance=found["within_tolerance"], ignored=found["ignored"])


def _known_tolerances(tolerances: Mapping[str, float]) -> list[tuple[str, float]]:
    known = _lvdata.tolerance_kinds()
    for kind, limit in tolerances.items():
        if kind not in known:
            raise ValueError(f"unknown kind of tolerance '{kind}'; known: {', '.join(known)}")
        if not math.isfinite(limit) or limit < 0:
            raise ValueError(f"'{limit}' is not a number from 0")
    return [(kind, float(limit)) for kind, limit in tolerances.items()]


def figures(
    source: Source, *, mode: int | None = None, y_unit: str = "", map_unit: str = "", grid: int = 0
) -> dict[str, Any]:
    """The figures of a monitor: what `lvdata show --json` prints, with the same digits. docs/figures.md has the keys.

    :param mode: the index of the only colour mode to include; None: all
    :param y_unit: the unit of Y, such as "cd/m²"; the records do not state it
    :param map_unit: the unit of the entries of candela maps
    :param grid: the entries per row of a candela map; 0: not known
    :raises ValueError: for a mode that does not exist
    :raises ParseError: for a document that cannot be read, or does not describe a monitor
    """
    units = units_of(y_unit, map_unit, grid)
    result: dict[str, Any] = json.loads(_lvdata.figures_text(*text_of(source), mode_text(mode), units))
    return result


class Column(NamedTuple):
    """A column of a table."""

    name: str  #: The key of the rows.
    unit: str  #: Empty for texts and ratios; "not recorded" where the records do not state it.
    meaning: str  #: In a few words.
    values: str  #: What it holds: "text", "integer" or "fraction".


class TableDescription(NamedTuple):
    """A table that documents can be turned into."""

    name: str  #: The name by which it is requested.
    rows: str  #: What each row stands for.
    columns: tuple[Column, ...]  #: In the order of the keys of a row.


def tables() -> dict[str, TableDescription]:
    """All tables by name, with their columns."""
    return {name: _table_description(name) for name in _lvdata.table_names()}


def _table_description(name: str) -> TableDescription:
    columns = tuple(Column(*each) for each in _lvdata.table_columns(name))
    return TableDescription(name, _lvdata.table_rows(name), columns)


def table(source: Source, name: str = "modes") -> list[dict[str, Any]]:
    """The rows that a document has in a table. All rows have all columns as keys; None where there is nothing.

    :param name: one of `tables()`
    :raises ValueError: for an unknown table
    :raises ParseError: for a document that cannot be read
    """
    text_argument("name", name)
    text, file = text_of(source)
    rows: list[dict[str, Any]] = json.loads(_lvdata.rows_of_text(text, file, name))
    if not file:
        for row in rows:
            row["file"] = None
    return rows
