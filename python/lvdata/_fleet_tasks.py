"""What workers do for `lvdata.fleet`: functions that take a job, which has file names and the kind of result.

They depend only on the job and the files, so a job can be repeated when a worker dies. A job is one
object and not a list, so that Dask does not search its names for keys of other tasks.
"""

from __future__ import annotations

import importlib
import json
from dataclasses import dataclass
from typing import Any, Callable, NamedTuple, Sequence, Tuple, TypeVar

from . import _lvdata
from ._analysis import check, tables
from ._errors import ParseError
from ._fleet_parts import BadDocument, Entry, bad_document
from ._sources import text_of

T = TypeVar("T")

#: The pandas types of the columns of tables. All of them allow missing values.
DTYPES = {"text": "string", "integer": "Int64", "fraction": "Float64"}

#: The columns of findings, named as in `lvdata check --format json`.
FINDING_VALUES = {
    "file": "text", "id": "text", "severity": "text", "line": "integer", "path": "text", "message": "text"
}

#: The columns of bad documents.
ERROR_VALUES = {"file": "text", "line": "integer", "reason": "text"}

#: The id for a document that could not be read; it is not a rule.
UNREADABLE = "unreadable"


@dataclass(frozen=True)
class TableJob:
    """Documents whose table rows are wanted."""

    entries: tuple[Entry, ...]
    table: str
    form: str = "jsonl"  # of a text: "csv" or "jsonl"
    collects: bool = False  # bad documents; otherwise the first one raises
    begins: bool = False  # whether it is the first part, which begins with the header of CSV


@dataclass(frozen=True)
class CheckJob:
    """Documents to check."""

    entries: tuple[Entry, ...]
    ignore: tuple[str, ...]
    roundtrip: bool


class Part(NamedTuple):
    """The result of a job: its data, and the documents that could not be read."""

    data: Any
    errors: Any  # a list of `BadDocument`, or a DataFrame of them beside a DataFrame


def read_each(entries: tuple[Entry, ...], read: Callable[[str], T]) -> tuple[list[T], list[BadDocument]]:
    """The result of `read` for each document, and the documents that cannot be read."""
    results: list[T] = []
    errors: list[BadDocument] = []
    for entry in entries:
        if isinstance(entry, BadDocument):
            errors.append(entry)
            continue
        try:
            results.append(read(entry))
        except (ParseError, OSError, MemoryError) as error:
            errors.append(bad_document(entry, error))
    return results, errors


def text_bytes(job: TableJob) -> Part:
    """The rows of all documents as one text."""
    as_json = job.form == "jsonl"
    texts, errors = read_each(job.entries, lambda file: _lvdata.rows_text(*text_of(file), job.table, as_json))
    if errors and not job.collects:
        raise errors[0].error()
    return Part(b"".join(texts), errors)


def text_part(job: TableJob) -> Part:
    """The same as the only item of a list, as a partition of a Bag must be; the first part with the header."""
    text, errors = text_bytes(job)
    return Part([(header(job.table, job.form) if job.begins else b"") + text], errors)


def row_part(job: TableJob) -> Part:
    """The rows of all documents as dictionaries."""
    text, errors = text_bytes(job)
    return Part(json.loads(b"[" + text.rstrip(b"\n").replace(b"\n", b",") + b"]"), errors)


def table_part(job: TableJob) -> Part:
    """The rows of all documents as a DataFrame."""
    rows, errors = row_part(job)
    return Part(frame_of(rows, values_of(job.table)), frame_of_errors(errors))


def check_part(job: CheckJob) -> Part:
    """The findings of all documents as a DataFrame, with a row for each document that cannot be read."""
    rows: list[dict[str, Any]] = []
    for entry in job.entries:
        found, errors = read_each((entry,), lambda file: check(file, ignore=job.ignore, roundtrip=job.roundtrip))
        for finding in found[0] if found else []:
            rows.append(finding._asdict())
        for bad in errors:
            rows.append({**bad._asdict(), "id": UNREADABLE, "severity": "error", "path": None, "message": bad.reason})
    return Part(frame_of(rows, FINDING_VALUES), None)


def values_of(table: str) -> dict[str, str]:
    """What each column of a table holds: a key of `DTYPES`."""
    return {column.name: column.values for column in tables()[table].columns}


def frame_of(rows: list[dict[str, Any]], values: dict[str, str]) -> Any:
    """A DataFrame of rows. The columns and their types are the same without any row."""
    pandas: Any = importlib.import_module("pandas")  # late, since not every job needs it; it has no types

    return pandas.DataFrame(
        {name: pandas.array([row[name] for row in rows], dtype=DTYPES[kind]) for name, kind in values.items()}
    )


def frame_of_errors(errors: list[BadDocument]) -> Any:
    """A DataFrame of bad documents."""
    return frame_of([bad._asdict() for bad in errors], ERROR_VALUES)


def header(table: str, form: str) -> bytes:
    """The text before the rows."""
    return _lvdata.csv_header(table).encode() if form == "csv" else b""
