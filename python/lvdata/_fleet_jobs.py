"""Turns documents into jobs, and handles those that cannot be read."""

from __future__ import annotations

from typing import Any, Callable, Iterable, Sequence, TypeVar, Union

from . import _lvdata
from ._fleet_parts import BadDocument, Entry, Path, documents
from ._fleet_tasks import TableJob

Paths = Union[Path, Iterable[Path]]
T = TypeVar("T")

#: docs/fleets.md says how to choose another number.
DOCUMENTS_PER_TASK = 100


def batches(items: Sequence[T], size: int) -> list[tuple[T, ...]]:
    """The items in groups of that size, in order; one empty group if there are no items."""
    return [tuple(items[begin : begin + size]) for begin in range(0, max(len(items), 1), size)]


def jobs_of(paths: Paths, documents_per_task: int, make: Callable[[tuple[Entry, ...]], Any]) -> list[Any]:
    """The jobs for all documents of these paths."""
    if documents_per_task < 1:
        raise ValueError(f"documents_per_task must be at least 1, not {documents_per_task}")
    return [make(entries) for entries in batches(list(documents(paths)), documents_per_task)]


def table_jobs(paths: Paths, documents_per_task: int, table: str, form: str, errors: str) -> list[TableJob]:
    """The jobs for a table of all documents."""
    one_of("table", table, _lvdata.table_names())
    collect = collects(errors)
    return jobs_of(paths, documents_per_task, lambda entries: TableJob(entries, table, form, collect))


def one_of(what: str, value: str, choices: Sequence[str]) -> str:
    """The value; `ValueError` when it is not one of the choices."""
    if value not in choices:
        raise ValueError(f"{what} is {value!r}, but must be one of: {', '.join(choices)}")
    return value


def form_name(form: str) -> str:
    """The form of a text; `ValueError` when there is no such form."""
    return one_of("form", form, ["csv", "jsonl"])


def collects(errors: str) -> bool:
    """Whether bad documents are collected; `ValueError` when it is not a way to handle them."""
    return one_of("errors", errors, ["raise", "collect"]) == "collect"


def handed_over(result: T, bad: Sequence[BadDocument], errors: str) -> T:
    """The result; raises for the first bad document unless they are collected."""
    if bad and not collects(errors):
        raise bad[0].error()
    return result
