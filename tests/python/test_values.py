"""Values of attributes: what is exact, what is refused and how, and that a refused value changes nothing."""

from __future__ import annotations

import array
import decimal
import fractions
import json
from typing import Any

import lvdata
import numpy
import pytest
from records_of_all_classes import CLASSES, fields_of, full_element

EVERY_CLASS = pytest.mark.parametrize("cls", CLASSES, ids=lambda cls: cls.__qualname__)
EDGES = [0, 1, 9, 10, 49, 50, 99999, 1000001, 123456789, 2147483647, -1, -700000, -2147483648, 4294967295]


def numbers_of(cls: Any) -> list[tuple[str, Any]]:
    """The attributes that are numbers, of elements that a record can be made of."""
    return [(name, field) for name, field in fields_of(cls) if field.kind == "number"]


def parameter(**values: Any) -> Any:
    return lvdata.MonitorParameter(**values)


@EVERY_CLASS
def test_each_stored_integer_comes_back_from_its_natural_value(cls: Any) -> None:
    for name, field in numbers_of(cls):
        for stored in EDGES:
            if (stored >= 0 or field.is_signed) and (stored < 2**31 or not field.is_signed):
                element, other = cls(), cls()
                setattr(element.raw, name, stored)
                setattr(other, name, getattr(element, name))
                assert getattr(other.raw, name) == stored
                assert type(getattr(element, name)) is (float if field.has_decimals else int)


@EVERY_CLASS
def test_numbers_beyond_the_range_are_refused(cls: Any) -> None:
    for name, field in numbers_of(cls):
        element = full_element(cls)
        before = getattr(element.raw, name)
        least, greatest = (-(2**31), 2**31 - 1) if field.is_signed else (0, 2**32 - 1)
        for wrong in (least - 1, greatest + 1, 10**30, -(10**30), 10**5000, float("nan"), float("inf"), 1e300, 0.5):
            with pytest.raises(ValueError, match=f"{name}: a whole number from {least} to {greatest} expected, not"):
                setattr(element.raw, name, wrong)
        for wrong in (1e300, float("nan"), float("-inf"), 10**5000):
            with pytest.raises(ValueError, match=f"{name}: a (whole )?number from .* expected, not"):
                setattr(element, name, wrong)
        for text in (True, "1", b"1", [1], (), {}, object(), 1j, numpy.bool_(True), numpy.array([1])):
            with pytest.raises(TypeError, match=f"{name}: .*expected, not"):
                setattr(element, name, text)
        assert getattr(element.raw, name) == before


@EVERY_CLASS
def test_other_types_are_refused_everywhere(cls: Any) -> None:
    wrong: dict[str, list[Any]] = {
        "text": [3, b"bytes", ["a"], True],
        "boolean": [0, 1, "true", [True], numpy.int64(1)],
        "array": [3, "123", b"123", bytearray(3), {1, 2, 3}, {1: 2}, [[1, 2, 3]], [None], ["1"], [True], object()],
        "number or array": ["1", b"1", True, {1, 2, 3}, object()],
        "element": [3, "text", lvdata.AssetInfo().asset1, CLASSES, object()],
        "rows": [3, "text", [3], [None], {"a": 1}, [object()]],
        "group": [3, "text", [1]],
    }
    for name, field in fields_of(cls):
        for value in wrong.get(field.kind, []):
            element = full_element(cls)
            for view in (element, element.raw):
                if value is not None:
                    with pytest.raises(TypeError):
                        setattr(view, name, value)
                        print(name, field.kind, value)
            assert element == full_element(cls)


@pytest.mark.parametrize("text", ["a\0b", "\r", "\x01", " ", "\uffff", "a\x1f"])
def test_texts_that_xml_cannot_carry_are_refused(text: str) -> None:
    record = lvdata.AssetInfo(asset1="before")
    with pytest.raises(ValueError, match="AssetInfo.asset1: XML cannot carry"):
        record.asset1 = text
    with pytest.raises(ValueError, match="asset1: text without single surrogates expected"):
        record.asset1 = "\ud800"
    assert record.asset1 == "before"


