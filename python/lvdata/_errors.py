"""The exceptions of the module."""

from __future__ import annotations


class ParseError(ValueError):
    """A document that cannot be read: what is wrong with it, and where."""

    def __init__(self, reason: str, line: int | None = None, file: str | None = None, path: str | None = None) -> None:
        super().__init__(reason, line, file, path)
        self.reason = reason  #: What is wrong, in a few words.
        self.line = line  #: The line of the error, counted from 1; None when no line applies.
        self.file = file  #: The name of the file; None for a text.
        self.path = path  #: The place in a JSON text, "asset_info.asset1"; None for XML.

    def __str__(self) -> str:
        file = "" if self.file is None else f"{self.file}: "
        line = "" if self.line is None else f"line {self.line}: "
        path = "" if self.path is None else f"{self.path}: "
        return f"{file}{line}{path}{self.reason}"
