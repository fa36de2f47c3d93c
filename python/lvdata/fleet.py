"""Fleets of documents, read by all workers of a Dask cluster, or by all cores of one machine.

    from lvdata import fleet

    table = fleet.table("/archive", "modes")  # a Dask DataFrame
    table.groupby("sensor_name").usage_hours.max().compute()

A worker gets names of files and reads them by itself, so names must mean the same files on every worker. docs/fleets.md
says how to arrange that, what a task costs, and when not to use a cluster.

`paths` is a path or several: documents, and folders with documents named *.xml at any depth. The order is that of the
command `lvdata`, and results keep it.

Bad documents need not stop the work, and are never dropped silently:

- `text`, `rows` and `table` raise `ParseError` for one of them when they are computed. With `errors="collect"` they
  return two collections: the data of all good documents, and the bad ones. Compute both at once, and documents are read
  once: `rows, errors = dask.compute(*fleet.rows(paths, "modes", errors="collect"))`.
- `write` and `report` finish with the good documents, then raise `ParseError` for the first bad one. With
  `errors="collect"` all bad ones are in what they return.
- `check` has a row for each.

`client` is a client of `distributed`. When they are given one, `text`, `rows`, `table` and `check` start to read at
once and keep the result in the memory of its workers. Without one they are lazy, like everything of Dask: computed by
the current client, or else by Dask's default scheduler. `write` and `report` always work at once.

`documents_per_task` is how many documents a worker reads in one task.
"""

from __future__ import annotations

from dataclasses import replace
from typing import Any, Callable, Literal, NamedTuple, Sequence, overload

try:
    import dask.bag
    import dask.dataframe
except ImportError as error:
    raise ImportError(
        "lvdata.fleet needs Dask: install python3-dask and python3-distributed, "
        "or with pip 'dask[dataframe]>=2022.12,<2024.3' and 'distributed>=2022.12,<2024.3'"
    ) from error

from . import _fleet_tasks as tasks
from ._analysis import known_rules
from ._fleet_graph import Tasks, started
from ._fleet_jobs import DOCUMENTS_PER_TASK, Paths, collects, form_name, jobs_of, table_jobs
from ._fleet_parts import BadDocument
from ._fleet_report import Reported, report
from ._fleet_write import Written, write

__all__ = ["BadDocument", "Collected", "Reported", "Written", "check", "report", "rows", "table", "text", "write"]

# Any is the border to Dask, which has types for a few of its functions only.
Bag = Any
DataFrame = Any
Client = Any
Errors = Literal["raise", "collect"]
Form = Literal["csv", "jsonl"]


class Collected(NamedTuple):
    """The data of good documents, and the bad ones. Made of the same tasks: compute both at once."""

    data: Any  #: A Bag or a DataFrame, as without errors="collect".
    errors: Any  #: Of the same kind: a Bag of `BadDocument`, or a DataFrame with the columns file, line, reason.


@overload
def text(
    paths: Paths, table: str, *, form: Form = ..., errors: Literal["raise"] = ..., client: Client = ...,
    documents_per_task: int = ...,
) -> Bag: ...


@overload
def text(
    paths: Paths, table: str, *, form: Form = ..., errors: Literal["collect"], client: Client = ...,
    documents_per_task: int = ...,
) -> Collected: ...


def text(
    paths: Paths, table: str, *, form: Form = "csv", errors: Errors = "raise", client: Client = None,
    documents_per_task: int = DOCUMENTS_PER_TASK,
) -> Bag | Collected:
    """The rows of a table as text, byte for byte what `lvdata convert --to FORM --table TABLE` prints.

    A Bag of bytes, one item for each task: `b"".join(bag)` is the whole. It is bytes and not str, since CSV keeps
    texts of documents as they are, also those that are not UTF-8. The first item begins with the header of CSV.
    """
    made = _table_tasks("text", tasks.text_part, paths, table, errors, documents_per_task, form_name(form))
    return _result(made.bag(0), made.bag(1), errors, client)


@overload
def rows(
    paths: Paths, table: str, *, errors: Literal["raise"] = ..., client: Client = ..., documents_per_task: int = ...
) -> Bag: ...


@overload
def rows(
    paths: Paths, table: str, *, errors: Literal["collect"], client: Client = ..., documents_per_task: int = ...
) -> Collected: ...


def rows(
    paths: Paths, table: str, *, errors: Errors = "raise", client: Client = None,
    documents_per_task: int = DOCUMENTS_PER_TASK,
) -> Bag | Collected:
    """The rows of a table as a Bag of dictionaries, with all columns as keys and None where there is nothing."""
    made = _table_tasks("rows", tasks.row_part, paths, table, errors, documents_per_task)
    return _result(made.bag(0), made.bag(1), errors, client)


@overload
def table(
    paths: Paths, table: str, *, errors: Literal["raise"] = ..., client: Client = ..., documents_per_task: int = ...
) -> DataFrame: ...


@overload
def table(
    paths: Paths, table: str, *, errors: Literal["collect"], client: Client = ..., documents_per_task: int = ...
) -> Collected: ...


def table(
    paths: Paths, table: str, *, errors: Errors = "raise", client: Client = None,
    documents_per_task: int = DOCUMENTS_PER_TASK,
) -> DataFrame | Collected:
    """The rows of a table as a Dask DataFrame.

    Columns have the types "string", "Int64" or "Float64" of pandas, all with missing values. The types are those of the
    table, not guessed from what is read.
    """
    made = _table_tasks("table", tasks.table_part, paths, table, errors, documents_per_task)
    data = made.frame(0, tasks.frame_of([], tasks.values_of(table)))
    return _result(data, made.frame(1, tasks.frame_of_errors([])), errors, client)


def check(
    paths: Paths, *, ignore: Sequence[str] = (), roundtrip: bool = False, client: Client = None,
    documents_per_task: int = DOCUMENTS_PER_TASK,
) -> DataFrame:
    """The findings of `lvdata check` as a Dask DataFrame, in the order of the documents and their lines.

    The columns are those of `lvdata check --format json`: file, id, severity, line, path, message. A document that
    cannot be read is a row with the id "unreadable" and the severity "error". `ignore` has ids of rules that are not
    looked for; with `roundtrip` it is also a finding that `lvdata format` would change the document. Of each document
    at most 1,000 findings of each severity are listed.
    """
    known_rules(ignore)
    jobs = jobs_of(paths, documents_per_task, lambda entries: tasks.CheckJob(entries, tuple(ignore), roundtrip))
    made = Tasks("check", tasks.check_part, jobs).frame(0, tasks.frame_of([], tasks.FINDING_VALUES))
    return made if client is None else started((made,), client)[0]


def _table_tasks(
    name: str, work: Callable[[tasks.TableJob], tasks.Part], paths: Paths, table: str, errors: str, size: int,
    form: str = "jsonl",
) -> Tasks:
    jobs = table_jobs(paths, size, table, form, errors)
    return Tasks(name, work, [replace(job, begins=index == 0) for index, job in enumerate(jobs)])


def _result(data: Any, bad: Any, errors: str, client: Client) -> Any:
    """Both when bad documents are collected, otherwise the data alone; being read when there is a client."""
    wanted = (data, bad) if collects(errors) else (data,)
    made = wanted if client is None else started(wanted, client)
    return Collected(*made) if collects(errors) else made[0]