@pytest.mark.parametrize("text", ["", "tab\tline\n", "<&>'\"", "é", "\U0001f600", "]]>", " x "])
def test_texts_are_kept(text: str) -> None:
    record = lvdata.AssetInfo(asset1=text, asset2=numpy.str_("two"))
    assert lvdata.loads(record.to_xml(pretty=False)) == record
    assert lvdata.from_json(record.to_json()).asset1 == text
    assert record.asset1 == text


def test_constants_take_only_their_value() -> None:
    target = lvdata.ColorModeSettings.ColorMode.Target()
    target.type = "Lumivale"
    with pytest.raises(ValueError, match='type: "Lumivale" expected'):
        target.type = "Another"


def test_values_are_rounded_by_their_decimal_digits() -> None:
    record = parameter()
    for value, stored in [
        (0.0000005, 1),
        (0.00000049999999, 0),
        (1.0000005, 1000001),
        (1.0000015, 1000002),
        (0.1 + 0.2, 300000),
        (4294.967295, 4294967295),
        (4294.9672954, 4294967295),
    ]:
        record.red_gain = value
        assert record.raw.red_gain == stored, value
        if stored < 2**31:
            record.emulation_matrix = [value] * 9
            assert record.raw.emulation_matrix.tolist() == [stored] * 9, value
        text = json.dumps({"monitor_parameter": {"red_gain": value}})
        assert lvdata.from_json(text).raw.red_gain == stored, value


def test_numbers_of_other_types_are_accepted() -> None:
    record = parameter()
    for value in (
        decimal.Decimal("0.25"),
        fractions.Fraction(1, 4),
        numpy.float32(0.25),
        numpy.float64(0.25),
        numpy.float16(0.25),
        numpy.longdouble(0.25),
        numpy.array(0.25),
    ):
        record.red_gain = value
        assert record.raw.red_gain == 250000
    for whole in (numpy.int8(3), numpy.uint64(3), 3.0, numpy.float32(3), numpy.array(3)):
        record.raw.red_gain = whole
        assert record.raw.red_gain == 3


#: In which forms 0, 1, 2 ... can come.
FORMS = {
    "list": list,
    "tuple": tuple,
    "range": lambda numbers: range(len(numbers)),
    "generator": lambda numbers: (each for each in numbers),
    "array": lambda numbers: array.array("d", numbers),
    "memoryview": lambda numbers: memoryview(array.array("i", numbers)),
    "int64": lambda numbers: numpy.array(numbers, dtype="<i8"),
    "big-endian": lambda numbers: numpy.array(numbers, dtype=">i4"),
    "big-endian float": lambda numbers: numpy.array(numbers, dtype=">f8"),
    "uint64": lambda numbers: numpy.array(numbers, dtype="u8"),
    "uint8": lambda numbers: numpy.array([each % 256 for each in numbers], dtype="u1"),
    "float32": lambda numbers: numpy.array(numbers, dtype="f4"),
    "float16": lambda numbers: numpy.array(numbers, dtype="f2"),
    "object": lambda numbers: numpy.array(numbers, dtype=object),
    "strided": lambda numbers: numpy.repeat(numpy.array(numbers), 2)[::2],
    "reversed": lambda numbers: numpy.array(numbers[::-1])[::-1],
}


@pytest.mark.parametrize("form", FORMS)
def test_arrays_of_any_form_are_accepted(form: str) -> None:
    numbers = list(range(256))
    record = parameter()
    record.raw.red_lut = FORMS[form](numbers)
    assert record.raw.red_lut.tolist() == numbers
    natural = parameter()
    natural.raw.red_lut = record.raw.red_lut
    natural.red_lut = natural.red_lut
    assert natural == record


