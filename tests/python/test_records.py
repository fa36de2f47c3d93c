"""Records as objects: documents stay what they are, every attribute is set, read, printed and cleared."""

from __future__ import annotations

import copy
import json
import os
import pickle
import pydoc
import subprocess
from pathlib import Path
from typing import Any

import lvdata
import pytest
from records_of_all_classes import (
    CLASSES,
    KINDS_OF_VALUES,
    RECORDS,
    SAMPLES,
    documents,
    elements_in,
    fields_of,
    full_element,
    is_constant,
    is_same,
    values_of,
)

TOOL = os.environ["LVDATA_TOOL"]
EVERY_DOCUMENT = pytest.mark.parametrize("path", documents(), ids=lambda path: f"{path.parent.name}.{path.stem}")
EVERY_CLASS = pytest.mark.parametrize("cls", CLASSES, ids=lambda cls: cls.__qualname__)
EVERY_RECORD = pytest.mark.parametrize("cls", RECORDS, ids=lambda cls: cls.__qualname__)
STUDIO = SAMPLES / "studio.xml"


def printed_by_tool(*arguments: str) -> bytes:
    done = subprocess.run([TOOL, *arguments], check=False, capture_output=True)
    assert done.returncode in (0, 1), done.stderr  # 1: something of the document is lost
    return done.stdout


def test_the_module_has_all_classes() -> None:
    assert len(RECORDS) == 17
    assert len(documents()) > 100
    assert all(getattr(lvdata, cls.__name__) is cls and cls.__name__ in lvdata.__all__ for cls in RECORDS)


@EVERY_DOCUMENT
def test_a_document_prints_as_the_tool_prints_it(path: Path) -> None:
    record = lvdata.load(path)
    assert record.to_xml().encode("utf-8", "surrogateescape") == printed_by_tool("format", str(path))
    short = record.to_xml(pretty=False, declaration=False).encode("utf-8", "surrogateescape")
    assert short == printed_by_tool("format", "--compact", "--no-declaration", str(path)).removesuffix(b"\n")


@EVERY_DOCUMENT
def test_json_of_a_document_gives_the_same_document_back(path: Path) -> None:
    record = lvdata.load(path)
    text = record.to_json()
    assert text + "\n" == printed_by_tool("convert", "--to", "json", str(path)).decode()
    assert lvdata.from_json(text) == record
    assert json.loads(record.to_json(compact=True)) == json.loads(text)


@EVERY_DOCUMENT
def test_a_document_read_again_is_equal_and_so_are_copies(path: Path) -> None:
    record = lvdata.load(path)
    assert lvdata.loads(record.to_xml()) == record
    for other in (record.copy(), copy.copy(record), copy.deepcopy(record), pickle.loads(pickle.dumps(record))):
        assert type(other) is type(record)
        assert other == record and other is not record
        assert other.to_xml() == record.to_xml()


@EVERY_DOCUMENT
def test_dicts_give_the_same_record(path: Path) -> None:
    record = lvdata.load(path)
    assert type(record)(**record.to_dict()) == record


@EVERY_RECORD
def test_a_fresh_record_prints_as_an_empty_document_does(cls: Any) -> None:
    assert cls().to_xml() == lvdata.loads(f"<{cls.__name__}/>").to_xml()


@EVERY_CLASS
@pytest.mark.parametrize("raw", [False, True], ids=["natural", "raw"])
def test_each_value_is_set_and_read(cls: Any, raw: bool) -> None:
    for name, field in fields_of(cls):
        if field.kind in KINDS_OF_VALUES and not is_constant(cls, name):
            for value in values_of(field, raw):
                element = cls()
                view = element.raw if raw else element
                setattr(view, name, value)
                assert is_same(getattr(view, name), value), name
                assert element != cls(), name
                assert pickle.loads(pickle.dumps(element)) == element


@EVERY_CLASS
def test_none_and_del_clear_a_value(cls: Any) -> None:
    for name, _ in fields_of(cls):
        fresh, full = cls(), full_element(cls)
        setattr(full, name, None)
        assert getattr(full, name) == getattr(fresh, name), name
        full = full_element(cls)
        delattr(full, name)
        assert getattr(full, name) == getattr(fresh, name), name


@EVERY_RECORD
@pytest.mark.parametrize("raw", [False, True], ids=["natural", "raw"])
def test_full_records_are_printed_and_read(cls: Any, raw: bool) -> None:
    record = full_element(cls, raw)
    again = lvdata.loads(record.to_xml())
    assert again == record
    assert again.to_xml() == record.to_xml()
    assert type(record)(**record.to_dict()).to_xml() == record.to_xml()


#: What is not printed of full records, since their types are no known ones, is another test's: each value by itself.
@EVERY_DOCUMENT
def test_each_value_of_a_document_set_again_prints_the_same(path: Path) -> None:
    record = lvdata.load(path)
    for raw in (False, True):
        other = lvdata.load(path)
        for element in elements_in(other):
            view = element.raw if raw else element
            for name, field in fields_of(type(element)):
                value = getattr(view, name)
                if value is not None:
                    setattr(view, name, value)
        assert other.to_xml() == record.to_xml()


