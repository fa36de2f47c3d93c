"""Names of files."""

from __future__ import annotations

import os


def file_name(path: str | os.PathLike[str]) -> bytes:
    """The bytes of a path. Raises TypeError for anything else, ValueError for what no file can be called."""
    if not isinstance(path, (str, os.PathLike)):
        raise TypeError(f"a path is a str or an os.PathLike, not {type(path).__name__}")
    name = os.fsencode(path)
    if not name or b"\0" in name:
        raise ValueError("a path is empty" if not name else "a path holds a NUL character")
    return name
