"""Pages of HTML about monitors."""

from __future__ import annotations

import os
from collections.abc import Iterable, Sequence
from html import escape
from typing import NamedTuple, TypedDict

from . import _lvdata
from ._errors import ParseError
from ._pictures import listed
from ._saved import Saved
from ._sources import Source, limits_name, mode_text, text_argument, text_of, units_of


class PageEntry(TypedDict):
    """The line of a monitor in the index of a fleet."""

    page: str  #: The file name of its page.
    name: str
    serial: str
    model: str
    when: str  #: The time of its latest document.
    passed: int  #: Figures within their limits,
    failed: int  #: figures that are not,
    not_available: int  #: and limits without a figure.
    worst_mean: str  #: The greatest mean ΔE00 of the modes, or why there is none.
    findings: int  #: How many there are in the latest document.
    documents: int  #: How many documents the page is made of.


class Report(Saved):
    """A page of HTML. Notebooks show it in a frame of its own."""

    __slots__ = ()

    @property
    def html(self) -> str:
        """The whole document."""
        return self._text

    def _repr_html_(self) -> str:
        return (
            f'<iframe srcdoc="{escape(self._text)}" sandbox="allow-scripts" '
            'style="width: 100%; height: 40em; border: 0"></iframe>'
        )


def report(
    sources: Source | Iterable[Source],
    *,
    limits: str | os.PathLike[str] = "default",
    mode: int | None = None,
    title: str = "",
    date: str = "",
    y_unit: str = "",
    map_unit: str = "",
    grid: int = 0,
) -> Report:
    """The page of a monitor: the same as `lvdata report`. It shows the latest document in full, and the history.

    :param sources: documents of one monitor, in any order
    :param limits: the limits for the figures: the name of a limit set, or a file
    :param mode: the index of the only colour mode to include; None: all
    :param title: the heading; empty: the name of the monitor
    :param date: a date to print; empty: none
    :param y_unit: the unit of Y; the records do not state it
    :param map_unit: the unit of the entries of candela maps
    :param grid: the entries per row of a candela map; 0: not known
    :raises ValueError: for unknown limits, and without any document
    :raises ParseError: for a document that cannot be read, does not describe a monitor, is about a different monitor,
        or lacks the mode
    """
    form = _form({"limits": limits, "mode": mode, "date": date}, title)
    return Report(_page(listed(sources), form, units_of(y_unit, map_unit, grid))[0])


def _page(sources: Sequence[Source], form: _lvdata.ReportForm, units: tuple[str, str, int]) -> tuple[str, PageEntry]:
    """The page, and its entry without the name of the page. The latest document is read twice."""
    monitor = _lvdata.MonitorSources(units, False)
    for each in sources:
        monitor.add(*text_of(each))
    return _lvdata.page(monitor, text_of(sources[monitor.latest()]).text if sources else b"", form)


# The steps of a fleet report. All results can be pickled.


class MonitorKey(NamedTuple):
    """What a document says about its monitor: enough to group the documents of a fleet."""

    identity: str  #: Identifies the monitor; empty: not known.
    when: str  #: The time of the latest calibration, as the record has it.
    name: str
    serial: str
    uuid: str


#: A file, and what it held when it was first read.
KnownDocument = tuple[str, MonitorKey]


class MonitorPage(NamedTuple):
    """The page of one monitor, and what it is made of."""

    page: str  #: Its file name, "ed24-1234.html".
    documents: list[KnownDocument]  #: In the order of time.


class Page(NamedTuple):
    """The page of one monitor."""

    html: str
    entry: PageEntry  #: Its line in the index.


class PageOptions(TypedDict, total=False):
    """How the pages of a fleet are made: the arguments of `report` of the same names."""

    limits: str | os.PathLike[str]
    mode: int | None
    date: str
    y_unit: str
    map_unit: str
    grid: int


def monitor_key(file: str) -> MonitorKey:
    """Reads a document and returns its monitor. Raises OSError and ParseError."""
    return MonitorKey(*_lvdata.monitor_key(*text_of(file)))


def monitor_pages(documents: Sequence[KnownDocument]) -> list[MonitorPage]:
    """Groups documents by monitor, in the order of the index."""
    groups = _lvdata.monitor_groups([tuple(key) for _, key in documents])
    return [MonitorPage(page, [documents[place] for place in places]) for page, places in groups]


def page_of(monitor: MonitorPage, options: PageOptions) -> Page:
    """The page of one monitor and its entry in the index, as `lvdata report -o FOLDER/` makes them.

    :raises ParseError: also for a document that changed since it was first read
    """
    sources = _lvdata.MonitorSources(_units(options), False)
    latest = b""
    for file, key in monitor.documents:
        latest, name = text_of(file)
        if MonitorKey(*_lvdata.monitor_key(latest, name)) != key:
            raise ParseError("changed while it was read", None, file)
        sources.add(latest, name)
    html, entry = _lvdata.page(sources, latest, _form(options, ""))
    entry["page"] = monitor.page
    return Page(html, entry)


def index_page(entries: Sequence[PageEntry], options: PageOptions, title: str) -> str:
    """The page with a table of all monitors, in the order of the entries."""
    return _lvdata.index_page(list(entries), _form(options, title))


def _form(options: PageOptions, title: str) -> _lvdata.ReportForm:
    limits = limits_name(options.get("limits", "default"))
    date = text_argument("date", options.get("date", ""))
    return _lvdata.ReportForm(text_argument("title", title), date, mode_text(options.get("mode")), limits)


def _units(options: PageOptions) -> tuple[str, str, int]:
    return units_of(options.get("y_unit", ""), options.get("map_unit", ""), options.get("grid", 0))
