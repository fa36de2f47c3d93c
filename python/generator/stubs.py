"""Writes the types of the classes that lvdata makes when it is imported, for mypy and editors: _records.pyi.

Usage: stubs.py FILE, with the compiled module on the path.
"""

from __future__ import annotations

import sys
from pathlib import Path
from typing import Any

from lvdata import _fields, record_classes

HEAD = '''\
# Made by stubs.py of what the library says of its records. Do not edit.
import os
from collections.abc import Iterable, Mapping
from typing import Any, final

import numpy
from numpy.typing import ArrayLike, NDArray

from ._elements import Element as Element, Group as Group, RawView as RawView, Record as Record
from ._fields import Attribute
from ._rows import Rows as Rows

_Values = Mapping[str, Any]
_Text = Attribute[str | None, str | None]
_Boolean = Attribute[bool | None, bool | None]
_Integer = Attribute[int | None, int | None]
_Number = Attribute[float | None, float | None]
_Several = ArrayLike | Iterable[float]
_Array = Attribute[NDArray[numpy.float64] | None, _Several | None]
_UnsignedArray = Attribute[NDArray[numpy.uint32] | None, _Several | None]
_SignedArray = Attribute[NDArray[numpy.int32] | None, _Several | None]
_NumberOrArray = Attribute[Any, _Several | None]
'''

TAIL = '''
__all__: list[str]
record_classes: dict[str, type[Record]]

def loads(text: str | bytes) -> Any: ...
def load(path: str | os.PathLike[str]) -> Any: ...
def from_json(text: str | bytes) -> Any: ...
'''

GIVEN = {
    "text": "str | None",
    "boolean": "bool | None",
    "array": "_Several | None",
    "number or array": "_Several | None",
}


def class_of(class_id: int) -> str:
    """The name of a class."""
    name: str = _fields.classes[class_id].__qualname__
    return name


def rows_type(name: str, raw: bool) -> str:
    view = f"{name}.Raw" if raw else name
    return f"Attribute[Rows[{view}], Iterable[{name} | {name}.Raw | _Values] | None]"


def child_type(name: str, raw: bool) -> str:
    view = f"{name}.Raw" if raw else name
    return f"Attribute[{view} | None, {name} | {name}.Raw | _Values | None]"


def type_of(field: Any, raw: bool) -> str:
    """The type of an attribute."""
    if field.kind == "element":
        return child_type(class_of(field.nested), raw)
    if field.kind == "rows":
        return rows_type(class_of(field.nested), raw)
    if field.kind == "group":
        return f"Attribute[{field.group.__qualname__}, {field.group.__qualname__} | _Values | None]"
    if field.kind == "number":
        return "_Number" if field.has_decimals and not raw else "_Integer"
    if field.kind == "array":
        return "_Array" if not raw else "_SignedArray" if field.is_signed else "_UnsignedArray"
    return {"text": "_Text", "boolean": "_Boolean", "number or array": "_NumberOrArray"}[field.kind]


def given_type(field: Any) -> str:
    """The type of a keyword argument."""
    if field.kind in ("element", "rows"):
        name = class_of(field.nested)
        row = f"{name} | {name}.Raw | _Values"
        return f"Iterable[{row}] | None" if field.kind == "rows" else f"{row} | None"
    if field.kind == "group":
        return f"{field.group.__qualname__} | _Values | None"
    if field.kind == "number":
        return "float | None" if field.has_decimals else "int | None"
    return GIVEN[field.kind]


def attributes(names: list[str], fields: dict[str, Any], raw: bool) -> list[str]:
    return [f"{name}: {type_of(fields[name], raw)}" for name in names]


def constructor(names: list[str], fields: dict[str, Any]) -> str:
    arguments = ", ".join(f"{name}: {given_type(fields[name])} = ..." for name in names)
    return f"def __init__(self, *, {arguments}) -> None: ..."


def indented(lines: list[str]) -> list[str]:
    return [f"    {line}" if line else line for line in lines]


def lines_of_group(group: Any) -> list[str]:
    """The class of the elements of one name; raw numbers are read with the same attributes."""
    fields = dict(group.__dict__)
    names = list(group._names)
    shared = [f"{name}: Attribute[NDArray[Any] | None, _Several | None]" for name in names]
    return [f"class {group.__name__}(Group):", *indented([constructor(names, fields), *shared])]


def lines_of(cls: Any, base: str) -> list[str]:
    """A class with all that are in it."""
    fields, names = dict(cls.__dict__), list(cls._names)
    body: list[str] = []
    for nested in fields.values():
        if isinstance(nested, type) and issubclass(nested, _fields.classes[0].__mro__[2]):
            body += lines_of(nested, "Element")
        elif isinstance(nested, type) and hasattr(nested, "_owner_id"):
            body += lines_of_group(nested)
    body += ["class Raw(RawView):", *indented(attributes(names, fields, True))]
    body += [constructor(names, fields), "@property", "def raw(self) -> Raw: ..."]
    return ["@final", f"class {cls.__name__}({base}):", *indented(body + attributes(names, fields, False)), ""]


def stub() -> str:
    """The text of the file."""
    lines = [line for cls in record_classes.values() for line in lines_of(cls, "Record")]
    names = ", ".join(f'"{name}"' for name in record_classes)
    public = '"Element", "Group", "RawView", "Record", "Rows", "from_json", "load", "loads", "record_classes"'
    return HEAD + "\n" + "\n".join(lines) + TAIL.replace("__all__: list[str]", f"__all__ = [{public}, {names}]")


if __name__ == "__main__":
    Path(sys.argv[1]).write_text(stub())
