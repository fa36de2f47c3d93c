"""What `lvdata.fleet` needs of the rest: the walk of folders, reading a document, checking it, the compiled part.

Nothing here knows Dask. Each function is the only door to what it calls.
"""

from __future__ import annotations

import errno
import importlib
import os
import stat
from typing import Any, Iterable, Iterator, NamedTuple, Sequence, Tuple, Union

from ._errors import ParseError

compiled: Any = importlib.import_module("lvdata._lvdata")  # Any: the compiled part has no stubs for private functions

Path = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]


class BadDocument(NamedTuple):
    """A document that could not be read: what `ParseError` says of it, as plain values."""

    file: str  #: Its name as it was found. For a folder that could not be read, the name of the folder.
    line: int | None  #: Where that was noticed, counted from 1; None when no line applies.
    reason: str  #: What is wrong, in a few words.

    def error(self) -> ParseError:
        """The exception that says the same."""
        return ParseError(self.reason, self.line, self.file)


#: A document to read, or one of which it is known already that it cannot be read.
Entry = Union[str, BadDocument]


def documents(paths: Path | Iterable[Path]) -> Iterator[Entry]:
    """The documents of files and folders, in the order of the command `lvdata`.

    Paths come in their given order. In a folder, files named *.xml and folders are taken together in the order of the
    bytes of their names. Links to folders are followed only where they are given as paths.
    """
    for path in [paths] if isinstance(paths, (str, bytes, os.PathLike)) else paths:
        name = os.fsdecode(path)
        if not name:
            raise ValueError("a path is empty")
        yield from _documents_in(name) if os.path.isdir(name) else [name]


def _documents_in(folder: str) -> Iterator[Entry]:
    is_empty = True
    for entry in _walk(folder):
        is_empty = False
        yield entry
    if is_empty:
        yield BadDocument(folder, None, "folder without files named *.xml")


def _walk(folder: str) -> Iterator[Entry]:
    try:
        with os.scandir(folder) as listing:
            entries = sorted(listing, key=lambda entry: os.fsencode(entry.name))
    except OSError as error:
        yield BadDocument(folder, None, reason_of(error))
        return
    for entry in entries:
        if entry.is_dir(follow_symlinks=False):
            yield from _walk(entry.path)
        elif entry.name.endswith(".xml") and _is_document(entry):
            yield entry.path


def _is_document(entry: os.DirEntry[str]) -> bool:
    """Also a file that cannot be opened, so that reading it says why. Not a device, a pipe or a link to a folder."""
    try:
        return stat.S_ISREG(entry.stat().st_mode)
    except OSError:
        return True


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


def text_of(file: str) -> bytes:
    """The content of a document; `ParseError` when it has more bytes than a document may have."""
    if os.path.isdir(file):
        raise IsADirectoryError(errno.EISDIR, os.strerror(errno.EISDIR), file)
    with open(file, "rb") as stream:
        return stream.read(compiled.most_bytes + 1)  # one more: then the compiled part refuses it


def rows_text(file: str, table: str, as_json: bool) -> bytes:
    """The rows of a document: lines of CSV without the header, or of JSON."""
    rows: bytes = compiled.rows_text(text_of(file), os.fsencode(file), table, as_json)
    return rows


Finding = Tuple[str, str, int, str, str]  # id, severity, line (0: none), path, message


def findings(file: str, ignore: Sequence[str], roundtrip: bool) -> list[Finding]:
    """What `lvdata check` finds in a document."""
    found: list[Finding] = compiled.check_text(text_of(file), list(ignore), roundtrip)
    return found
