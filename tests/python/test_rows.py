"""Rows of elements: lists, and structured arrays."""

from __future__ import annotations

import copy
import pickle
from collections.abc import MutableSequence
from typing import Any

import lvdata
import numpy
import pytest
from records_of_all_classes import CLASSES, SAMPLES, fields_of, full_element

Row = lvdata.MeasurementData.Measurements


def measured(*first: int) -> Any:
    """A record with rows that can be told apart."""
    return lvdata.MeasurementData(measurements=[{"rgb": [each, 0, 0]} for each in first])


def firsts(rows: Any) -> list[float]:
    return [row.rgb[0] for row in rows]


CHANGES = {
    "append": lambda rows, row: rows.append(row(9)),
    "extend": lambda rows, row: rows.extend([row(8), row(9)]),
    "extend with itself": lambda rows, row: rows.extend(rows),
    "insert first": lambda rows, row: rows.insert(0, row(9)),
    "insert before last": lambda rows, row: rows.insert(-1, row(9)),
    "insert far beyond": lambda rows, row: rows.insert(99, row(9)),
    "insert far before": lambda rows, row: rows.insert(-99, row(9)),
    "delete": lambda rows, row: rows.__delitem__(1),
    "delete last": lambda rows, row: rows.__delitem__(-1),
    "delete slice": lambda rows, row: rows.__delitem__(slice(1, 3)),
    "delete every second": lambda rows, row: rows.__delitem__(slice(None, None, 2)),
    "set": lambda rows, row: rows.__setitem__(2, row(9)),
    "set last": lambda rows, row: rows.__setitem__(-1, row(9)),
    "set slice": lambda rows, row: rows.__setitem__(slice(1, 2), [row(7), row(8), row(9)]),
    "set empty slice": lambda rows, row: rows.__setitem__(slice(3, 1), [row(7)]),
    "set every second": lambda rows, row: rows.__setitem__(slice(None, None, 2), [row(7), row(8), row(9)]),
    "set backwards": lambda rows, row: rows.__setitem__(slice(None, None, -1), [row(n) for n in range(5)]),
    "clear": lambda rows, row: rows.clear(),
    "pop": lambda rows, row: rows.pop(),
    "pop first": lambda rows, row: rows.pop(0),
    "reverse": lambda rows, row: rows.reverse(),
}


@pytest.mark.parametrize("change", CHANGES)
def test_rows_change_as_a_list_does(change: str) -> None:
    record = measured(1, 2, 3, 4, 5)
    CHANGES[change](record.measurements, lambda first: Row(rgb=[first, 0, 0]))
    numbers = [1, 2, 3, 4, 5]
    CHANGES[change](numbers, lambda first: first)
    assert firsts(record.measurements) == numbers
    assert len(record.measurements) == len(numbers)
    assert lvdata.loads(record.to_xml()) == record


def test_rows_are_read_as_a_list_is() -> None:
    rows = measured(1, 2, 3, 4, 5).measurements
    assert isinstance(rows, MutableSequence)
    for index in (slice(1, 3), slice(None, None, -1), slice(-2, None), slice(9, 0), slice(None)):
        assert firsts(rows[index]) == [1, 2, 3, 4, 5][index]
    assert rows[0] is rows[-5] and rows[0] in rows and rows.index(rows[3]) == 3 and rows.count(rows[3]) == 1
    assert firsts(reversed(rows)) == [5, 4, 3, 2, 1]
    for wrong in (5, -6):
        with pytest.raises(IndexError):
            rows[wrong]
        with pytest.raises(IndexError):
            rows[wrong] = Row()
        with pytest.raises(IndexError):
            del rows[wrong]
    with pytest.raises(TypeError):
        rows["0"]
    rows.sort(key=lambda row: -row.rgb[0])
    assert firsts(rows) == [5, 4, 3, 2, 1]


def test_rows_of_another_class_are_refused_and_nothing_changes() -> None:
    record = measured(1, 2)
    rows = record.measurements
    other = lvdata.MeasurementDataSecondary.Measurements()
    for change in (
        lambda: rows.append(other),
        lambda: rows.insert(0, None),
        lambda: rows.extend([Row(), other]),
        lambda: rows.__setitem__(0, 3),
        lambda: rows.__setitem__(slice(0, 1), [Row(), lvdata.AssetInfo()]),
        lambda: setattr(record, "measurements", [Row(), object()]),
        lambda: setattr(record, "measurements", [{"rgb": [1, 2, 3]}, {"unknown": 1}]),
        lambda: setattr(record.raw, "measurements", ["text"]),
    ):
        with pytest.raises(TypeError):
            change()
        assert firsts(record.measurements) == [1, 2]
    with pytest.raises(ValueError, match="2 rows expected, not 1"):
        rows[::1][0:0] = []
        rows[::-1] = [Row()]


