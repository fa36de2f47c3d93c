"""Documents of a fleet: where they are found, and those that cannot be read. Nothing here knows Dask."""

from __future__ import annotations

import os
from typing import Iterable, Iterator, NamedTuple, Union

from ._errors import ParseError
from ._scan import walk

Path = Union[str, "os.PathLike[str]"]


class BadDocument(NamedTuple):
    """A document that could not be read: what `ParseError` says of it, as plain values."""

    file: str  #: Its name as it was found. For a folder that could not be read, the name of the folder.
    line: int | None  #: The line of the error, counted from 1; None when no line applies.
    reason: str  #: What is wrong, in a few words.

    def error(self) -> ParseError:
        """The exception that says the same."""
        return ParseError(self.reason, self.line, self.file)


#: A document to read, or one that is already known to be unreadable.
Entry = Union[str, BadDocument]


def documents(paths: Path | Iterable[Path]) -> Iterator[Entry]:
    """The documents of files and folders, as `lvdata.documents` finds them."""
    for found in walk(paths):
        if isinstance(found, bytes):
            yield os.fsdecode(found)
        else:
            yield bad_document(os.fsdecode(found.filename), found)


def reason_of(error: BaseException) -> str:
    """What is wrong, without the name of the file."""
    if isinstance(error, ParseError):
        return error.reason
    if isinstance(error, MemoryError):
        return "out of memory"
    return getattr(error, "strerror", None) or str(error)


def bad_document(file: str, error: BaseException) -> BadDocument:
    """Why that document could not be read."""
    return BadDocument(file, error.line if isinstance(error, ParseError) else None, reason_of(error))
