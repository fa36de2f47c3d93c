"""Rows as a structured array of NumPy, which is imported here only."""

from __future__ import annotations

from typing import Any

import numpy

from . import _fields


def structured(rows: Any) -> Any:
    """An entry for each row, a field for each attribute; see `Rows.to_numpy`."""
    cls = _fields.classes[rows._rows.id()]
    fields = [cls.__dict__[name] for name in cls._names]
    for field in fields:
        if field.kind in ("element", "rows", "group"):
            raise TypeError(f"rows of {cls.__qualname__} hold elements ({field.name}), so there is no array of them")
    array = numpy.empty(len(rows), dtype=[entry(field, rows._raw) for field in fields])
    for field in fields:
        array[field.name] = column(rows, field)
    return array


def is_numeric(field: Any) -> bool:
    """Whether all rows have as many numbers of it."""
    return field.kind == "number" or (field.kind == "array" and len(field.lengths) == 1)


def length_of(field: Any) -> int:
    length: int = field.lengths[0] if field.kind == "array" else 1
    return length


def entry(field: Any, raw: bool) -> tuple[Any, ...]:
    """The field in a dtype."""
    if not is_numeric(field):
        return field.name, object
    number = "=f8" if not raw else "=i4" if field.is_signed else "=u4"
    return (field.name, number, (length_of(field),)) if field.kind == "array" else (field.name, number)


def column(rows: Any, field: Any) -> Any:
    """The values of all rows."""
    if is_numeric(field):
        numbers = rows._rows.column(field.index, length_of(field), rows._raw)
        return numbers if field.kind == "array" else numbers[:, 0]
    values = numpy.empty(len(rows), dtype=object)
    for index, row in enumerate(rows):
        values[index] = getattr(row, field.name)
    return values
