"""Where documents come from: records, files and texts."""

from __future__ import annotations

import operator
import os
from typing import NamedTuple, Union

from . import _lvdata
from ._elements import Record
from ._paths import file_name


#: A record, the path of a document, or the text of a document as bytes.
Source = Union[Record, str, "os.PathLike[str]", bytes]


class Text(NamedTuple):
    """The text of a document."""

    text: bytes
    file: bytes  #: The name of its file; empty when there is no file.


def text_of(source: Source) -> Text:
    """The text of a source. Raises OSError when a file cannot be read, ParseError when it is too large."""
    if isinstance(source, bytes):
        return Text(source, b"")
    if isinstance(source, (str, os.PathLike)):
        file = file_name(source)
        return Text(_lvdata.read_document(file), file)
    if isinstance(source, Record):
        return Text(source.to_xml(pretty=False, declaration=False).encode("utf-8", "surrogateescape"), b"")
    raise TypeError(f"a source is a record, a path or bytes, not {type(source).__name__}")


def name_of(file: bytes) -> str | None:
    """The name of a file for people; None for a document without a file."""
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
    """The known units, as the engine takes them."""
    width = operator.index(grid)
    if not 0 <= width <= 10000:
        raise ValueError(f"grid must be a number from 0 to 10000, not {width}")
    return text_argument("y_unit", y_unit), text_argument("map_unit", map_unit), width


def limits_name(limits: str | os.PathLike[str]) -> bytes:
    """The name or the path of a limit set."""
    return file_name(limits)


def text_argument(name: str, value: str) -> str:
    """The value of the argument of that name; TypeError if it is not a text, ValueError if UTF-8 cannot encode it."""
    if not isinstance(value, str):
        raise TypeError(f"{name} is a str, not {type(value).__name__}")
    try:
        value.encode()
    except UnicodeEncodeError:
        raise ValueError(f"{name} holds single surrogates") from None
    return value
