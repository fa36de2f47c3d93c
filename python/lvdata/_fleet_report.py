"""Reports of fleets: pages that workers write, and the index."""

from __future__ import annotations

import os
from dataclasses import dataclass
from typing import Any, Literal, NamedTuple

from . import _lvdata
from ._errors import ParseError
from ._fleet_graph import in_order
from ._fleet_jobs import DOCUMENTS_PER_TASK, Paths, batches, collects, handed_over, jobs_of
from ._fleet_parts import BadDocument, Entry, bad_document
from ._fleet_tasks import read_each
from ._reports import (
    KnownDocument,
    MonitorPage,
    PageEntry,
    PageOptions,
    index_page,
    monitor_key,
    monitor_pages,
    page_of,
)
from ._sources import limits_name, units_of

#: A page takes ten times as long as reading its document.
PAGES_PER_TASK = 10


@dataclass(frozen=True)
class KeysJob:
    """Documents whose monitor is wanted."""

    entries: tuple[Entry, ...]


def keys_part(job: KeysJob) -> tuple[list[KnownDocument], list[BadDocument]]:
    """What all documents say about their monitors."""
    return read_each(job.entries, lambda file: (file, monitor_key(file)))


@dataclass(frozen=True)
class PagesJob:
    """Pages to be written into a folder."""

    pages: tuple[MonitorPage, ...]
    folder: str
    options: PageOptions


def write_pages(job: PagesJob) -> list[PageEntry | BadDocument]:
    """Writes the pages. Returns unreadable documents; raises `OSError` for a page that cannot be written."""
    return [_write_page(monitor, job) for monitor in job.pages]


def _write_page(monitor: MonitorPage, job: PagesJob) -> PageEntry | BadDocument:
    latest = monitor.documents[-1][0]
    try:
        page = page_of(monitor, job.options)
    except ParseError as error:
        return bad_document(error.file or latest, error)
    except (OSError, MemoryError) as error:
        return bad_document(latest, error)
    replace_page(os.path.join(job.folder, monitor.page), page.html)
    return page.entry


def replace_page(file: str, text: str) -> None:
    """Writes a page in one step. Does not overwrite a file that is not such a page."""
    reason = _lvdata.why_not_overwritten(os.fsencode(file))
    if reason:
        raise FileExistsError(f"{file}: {reason}")
    _lvdata.write_file(os.fsencode(file), text.encode("utf-8", "surrogateescape"))


class Reported(NamedTuple):
    """A report that was written."""

    pages: list[str]  #: The names of the pages in the folder, in the order of the index. It is "index.html".
    errors: list[BadDocument]  #: Documents that could not be read, and so are not in the report.


def report(
    paths: Paths, folder: str | os.PathLike[str], *, limits: str | os.PathLike[str] = "default",
    title: str = "", date: str = "", mode: int | None = None, y_unit: str = "", map_unit: str = "", grid: int = 0,
    errors: Literal["raise", "collect"] = "raise",
    client: Any = None, documents_per_task: int = DOCUMENTS_PER_TASK,
) -> Reported:
    """Writes a page of each monitor and an index into a folder: the same files as `lvdata report -o FOLDER/`.

    The workers write the pages, the caller writes the index: all must see the folder under this name. It is created
    if it does not exist; a file of another kind is not overwritten (`FileExistsError`). Without any good document
    nothing is written.

    The options are those of the command: `limits` is the name of a limit set or a file, `title` the heading of the
    index, `date` a text to print, `mode` the index of the only colour mode to include; `y_unit`, `map_unit` and `grid`
    are what you know and the records do not state. Workers read a file of limits by themselves, as they read documents.
    """
    collects(errors)
    name = os.fsdecode(limits_name(limits))
    options: PageOptions = {
        "limits": name if name in _lvdata.limit_set_names() else os.path.abspath(name), "mode": mode, "date": date,
        "y_unit": y_unit, "map_unit": map_unit, "grid": grid,
    }
    units_of(y_unit, map_unit, grid)  # this and the next line refuse wrong arguments before anything is read
    index_page([], options, title)
    known, bad = _known_documents(paths, documents_per_task, client)
    if not known:
        return handed_over(Reported([], bad), bad, errors)
    target = os.path.abspath(folder)
    os.makedirs(target, exist_ok=True)
    entries: list[PageEntry] = []
    jobs = [PagesJob(pages, target, options) for pages in batches(monitor_pages(known), PAGES_PER_TASK)]
    for written in in_order(write_pages, jobs, client):
        for each in written:
            if isinstance(each, BadDocument):
                bad.append(each)
            else:
                entries.append(each)
    replace_page(os.path.join(target, "index.html"), index_page(entries, options, title))
    return handed_over(Reported([entry["page"] for entry in entries], bad), bad, errors)


def _known_documents(
    paths: Paths, documents_per_task: int, client: Any
) -> tuple[list[KnownDocument], list[BadDocument]]:
    known: list[KnownDocument] = []
    bad: list[BadDocument] = []
    for found, errors in in_order(keys_part, jobs_of(paths, documents_per_task, KeysJob), client):
        known += found
        bad += errors
    return known, bad