@pytest.mark.parametrize(
    "numbers",
    [
        numpy.full(256, numpy.nan),
        numpy.full(256, -1),
        numpy.full(256, 2**32),
        numpy.full(256, 2**64 - 1, dtype="u8"),
        numpy.zeros((16, 16)),
        numpy.zeros(255),
        numpy.full(256, 0.5),
        [0] * 255 + [10**5000],
        [0] * 1025,
        [],
    ],
    ids=range(10),
)
def test_arrays_with_wrong_numbers_are_refused(numbers: Any) -> None:
    record = parameter(red_lut=[1] * 256)
    before = record.copy()
    with pytest.raises(ValueError, match="MonitorParameter.red_lut: "):
        record.raw.red_lut = numbers
    assert record == before


@pytest.mark.parametrize("kind", ["?", "c16", "U1", "M8[s]", "m8[s]", "V4"])
def test_arrays_of_other_types_are_refused(kind: str) -> None:
    record = parameter()
    with pytest.raises(TypeError, match="MonitorParameter.red_lut: "):
        record.red_lut = numpy.zeros(256, dtype=kind)


def test_arrays_are_made_on_access_and_cannot_be_written_to() -> None:
    record = parameter(red_lut=[0.5] * 256)
    assert record.red_lut.dtype == numpy.float64
    assert record.raw.red_lut.dtype == numpy.uint32
    assert record.raw.emulation_matrix is None
    record.emulation_matrix = [0, -1.5, 1] * 3
    assert record.raw.emulation_matrix.dtype == numpy.int32
    with pytest.raises(ValueError, match="read-only"):
        record.red_lut[0] = 1
    assert record.red_lut is not record.red_lut


def test_arguments_that_others_depend_on_are_set_first() -> None:
    first = parameter(is_hdrlut=1, red_lut=[1.0] * 256)
    assert first == parameter(red_lut=[1.0] * 256, is_hdrlut=1)
    assert first.raw.red_lut[0] != parameter(red_lut=[1.0] * 256).raw.red_lut[0]
    # the stored integers stay when what they stand for changes
    raw = first.raw.red_lut.tolist()
    first.is_hdrlut = 0
    assert first.raw.red_lut.tolist() == raw
    assert first.red_lut[0] != 1.0


def test_a_curve_is_a_number_or_an_array() -> None:
    curve = lvdata.ProfileData.RedTargetCurve(type="Formula", value=2.2)
    assert (curve.value, curve.raw.value) == (2.2, 2200000)
    curve.value = [0, 0.5, 1]  # before the type that it belongs to
    profile = lvdata.ProfileData(red_target_curve=curve)
    with pytest.raises(ValueError, match="RedTargetCurve.value: a number expected, not an array"):
        profile.to_xml()
    with pytest.raises(ValueError, match="a number expected"):
        profile == lvdata.ProfileData()
    assert curve.value.tolist() == [0, 0.5, 1]
    curve.type = "Lut"
    assert curve.value.tolist() == [0, 0.5, 1]
    assert lvdata.loads(profile.to_xml()) == profile
    curve.value = [1]
    assert curve.value.tolist() == [1]
    assert lvdata.ProfileData.RedTargetCurve(value=3).value == 3


class Evil:
    """A list that changes the record while its numbers are read."""

    def __init__(self, record: Any) -> None:
        self.record = record

    def __iter__(self) -> Any:
        for each in range(256):
            self.record.red_lut = None
            self.record.emulation_matrix = [each] * 9
            yield each


def test_a_record_may_change_while_a_value_is_read() -> None:
    record = parameter()
    record.raw.red_lut = Evil(record)
    assert record.raw.red_lut[255] == 255


def test_exceptions_raised_by_values_are_passed_on() -> None:
    def failing() -> Any:
        yield 1
        raise KeyError("mine")

    record = parameter()
    with pytest.raises(KeyError, match="mine"):
        record.red_lut = failing()
    assert record.red_lut is None
