"""Where documents come from: records, files and texts."""

from __future__ import annotations

import operator
import os
from typing import NamedTuple, Protocol, Union, runtime_checkable

from . import _lvdata


@runtime_checkable
class _Record(Protocol):
    def to_xml(self, *, pretty: bool = ..., declaration: bool = ...) -> str:
        ...


#: A record, the path of a document, or the text of a document as bytes.
Source = Union[_Record, str, "os.PathLike[str]", bytes]


class Text(NamedTuple):
    """The text of a document."""

    text: bytes
    file: bytes  #: The name of its file; empty when it is in none.


def text_of(source: Source) -> Text:
    """The text of a source. Raises OSError when a file cannot be read, ParseError when it is too large."""
    if isinstance(source, bytes):
        return Text(source, b"")
    if isinstance(source, (str, os.PathLike)):
        file = file_name(source)
        return Text(_lvdata.read_document(file), file)
    if isinstance(source, _Record):
        return Text(source.to_xml(pretty=False, declaration=False).encode("utf-8", "surrogateescape"), b"")
    raise TypeError(f"a source is a record, a path or bytes, not {type(source).__name__}")


def file_name(path: str | os.PathLike[str]) -> bytes:
    """The bytes of a path. Raises TypeError for anything else, ValueError for what no file can be called."""
    if not isinstance(path, (str, os.PathLike)):
        raise TypeError(f"a path is a str or an os.PathLike, not {type(path).__name__}")
    name = os.fsencode(path)
    if not name or b"\0" in name:
        raise ValueError("a path is empty" if not name else "a path holds a NUL character")
    return name


def name_of(file: bytes) -> str | None:
    """The name of a file for people; None for a document that is in none."""
    return os.fsdecode(file) if file else None


def mode_text(mode: int | None) -> str | None:
    """The index of a colour mode as the engine takes it."""
    if mode is None:
        return None
    index = operator.index(mode)
    if index < 0:
        raise ValueError(f"{index} is not an index")
    return str(index)


def units_of(y_unit: str, map_unit: str, grid: int) -> tuple[str, str, int]:
    """What is known of units, as the engine takes it."""
    width = operator.index(grid)
    if not 0 <= width <= 10000:
        raise ValueError(f"grid is a number from 0 to 10000, not {width}")
    return y_unit, map_unit, width


def limits_name(limits: str | os.PathLike[str]) -> str:
    """The name or the path of a limit set."""
    return os.fspath(limits)