def test_assigning_rows_replaces_them() -> None:
    record = measured(1, 2, 3)
    rows = record.measurements
    record.measurements = (Row(rgb=[each, 0, 0]) for each in (7, 8))
    assert firsts(rows) == [7, 8]
    record.measurements = record.measurements
    record.measurements += [Row(rgb=[9, 0, 0])]
    assert firsts(record.measurements) == [7, 8, 9]
    other = lvdata.MeasurementData(measurements=record.measurements)
    assert other.measurements[0] is record.measurements[0]
    del other.measurements[0]
    assert len(record.measurements) == 3
    record.measurements = None
    assert len(rows) == 0 and record == lvdata.MeasurementData()


def test_rows_are_compared_copied_and_pickled() -> None:
    rows = measured(1, 2).measurements
    assert rows == measured(1, 2).measurements == list(measured(1, 2).measurements)
    assert rows != measured(1, 3).measurements and rows != measured(1).measurements and rows != 3
    for other in (rows.copy(), copy.copy(rows), copy.deepcopy(rows), pickle.loads(pickle.dumps(rows))):
        assert other == rows
        other[0].rgb = [9, 9, 9]
        assert firsts(rows) == [1, 2]
    raw = pickle.loads(pickle.dumps(rows.raw))
    assert raw[0].rgb.dtype == numpy.uint32


def test_raw_rows_give_and_take_raw_views() -> None:
    record = lvdata.MeasurementData()
    record.raw.measurements.append({"xyz": [1000000, 2, 3]})
    assert record.measurements[0].xyz.tolist() == [1.0, 0.000002, 0.000003]
    record.raw.measurements.append(record.raw.measurements[0])
    record.measurements.append(record.raw.measurements[0])
    assert record.measurements[1] is record.measurements[0] is record.measurements[2]
    assert record.raw.measurements[0].xyz.tolist() == [1000000, 2, 3]


def test_values_of_all_rows_are_read_as_one_array() -> None:
    record = lvdata.load(SAMPLES / "MeasurementData.xml")
    rows = record.measurements
    array = numpy.asarray(rows)
    assert array.shape == (len(rows),) and len(rows) > 10
    assert array.dtype["rgb"].subdtype == (numpy.dtype("f8"), (3,))
    raw = rows.raw.to_numpy()
    assert raw.dtype["cielab"].base == numpy.int32 and raw.dtype["rgb"].base == numpy.uint32
    for index, row in enumerate(rows):
        for name in Row._names:
            value, stored = getattr(row, name), getattr(row.raw, name)
            if value is None:
                assert numpy.isnan(array[name][index]).all() and not raw[name][index].any()
            else:
                assert array[name][index].tolist() == value.tolist()
                assert raw[name][index].tolist() == stored.tolist()
    assert numpy.asarray(lvdata.MeasurementData().measurements).shape == (0,)
    with pytest.raises((TypeError, ValueError)):
        numpy.asarray(rows, dtype="f8")


@pytest.mark.parametrize("cls", [cls for cls in CLASSES if any(f.kind == "rows" for _, f in fields_of(cls))])
def test_rows_work_in_each_class(cls: Any) -> None:
    element = full_element(cls)
    for name, field in fields_of(cls):
        if field.kind == "rows":
            rows = getattr(element, name)
            nested = CLASSES[field.nested]
            assert type(rows[0]) is nested and repr(rows).startswith("[")
            holds_elements = any(each.kind in ("element", "rows", "group") for _, each in fields_of(nested))
            if holds_elements:
                with pytest.raises(TypeError, match="hold elements"):
                    rows.to_numpy()
            else:
                assert len(rows.to_numpy()) == 2


def test_rows_may_change_while_they_are_assigned() -> None:
    record = measured(1, 2, 3)

    def rows() -> Any:
        for each in range(3):
            record.measurements.clear()
            yield {"rgb": [each, 0, 0]}

    record.measurements = rows()
    assert firsts(record.measurements) == [0, 1, 2]
