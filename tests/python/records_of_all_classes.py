"""What the tests of records share: all classes, found by introspection, and values for every attribute."""

from __future__ import annotations

import os
from collections.abc import Iterator
from pathlib import Path
from typing import Any

import lvdata
from lvdata import _fields

SAMPLES = Path(os.environ["LVDATA_SAMPLES_DIR"])
GOLDEN = SAMPLES.parent.parent / "tests" / "golden"
CLASSES: list[Any] = list(_fields.classes)
RECORDS: list[Any] = list(lvdata.record_classes.values())
KINDS_OF_VALUES = ("text", "boolean", "number", "array", "number or array")


def documents() -> list[Path]:
    """All documents that records can read."""
    golden = [path for path in GOLDEN.glob("*/*.xml") if not path.name.endswith(".expected.xml")]
    return sorted(golden) + sorted(SAMPLES.glob("*.xml"))


def fields_of(cls: Any) -> Iterator[tuple[str, Any]]:
    """The attributes of a class, by name, with what they are."""
    for name in cls._names:
        yield name, cls.__dict__[name]


def values_of(field: Any, raw: bool) -> list[Any]:
    """Values that the attribute can have: of each kind one, none of them that of a fresh object."""
    decimal = 0.25 if field.has_decimals and not raw else 25
    several = [decimal + each for each in range(max(field.lengths, default=3))]
    return {
        "text": ["a <text> & é"],
        "boolean": [True],
        "number": [decimal],
        "array": [several],
        "number or array": [decimal, several],
    }[field.kind]


def is_same(value: Any, other: Any) -> bool:
    """Whether what was set is what is read: numbers, and arrays of any type."""
    return (value.tolist() if hasattr(value, "tolist") else value) == other


def elements_in(element: Any) -> Iterator[Any]:
    """An element and all that are in it."""
    yield element
    for name, field in fields_of(type(element)):
        value = getattr(element, name)
        children = value if field.kind == "rows" else [value] if field.kind == "element" and value is not None else []
        for child in children:
            yield from elements_in(child)


def full_element(cls: Any, raw: bool = False) -> Any:
    """An element of which everything is set, with two rows in each list."""
    element = cls()
    view = element.raw if raw else element
    for name, field in fields_of(cls):
        if field.kind == "rows":
            setattr(view, name, [full_element(CLASSES[field.nested], raw) for _ in range(2)])
        elif field.kind == "element":
            setattr(view, name, full_element(CLASSES[field.nested], raw))
        elif field.kind == "group":
            for member in field.members:
                setattr(getattr(view, name), member.name, values_of(member, raw)[0])
        elif not is_constant(cls, name):
            setattr(view, name, values_of(field, raw)[-1])
    return element


def is_constant(cls: Any, name: str) -> bool:
    """Whether the attribute has one value only."""
    return "Always" in (cls.__dict__[name].__doc__ or "")
