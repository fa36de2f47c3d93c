"""The attributes of elements: reading, setting, and the message for a misspelt name."""

from __future__ import annotations

from collections.abc import Iterable, Mapping, Sequence
from typing import TYPE_CHECKING, Any, Generic, TypeVar, overload

from . import _lvdata

if TYPE_CHECKING:
    from typing_extensions import Self

    from ._elements import Group

Got = TypeVar("Got", covariant=True)
Given = TypeVar("Given", contravariant=True)


class Attribute(Generic[Got, Given]):
    """An attribute of an element: how it is read, and what can be assigned."""

    __slots__ = ()

    if TYPE_CHECKING:

        @overload
        def __get__(self, owner: None, _: type | None = None) -> Self:
            ...

        @overload
        def __get__(self, owner: Any, _: type | None = None) -> Got:
            ...

        def __get__(self, owner: Any, _: type | None = None) -> Any:
            ...

    def __set__(self, owner: Any, value: Given) -> None:
        raise NotImplementedError

    def __delete__(self, owner: Any) -> None:
        self.__set__(owner, None)  # type: ignore[arg-type]


class Field(Attribute[Any, Any]):
    """An attribute that stands for one place of an element."""

    __slots__ = ("name", "index", "kind", "has_decimals", "is_signed", "lengths", "nested", "class_id")

    def __init__(self, description: Mapping[str, Any], class_id: int) -> None:
        self.name: str = description["name"]
        self.index: int = description["index"]
        self.kind: str = description["kind"]
        self.has_decimals: bool = description["has_decimals"]
        self.is_signed: bool = description["is_signed"]
        self.lengths: list[int] = description["lengths"]
        self.nested: int | None = description["nested"]
        self.class_id = class_id

    def meaning(self) -> str:
        """The text that help() shows. Made on request, to keep the import of the module fast."""
        return _lvdata.meaning(self.class_id, self.index)


# A text, a number or an array, natural.
class ValueField(Field):
    __slots__ = ()
    __doc__ = property(Field.meaning)  # type: ignore[assignment]

    def __get__(self, owner: Any, _: type | None = None) -> Any:
        return self if owner is None else owner._value(self.index, False)

    def __set__(self, owner: Any, value: Any) -> None:
        owner._set_value(self.index, value, False)


# The same, seen through a raw view or a group.
class ViewField(Field):
    __slots__ = ()
    __doc__ = property(Field.meaning)  # type: ignore[assignment]

    def __get__(self, owner: Any, _: type | None = None) -> Any:
        return self if owner is None else owner._element._value(self.index, owner._raw)

    def __set__(self, owner: Any, value: Any) -> None:
        owner._element._set_value(self.index, value, owner._raw)


# An element inside an element, or inside the raw view of one.
class ChildField(Field):
    __slots__ = ()
    __doc__ = property(Field.meaning)  # type: ignore[assignment]

    def __get__(self, owner: Any, _: type | None = None) -> Any:
        if owner is None:
            return self
        child = owner._element._child(self.index)
        return child.raw if owner._raw and child is not None else child

    def __set__(self, owner: Any, value: Any) -> None:
        if value is None:
            owner._element._clear(self.index)
        else:
            place = owner._element._path(self.index)
            owner._element._set_child(self.index, element_of(value, self.nested, place, owner._raw))


# The rows of an element, or of the raw view of one.
class RowsField(Field):
    __slots__ = ()
    __doc__ = property(Field.meaning)  # type: ignore[assignment]

    def __get__(self, owner: Any, _: type | None = None) -> Any:
        return self if owner is None else rows_class(owner._element._rows(self.index), owner._raw)

    def __set__(self, owner: Any, value: Any) -> None:
        rows = self.__get__(owner)
        rows[:] = () if value is None else value


# The elements that have the same name and different keys, as one object.
class GroupField(Attribute[Any, Any]):
    __slots__ = ("name", "group", "members")

    kind = "group"

    def __init__(self, name: str, group: type[Group], members: Sequence[Field]) -> None:
        self.name = name
        self.group = group
        self.members = members

    @property
    def __doc__(self) -> str:  # type: ignore[override]
        return f"{', '.join(member.name for member in self.members)}: the elements of this name, by their keys."

    def __get__(self, owner: Any, _: type | None = None) -> Any:
        return self if owner is None else self.group._of(owner._element, owner._raw)

    def __set__(self, owner: Any, value: Any) -> None:
        group = self.__get__(owner)
        if value is None:
            for member in self.members:
                owner._element._clear(member.index)
        elif isinstance(value, self.group):
            group._copy_from(value)
        elif isinstance(value, Mapping):
            group._copy_from(self.group._of_values(value, owner._raw))
        else:
            raise TypeError(f"{self.group.__qualname__} or a mapping expected, not {type(value).__name__}")


#: The class of elements of each layout, and the class of rows; filled by the modules that make them.
classes: list[Any] = []
rows_class: Any = None


def element_of(value: object, class_id: int | None, place: str, raw: bool) -> Any:
    """The element that a value stands for: itself, the one of a raw view, or a new one of a mapping."""
    wanted = classes[class_id or 0]
    if isinstance(value, Mapping):
        made = wanted()
        assign(made.raw if raw else made, value)
        return made
    element = getattr(value, "_element", None)
    if not isinstance(element, wanted) or not isinstance(value, (wanted, wanted.Raw)):
        raise TypeError(f"{place}: {wanted.__qualname__} or a mapping expected, not {type(value).__name__}")
    return element


def unknown(owner: type, name: str) -> str:
    """The message for a name that a class does not have."""
    names = owner._names  # type: ignore[attr-defined]
    meant = _lvdata.closest(name, names)
    known = f"did you mean {meant!r}?" if meant is not None else f"known names: {', '.join(names)}"
    return f"{owner.__qualname__} has no {name!r}, {known}"


def assign(owner: Any, values: Mapping[str, Any]) -> None:
    """Sets attributes in the order in which they are written: those that others depend on come first."""
    names: Iterable[str] = type(owner)._names
    for name in values:
        if name not in names:
            raise TypeError(unknown(type(owner), str(name)))
    for name in names:
        if values.get(name) is not None:
            setattr(owner, name, values[name])
