"""The common base of pictures and pages."""

from __future__ import annotations

import os

from . import _lvdata
from ._paths import file_name


class Saved:
    """A text that is a whole document, and can be written into a file."""

    __slots__ = ("_text",)

    def __init__(self, text: str) -> None:
        self._text = text

    def save(self, path: str | os.PathLike[str]) -> None:
        """Writes it into a file, in UTF-8. An existing file is replaced in one step, or left unchanged."""
        _lvdata.write_file(file_name(path), self._text.encode())

    def __str__(self) -> str:
        return self._text

    def __repr__(self) -> str:
        return f"<{type(self).__name__} of {len(self._text)} characters>"

    def __eq__(self, other: object) -> bool:
        return type(other) is type(self) and str(other) == self._text

    def __hash__(self) -> int:
        return hash(self._text)