@EVERY_CLASS
def test_misspelt_attributes_raise(cls: Any) -> None:
    element = cls()
    name = cls._names[-1]
    wrong = name + "z"
    for owner in (element, element.raw):
        with pytest.raises(AttributeError, match=f"has no '{wrong}', did you mean"):
            getattr(owner, wrong)
        with pytest.raises(AttributeError, match=f"has no '{wrong}', did you mean"):
            setattr(owner, wrong, 1)
    with pytest.raises(TypeError, match=f"has no '{wrong}', did you mean"):
        cls(**{wrong: 1})
    with pytest.raises(AttributeError, match="known names"):
        element.quite_another_name
    with pytest.raises(AttributeError):
        element.copy = 1
    assert not hasattr(element, "__dict__")


@EVERY_CLASS
def test_names_of_attributes_do_not_hide_methods(cls: Any) -> None:
    methods = {name for base in cls.__mro__[1:] for name in vars(base)} | {"Raw"}
    assert not methods & set(cls._names)
    assert set(cls._names) <= set(dir(cls()))


@EVERY_CLASS
def test_help_says_what_each_attribute_is(cls: Any) -> None:
    text = pydoc.plain(pydoc.render_doc(cls))
    for name, _ in fields_of(cls):
        assert name in text
        assert cls.__dict__[name].__doc__
    assert repr(full_element(cls)).startswith(cls.__qualname__ + "(")
    assert len(repr(full_element(cls))) < 10_000


def test_help_has_meaning_unit_scale_and_condition() -> None:
    text = lvdata.ParameterSetting.Brightness.value.__doc__
    assert 'When ../@Type is "Percent": Brightness in per cent. In %.' in text
    assert 'Written when ../@Type is "Candela" or "Percent".' in text
    assert "Stored as an integer, times" in lvdata.MonitorParameter.red_gain.__doc__


def test_elements_are_shared_and_copies_are_separate() -> None:
    setting = lvdata.ParameterSetting(brightness={"type": "Value", "value": 140})
    row = lvdata.ColorModeSettings.ColorMode(type="Standard", parameter_setting=setting)
    settings = lvdata.ColorModeSettings(color_mode=[row])
    assert settings.color_mode[0] is row and row.parameter_setting is setting
    copied = settings.copy()
    setting.brightness.value = 99
    assert settings.color_mode[0].parameter_setting.brightness.value == 99
    assert copied.color_mode[0].parameter_setting.brightness.value == 140
    assert pickle.loads(pickle.dumps([setting, setting]))[0].brightness.value == 99


def test_nested_records_are_of_the_same_class() -> None:
    record = lvdata.load(STUDIO)
    configuration = record.monitor_configuration
    assert type(configuration) is lvdata.MonitorConfiguration
    assert configuration.to_xml().startswith("<?xml")
    other = lvdata.MonitorInfo(monitor_configuration=configuration)
    assert other.monitor_configuration is configuration is record.monitor_configuration
    before = other.asset_info
    with pytest.raises(TypeError, match="MonitorInfo.asset_info: AssetInfo or a mapping expected, not MonitorConfig"):
        other.asset_info = configuration
    assert other.asset_info is before


def test_an_element_outlives_its_record() -> None:
    configuration = lvdata.load(STUDIO).monitor_configuration
    rows = lvdata.load(STUDIO).calibration_mode_result.color_mode
    assert configuration.serial == "27W-000417"
    assert len(rows) == 3


def test_keyed_elements_are_attributes_of_one_object() -> None:
    profile = lvdata.ProfileData(measured_xyz={"red": [0.1, 0.2, 0.3]})
    assert profile.measured_xyz.red.tolist() == [0.1, 0.2, 0.3]
    assert profile.raw.measured_xyz.red.tolist() == [100000, 200000, 300000]
    assert profile.measured_xyz.green is None
    group = profile.measured_xyz.copy()
    profile.measured_xyz.red = None
    assert profile.measured_xyz != group
    profile.measured_xyz = group
    assert profile.measured_xyz == group == pickle.loads(pickle.dumps(group))
    profile.measured_xyz = None
    assert profile == lvdata.ProfileData()
    with pytest.raises(AttributeError, match="did you mean 'red'"):
        profile.measured_xyz.rad = [1, 2, 3]
    with pytest.raises(ValueError, match="measured_xyz.red: 3 entries expected, not 2"):
        profile.measured_xyz.red = [1, 2]


def test_the_switch_is_set_with_the_elements_it_governs() -> None:
    text = (SAMPLES / "studio.xml").read_text()
    assert "<HLGSystemGamma>" in lvdata.loads(text).to_xml()
    gamma = lvdata.ParameterSetting.Gamma(type="Value", value=2.2)
    assert "HLGSystemGamma" not in lvdata.ParameterSetting(gamma=gamma).to_xml()
    gamma.hlg_system_gamma = 1
    assert "HLGSystemGamma" in lvdata.ParameterSetting(gamma=gamma).to_xml()
