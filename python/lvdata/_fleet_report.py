"""Reports of fleets: pages that workers write, and the index."""

from __future__ import annotations

import os
from dataclasses import dataclass, replace
from typing import Any, Literal, NamedTuple, Tuple

from . import _fleet_parts as parts
from ._errors import ParseError
from ._fleet_graph import in_order
from ._fleet_jobs import DOCUMENTS_PER_TASK, Paths, batches, collects, handed_over, jobs_of
from ._fleet_parts import BadDocument, Entry
from ._fleet_tasks import read_each

#: A page takes ten times as long as reading its document.
PAGES_PER_TASK = 10

#: What decides the place of a document in a report: identity, time, name, serial number and UUID.
Facts = Tuple[bytes, bytes, bytes, bytes, bytes]


@dataclass(frozen=True)
class FactsJob:
    """Documents of which the facts are wanted."""

    entries: tuple[Entry, ...]


def facts_part(job: FactsJob) -> tuple[list[tuple[str, Facts]], list[BadDocument]]:
    """The facts of all documents."""
    return read_each(job.entries, lambda file: (file, parts.compiled.fleet_document(parts.text_of(file))))


@dataclass(frozen=True)
class PageForm:
    """How pages are made: the arguments of the compiled page maker."""

    title: str
    date: str
    mode: str | None
    limits: str
    limits_text: bytes
    y_unit: str
    map_unit: str
    grid: int

    def maker(self) -> Any:
        """A new page maker. `ParseError` when the limits are wrong."""
        return parts.compiled.PageMaker(
            self.title, self.date, self.mode, self.limits, self.limits_text, self.y_unit, self.map_unit, self.grid
        )


@dataclass(frozen=True)
class PagesJob:
    """Pages to be written into a folder: of each its name, and the documents of its monitor in the order of time."""

    pages: tuple[tuple[str, tuple[tuple[str, Facts], ...]], ...]
    folder: str
    form: PageForm


class PageLine(NamedTuple):
    """A page that was written, with its line for the index."""

    page: str
    entry: tuple[Any, ...]


def write_pages(job: PagesJob) -> list[PageLine | BadDocument]:
    """Writes the pages. What cannot be read comes back; what cannot be written is an `OSError`."""
    return [_write_page(page, documents, job) for page, documents in job.pages]


def _write_page(page: str, documents: tuple[tuple[str, Facts], ...], job: PagesJob) -> PageLine | BadDocument:
    maker = job.form.maker()
    file = documents[-1][0]
    try:
        for index, (file, facts) in enumerate(documents):
            is_latest = index == len(documents) - 1
            if maker.add(os.fsencode(file), parts.text_of(file), is_latest) != facts:
                raise ParseError("changed while it was read")
        text = maker.page()
    except (ParseError, OSError, MemoryError) as error:
        return parts.bad_document(file, error)
    replace_page(os.path.join(job.folder, page), text)
    return PageLine(page, maker.entry())


def replace_page(file: str, text: bytes) -> None:
    """Writes a page in one step. A file that is not such a page stays."""
    if os.path.exists(file):
        with open(file, "rb") as stream:
            if b'<meta name="generator" content="lvdata">' not in stream.read(4096):
                raise FileExistsError(f"{file} is not overwritten, since it is not a page that lvdata made")
    parts.compiled.write_file(os.fsencode(file), text)


class Reported(NamedTuple):
    """A report that was written."""

    pages: list[str]  #: The names of the pages in the folder, in the order of the index. It is "index.html".
    errors: list[BadDocument]  #: Documents that could not be read, and so are not in the report.


def report(
    paths: Paths, folder: str | os.PathLike[str], *, limits: str | os.PathLike[str] = "default",
    title: str | None = None, date: str | None = None, mode: int | None = None, y_unit: str | None = None,
    map_unit: str | None = None, grid: int | None = None, errors: Literal["raise", "collect"] = "raise",
    client: Any = None, documents_per_task: int = DOCUMENTS_PER_TASK,
) -> Reported:
    """Writes a page of each monitor and an index into a folder: the same files as `lvdata report -o FOLDER/`.

    The workers write the pages, the caller writes the index: all must see the folder under this name. It is made when
    it is not there; a file of another kind is not overwritten (`FileExistsError`). Without any good document nothing
    is written.

    The options are those of the command: `limits` is the name of a limit set or a file, `title` the heading of the
    index, `date` a text to print, `mode` the index of the only colour mode to tell of; `y_unit`, `map_unit` and `grid`
    are what you know and the records do not say.
    """
    collects(errors)
    form = PageForm(
        title or "", date or "", None if mode is None else str(mode), os.fspath(limits), _limits_text(limits),
        y_unit or "", map_unit or "", grid or 0,
    )
    try:
        index = form.maker()
    except ParseError as error:
        raise error.in_file(os.fspath(limits)) from None
    facts, bad = _all_facts(paths, documents_per_task, client)
    if not facts:
        return handed_over(Reported([], bad), bad, errors)
    target = os.path.abspath(folder)
    os.makedirs(target, exist_ok=True)
    lines: list[PageLine] = []
    jobs = [PagesJob(pages, target, replace(form, title="")) for pages in batches(_pages(facts), PAGES_PER_TASK)]
    for written in in_order(write_pages, jobs, client):
        lines += [each for each in written if isinstance(each, PageLine)]
        bad += [each for each in written if isinstance(each, BadDocument)]
    replace_page(os.path.join(target, "index.html"), index.index(lines))
    return handed_over(Reported([line.page for line in lines], bad), bad, errors)


def _limits_text(limits: str | os.PathLike[str]) -> bytes:
    """The text of a limit set of one's own; empty for one that comes with the library."""
    if os.fspath(limits) in parts.compiled.limit_set_names():
        return b""
    with open(limits, "rb") as stream:
        return stream.read()


def _all_facts(paths: Paths, documents_per_task: int, client: Any) -> tuple[list[tuple[str, Facts]], list[BadDocument]]:
    facts: list[tuple[str, Facts]] = []
    bad: list[BadDocument] = []
    for found, errors in in_order(facts_part, jobs_of(paths, documents_per_task, FactsJob), client):
        facts += found
        bad += errors
    return facts, bad


def _pages(facts: list[tuple[str, Facts]]) -> list[tuple[str, tuple[tuple[str, Facts], ...]]]:
    """Each page with the documents of its monitor."""
    order = parts.compiled.fleet_pages([each for _file, each in facts])
    return [(page, tuple(facts[position] for position in positions)) for page, positions in order]
