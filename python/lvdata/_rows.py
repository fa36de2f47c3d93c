"""The rows of elements, as lists."""

from __future__ import annotations

from collections.abc import Iterable, MutableSequence
from typing import TYPE_CHECKING, Any, TypeVar, overload

from . import _fields, _lvdata
from ._show import shown_rows

if TYPE_CHECKING:
    from typing_extensions import Self

Row = TypeVar("Row")


class Rows(MutableSequence[Row]):
    """The rows of an element. They behave like a list, and changing them changes the element.

    Rows are objects of one class, or mappings of which objects are made. `numpy.asarray(rows)` gives all of them as a
    structured array when they hold plain values only.
    """

    __slots__ = ("_rows", "_raw")

    def __init__(self, rows: _lvdata.RowList, raw: bool) -> None:
        self._rows = rows
        self._raw = raw

    @property
    def raw(self) -> Rows[Any]:
        """The same rows with numbers as they are stored."""
        return Rows(self._rows, True)

    def __len__(self) -> int:
        return len(self._rows)

    @overload
    def __getitem__(self, index: int) -> Row:
        ...

    @overload
    def __getitem__(self, index: slice) -> list[Row]:
        ...

    def __getitem__(self, index: Any) -> Any:
        if isinstance(index, slice):
            return [self._at(each) for each in range(*index.indices(len(self)))]
        return self._at(self._position(index))

    def __setitem__(self, index: Any, value: Any) -> None:
        if isinstance(index, slice):
            self._set_slice(index, value)
        else:
            position = self._position(index)
            self._rows.replace(position, position + 1, [self._element(value)])

    def __delitem__(self, index: Any) -> None:
        if isinstance(index, slice):
            for each in sorted(range(*index.indices(len(self))), reverse=True):
                self._rows.replace(each, each + 1, [])
        else:
            position = self._position(index)
            self._rows.replace(position, position + 1, [])

    def insert(self, index: Any, value: Any) -> None:
        """Inserts a row before that position."""
        position = slice(index, None).indices(len(self))[0]
        self._rows.replace(position, position, [self._element(value)])

    def extend(self, values: Iterable[Any]) -> None:
        """Appends rows: all of them, or none if one is refused."""
        self[len(self) :] = values

    def sort(self, *, key: Any, reverse: bool = False) -> None:
        """Sorts the rows in place."""
        self[:] = sorted(self, key=key, reverse=reverse)

    def copy(self) -> Self:
        """The same rows as copies that share nothing with these."""
        copied = _lvdata.new_rows(self._rows.id())
        copied.replace(0, 0, [element.copy() for element in self._elements()])
        return type(self)(copied, self._raw)

    def __copy__(self) -> Self:
        return self.copy()

    def __deepcopy__(self, memo: object) -> Self:
        return self.copy()

    def __reduce__(self) -> tuple[Any, ...]:
        return restored_rows, (_fields.classes[self._rows.id()], self._elements(), self._raw)

    def __eq__(self, other: object) -> bool:
        if isinstance(other, Rows):
            return self._rows.id() == other._rows.id() and self._rows.equals(other._rows)
        if isinstance(other, list):
            return list(self) == other
        return NotImplemented

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return shown_rows(self, 1)

    def to_numpy(self) -> Any:
        """A structured array of NumPy, an entry for each row and a field for each attribute.

        Numbers that are not set are NaN, in raw rows 0. Texts, and arrays that can have any length, are objects. Raises
        TypeError when the rows hold elements.
        """
        from ._structured import structured

        return structured(self)

    def __array__(self, dtype: Any = None) -> Any:
        array = self.to_numpy()
        return array if dtype is None else array.astype(dtype)

    def _elements(self) -> list[Any]:
        return [self._rows.at(position) for position in range(len(self))]

    def _at(self, position: int) -> Any:
        row = self._rows.at(position)
        return row.raw if self._raw else row

    def _position(self, index: Any) -> int:
        position: int = range(len(self))[index]
        return position

    def _element(self, value: object) -> Any:
        class_id = self._rows.id()
        return _fields.element_of(value, class_id, f"rows of {_fields.classes[class_id].__qualname__}", self._raw)

    def _set_slice(self, index: slice, values: Iterable[Any]) -> None:
        if isinstance(values, (str, bytes)) or hasattr(values, "keys"):
            raise TypeError(f"rows expected, not {type(values).__name__}")
        elements = [self._element(value) for value in values]
        start, stop, step = index.indices(len(self))
        if step == 1:
            self._rows.replace(start, stop, elements)
            return
        positions = range(start, stop, step)
        if len(positions) != len(elements):
            raise ValueError(f"{len(positions)} rows expected, not {len(elements)}")
        for position, element in zip(positions, elements):
            self._rows.replace(position, position + 1, [element])


def restored_rows(cls: Any, elements: list[Any], raw: bool) -> Rows[Any]:
    """Rows of a pickle."""
    rows = _lvdata.new_rows(cls._id)
    rows.replace(0, 0, elements)
    return Rows(rows, raw)


_fields.rows_class = Rows
