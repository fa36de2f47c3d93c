"""The base classes of all elements of records in Python."""

from __future__ import annotations

import os
from collections.abc import Mapping
from typing import TYPE_CHECKING, Any, ClassVar

from . import _fields, _lvdata
from ._paths import file_name
from ._show import as_plain, is_set, shown_element

if TYPE_CHECKING:
    from typing_extensions import Self


class Named:
    """Base of everything with a fixed set of attributes: elements, their raw views, and groups."""

    __slots__ = ()

    _names: ClassVar[tuple[str, ...]] = ()
    _element: Element
    _raw: bool

    if not TYPE_CHECKING:  # since for mypy there are no other names

        def __getattr__(self, name: str) -> Any:
            if name.startswith("_"):
                raise AttributeError(f"{type(self).__qualname__} has no {name!r}")
            raise AttributeError(_fields.unknown(type(self), name))

        def __setattr__(self, name: str, value: object) -> None:
            try:
                super().__setattr__(name, value)
            except AttributeError:
                if name in self._names or name.startswith("_") or hasattr(type(self), name):
                    raise
                raise AttributeError(_fields.unknown(type(self), name)) from None

    def __repr__(self) -> str:
        return shown_element(self)

    def to_dict(self) -> dict[str, Any]:
        """What is set, as dicts, lists and plain values; arrays become lists. `Class(**values)` converts back."""
        values = ((name, getattr(self, name)) for name in self._names)
        return {name: as_plain(value) for name, value in values if is_set(value)}


class Element(Named, _lvdata.Element):
    """An element of a document, with a Python attribute for everything that it can hold.

    An attribute that is not set is None. Assigning None clears it; one that is always written then has its default
    value. Elements are assigned as objects, not copied: the same object may be in several places. Values are checked at
    once, and a refused value changes nothing.
    """

    __slots__ = ()

    _id: ClassVar[int]
    _raw = False
    Raw: ClassVar[type[RawView]]

    def __init_subclass__(cls) -> None:
        if hasattr(cls, "_id") and "_id" not in vars(cls):
            raise TypeError("classes of elements cannot be derived from")  # since records do not keep the object's class

    def __new__(cls, /, **values: object) -> Self:
        if not hasattr(cls, "_id"):
            raise TypeError(f"{cls.__qualname__} is not the class of an element of documents")
        made = super().__new__(cls)
        _lvdata.Element.__init__(made, cls._id)
        return made

    def __init__(self, /, **values: object) -> None:
        _fields.assign(self, values)

    @property
    def _element(self) -> Self:  # type: ignore[override]
        return self

    @property
    def raw(self) -> RawView:
        """The same element with numbers as they are stored: integers, in arrays uint32 or int32."""
        return self.Raw(self)

    def copy(self) -> Self:
        """A copy that shares nothing with this one."""
        copied: Self = self._copy()
        return copied

    def __copy__(self) -> Self:
        return self.copy()

    def __deepcopy__(self, memo: object) -> Self:
        return self.copy()

    def __reduce__(self) -> tuple[Any, ...]:
        return restored, (type(self), self._state())

    def __eq__(self, other: object) -> bool:
        if isinstance(other, Element):
            return self._equals(other)
        return NotImplemented

    __hash__ = None  # type: ignore[assignment]


class Record(Element):
    """A record: an element that is a document by itself. Two are equal when they print the same."""

    __slots__ = ()

    def to_xml(self, pretty: bool = True, declaration: bool = True) -> str:
        """The XML document. Bytes that are not UTF-8 become single surrogates: encode with "surrogateescape"."""
        return _lvdata.to_xml(self, bool(pretty), bool(declaration))

    def to_json(self, *, compact: bool = False) -> str:
        """The JSON text. Raises ValueError when the record holds bytes that are not UTF-8."""
        return _lvdata.to_json(self, bool(compact))

    def save(self, path: str | os.PathLike[str], pretty: bool = True, declaration: bool = True) -> None:
        """Writes the XML document into a file, which is replaced in one step or, with OSError, left as it was."""
        _lvdata.save(self, file_name(path), bool(pretty), bool(declaration))


class RawView(Named):
    """An element with numbers as they are stored. It has the attributes of the element, and changes that element."""

    __slots__ = ("_element",)

    _raw = True

    def __init__(self, element: Element) -> None:
        object.__setattr__(self, "_element", element)

    def __eq__(self, other: object) -> bool:
        if isinstance(other, RawView):
            return self._element == other._element
        return NotImplemented

    __hash__ = None  # type: ignore[assignment]


class Group(Named):
    """The elements of one name, with an attribute for each key. It changes the element that they are in."""

    __slots__ = ("_element", "_raw")

    _owner_id: ClassVar[int]

    def __init__(self, /, **values: object) -> None:
        object.__setattr__(self, "_element", _fields.classes[self._owner_id]())
        object.__setattr__(self, "_raw", False)
        _fields.assign(self, values)

    @classmethod
    def _of(cls, element: Element, raw: bool) -> Self:
        group = cls.__new__(cls)
        object.__setattr__(group, "_element", element)
        object.__setattr__(group, "_raw", raw)
        return group

    @classmethod
    def _of_values(cls, values: Mapping[str, object], raw: bool) -> Self:
        group = cls._of(_fields.classes[cls._owner_id](), raw)
        _fields.assign(group, values)
        return group

    def _copy_from(self, other: Group) -> None:
        values = {name: getattr(self._of(other._element, True), name) for name in self._names}
        for name, value in values.items():
            setattr(self._of(self._element, True), name, value)

    def copy(self) -> Self:
        """A copy that shares nothing with this one."""
        copied = type(self)()
        copied._copy_from(self)
        return self._of(copied._element, self._raw)

    def __copy__(self) -> Self:
        return self.copy()

    def __deepcopy__(self, memo: object) -> Self:
        return self.copy()

    def __reduce__(self) -> tuple[Any, ...]:
        return type(self)._of, (self.copy()._element, self._raw)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Group):
            return NotImplemented
        return type(self) is type(other) and self.to_dict() == other.to_dict()

    __hash__ = None  # type: ignore[assignment]


def restored(cls: type[Element], state: dict[str, Any]) -> Any:
    """An element of a pickle."""
    return _lvdata.restored(cls._id, state)
