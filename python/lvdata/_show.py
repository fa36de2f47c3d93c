"""Elements as readable text, and as dicts."""

from __future__ import annotations

from collections.abc import Sequence
from typing import Any

#: How much of arrays, rows and texts is shown, and how deep.
MOST_NUMBERS = 6
MOST_ROWS = 3
MOST_CHARACTERS = 60
MOST_LEVELS = 2


def shown_element(element: Any, level: int = 0) -> str:
    """`Brightness(type='Value', value=140)`: what is set, shortened."""
    suffix = ".raw" if element._raw else ""
    name = type(element).__qualname__.removesuffix(".Raw") + suffix
    if level >= MOST_LEVELS:
        return f"{name}(...)"
    values = ((each, getattr(element, each)) for each in element._names)
    shown = (f"{each}={shown_value(value, level + 1)}" for each, value in values if is_set(value))
    return f"{name}({', '.join(shown)})"


def is_set(value: Any) -> bool:
    """Whether there is anything to show."""
    if hasattr(value, "_names"):
        return not is_group(value) or any(getattr(value, name) is not None for name in value._names)
    return value is not None and not (is_rows(value) and len(value) == 0)


def is_group(value: Any) -> bool:
    return hasattr(value, "_owner_id")


def is_rows(value: Any) -> bool:
    return isinstance(value, Sequence) and not isinstance(value, str)


def shown_value(value: Any, level: int) -> str:
    if hasattr(value, "_names"):
        return shown_element(value, level)
    if hasattr(value, "tolist"):
        return shown_numbers(value)
    if is_rows(value):
        return shown_rows(value, level)
    if isinstance(value, str) and len(value) > MOST_CHARACTERS:
        return repr(value[:MOST_CHARACTERS] + "...")
    return repr(value)


def shown_numbers(array: Any) -> str:
    if len(array) <= MOST_NUMBERS:
        return repr(array.tolist())
    first = ", ".join(map(repr, array[: MOST_NUMBERS - 1].tolist()))
    return f"[{first}, ..., {array[-1].item()!r}]"


def shown_rows(rows: Any, level: int) -> str:
    shown = [shown_element(row, level) for row in rows[:MOST_ROWS]]
    return f"[{', '.join(shown + ['...'] * (len(rows) > MOST_ROWS))}]"


def as_plain(value: Any) -> Any:
    """A value as dicts, lists, and what Python has itself."""
    if hasattr(value, "to_dict"):
        return value.to_dict()
    if hasattr(value, "tolist"):
        return value.tolist()
    return [row.to_dict() for row in value] if is_rows(value) else value
