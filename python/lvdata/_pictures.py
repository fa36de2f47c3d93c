"""Pictures of monitors, as SVG."""

from __future__ import annotations

import os
from collections.abc import Iterable

from . import _lvdata
from ._elements import Record
from ._saved import Saved
from ._sources import Source, limits_name, mode_text, text_argument, text_of, units_of


class Picture(Saved):
    """A picture as SVG. Notebooks show it."""

    __slots__ = ()

    @property
    def svg(self) -> str:
        """The whole document."""
        return self._text

    def _repr_svg_(self) -> str:
        return self._text


def listed(sources: Source | Iterable[Source]) -> list[Source]:
    """One source, or several, as a list."""
    if isinstance(sources, (str, bytes, os.PathLike, Record)):
        return [sources]
    return list(sources)


def plot(
    sources: Source | Iterable[Source],
    picture: str = "gamut",
    *,
    plane: str | None = None,
    mode: int | None = None,
    limits: str | os.PathLike[str] | None = None,
    figure: str | None = None,
    y_unit: str = "",
    map_unit: str = "",
    grid: int = 0,
) -> Picture:
    """Draws a picture of a monitor: the same as `lvdata plot`.

    :param sources: a document; for "history" several of one monitor
    :param picture: "gamut", "tone", "balance", "lut", "uniformity", "brightness", "six-colours", "patches", "history"
    :param plane: of gamut: "xy" or "uv" (default)
    :param mode: the index of the colour mode; None: the first with a calibration result
    :param limits: of patches and history: the name or the file of the limits to draw
    :param figure: of history: the key of the figure; None: "white_delta_uv"
    :param y_unit: the unit of Y; the records do not state it
    :param map_unit: the unit of the entries of candela maps
    :param grid: the entries per row of a candela map; 0: not known
    :raises ValueError: for an unknown name; the message lists the known ones
    :raises ParseError: for a document that cannot be read, does not describe a monitor, or is about a different monitor
    """
    name = None if limits is None else limits_name(limits)
    request = _lvdata.PictureRequest(
        text_argument("picture", picture),
        mode_text(mode),
        None if plane is None else text_argument("plane", plane),
        name,
        None if figure is None else text_argument("figure", figure),
    )
    documents = listed(sources)
    if len(documents) != 1 and not request.is_history:
        raise ValueError("all pictures but history take one document")
    monitor = _lvdata.MonitorSources(units_of(y_unit, map_unit, grid), not request.is_history)
    for each in documents:
        monitor.add(*text_of(each))
    return Picture(monitor.picture(request))
