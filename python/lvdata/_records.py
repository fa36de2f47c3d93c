"""The classes of records and of their elements, made from the library's descriptions."""

from __future__ import annotations

import os
import warnings
from typing import Any

from . import _fields, _lvdata
from ._elements import Element, Group, RawView, Record
from ._paths import file_name
from ._rows import Rows

__all__ = ["Element", "Group", "RawView", "Record", "Rows", "from_json", "load", "loads", "record_classes"]

#: The class of a field of an element, and of its raw view, by the kind of the field.
FIELDS: dict[str, tuple[type[_fields.Field], type[_fields.Field]]] = {
    "element": (_fields.ChildField, _fields.ChildField),
    "rows": (_fields.RowsField, _fields.RowsField),
}
VALUE_FIELDS: tuple[type[_fields.Field], type[_fields.Field]] = (_fields.ValueField, _fields.ViewField)


def make_group(members: list[dict[str, Any]], owner: dict[str, Any], owner_id: int) -> _fields.GroupField:
    """The attribute for all elements of one name, with the class of its values."""
    fields = [_fields.ViewField(member, owner_id) for member in members]
    name: str = members[0]["element"]
    namespace: dict[str, Any] = {
        **{field.name: field for field in fields},
        "__slots__": (),
        "__module__": "lvdata",
        "__qualname__": f"{owner['qualified_name']}.{name}",
        "__doc__": f"The elements {name} of {owner['qualified_name']}, by their keys.",
        "_names": tuple(field.name for field in fields),
        "_owner_id": owner_id,
    }
    return _fields.GroupField(members[0]["group"], type(name, (Group,), namespace), fields)


def fields_of(description: dict[str, Any], class_id: int) -> tuple[dict[str, Any], dict[str, Any]]:
    """The attributes of an element and those of its raw view, in the order of writing."""
    natural: dict[str, Any] = {}
    raw: dict[str, Any] = {}
    for each in description["fields"]:
        group = each["group"]
        if group is None:
            kinds = FIELDS.get(each["kind"], VALUE_FIELDS)
            natural[each["name"]], raw[each["name"]] = (kind(each, class_id) for kind in kinds)
        elif group not in natural:
            members = [other for other in description["fields"] if other["group"] == group]
            natural[group] = raw[group] = make_group(members, description, class_id)
    return natural, raw


def make_class(description: dict[str, Any], class_id: int) -> type[Element]:
    """The class of an element, with that of its raw view inside."""
    name, qualified_name, parent = description["name"], description["qualified_name"], description["parent"]
    natural, raw = fields_of(description, class_id)
    common: dict[str, Any] = {"__slots__": (), "__module__": "lvdata", "_names": tuple(natural)}
    view_name = f"{qualified_name}.Raw"
    view_doc = f"{qualified_name} with numbers as they are stored."
    view = type("Raw", (RawView,), {**raw, **common, "__qualname__": view_name, "__doc__": view_doc})
    doc = f"The record {name}." if parent is None else f"The element {name} of {_fields.classes[parent].__qualname__}."
    namespace: dict[str, Any] = {
        **natural,
        **common,
        "__qualname__": qualified_name,
        "__doc__": f"{doc} Keyword arguments: {', '.join(natural)}.",
        "_id": class_id,
        "Raw": view,
    }
    for field in natural.values():
        if field.kind == "group":
            namespace[field.group.__name__] = field.group
    return type(name, (Record if parent is None else Element,), namespace)


def make_classes() -> dict[str, type[Record]]:
    """All classes of records, with the classes of their elements as attributes."""
    records: dict[str, Any] = {}
    for class_id, description in enumerate(_lvdata.classes()):
        made = make_class(description, class_id)
        _fields.classes.append(made)
        _lvdata.set_class(class_id, made)
        if description["parent"] is None:
            records[made.__name__] = made
        else:
            setattr(_fields.classes[description["parent"]], made.__name__, made)
    return records


#: The class of each record, by the name of its root element.
record_classes = make_classes()
globals().update(record_classes)
__all__ += record_classes


def bytes_of(text: str | bytes) -> bytes:
    """What a document is in a file."""
    if isinstance(text, str):
        return text.encode("utf-8", "surrogateescape")
    if isinstance(text, (bytes, bytearray, memoryview)):
        return bytes(text)
    raise TypeError(f"the text of a document expected, as str or bytes, not {type(text).__name__}")


def loads(text: str | bytes) -> Any:
    """The record of an XML document; its root element determines the class.

    Raises ParseError when the text cannot be read or exceeds the limits.
    """
    return _lvdata.loads(bytes_of(text))


def load(path: str | os.PathLike[str]) -> Any:
    """The record of an XML document in a file. Raises OSError, or ParseError with the name of the file."""
    return _lvdata.load(file_name(path))


def from_json(text: str | bytes) -> Any:
    """The record of a JSON text, as `to_json` gives it.

    Raises ParseError at the first error. What the record does not keep, such as values that do not belong to the "type"
    next to them, gives a warning (UserWarning).
    """
    record, losses = _lvdata.from_json(bytes_of(text))
    for loss in losses:
        warnings.warn(loss, stacklevel=2)
    return record
