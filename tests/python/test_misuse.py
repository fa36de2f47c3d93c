"""What callers can get wrong, and what must then not happen: hanging, crashing, telling what is in documents."""

from __future__ import annotations

import os
import subprocess
import sys
from collections.abc import Callable
from pathlib import Path

import lvdata
import pytest

STUDIO = Path(os.environ["LVDATA_SAMPLES_DIR"]) / "studio.xml"

READ_ARRAYS_IN_THREADS = """
import sys, threading, lvdata
record = lvdata.load(sys.argv[1])
threads = [threading.Thread(target=record.to_dict) for _ in range(4)]
for each in threads: each.start()
for each in threads: each.join()
assert "numpy" in sys.modules
"""


def test_the_first_arrays_of_a_process_can_be_read_by_several_threads() -> None:
    subprocess.run([sys.executable, "-c", READ_ARRAYS_IN_THREADS, str(STUDIO)], check=True, timeout=60)


def test_an_object_can_be_used_before_it_has_its_values() -> None:
    made = lvdata.AssetInfo.__new__(lvdata.AssetInfo)
    assert made.asset1 is None
    made.asset1 = "x"
    assert made == lvdata.AssetInfo(asset1="x")


@pytest.mark.parametrize("base", [lvdata.Element, lvdata.Record])
def test_only_classes_of_elements_have_objects(base: type) -> None:
    with pytest.raises(TypeError, match="is not the class of an element"):
        base()


def test_no_class_is_derived_from_those_of_elements() -> None:
    with pytest.raises(TypeError, match="cannot be derived from"):
        type("Mine", (lvdata.AssetInfo,), {})


@pytest.mark.parametrize("wrong", ["a.xml\0b", ""])
def test_paths_that_cannot_be_file_names_are_refused(wrong: str, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.chdir(tmp_path)
    with pytest.raises(ValueError, match="a path"):
        lvdata.load(wrong)
    with pytest.raises(ValueError, match="a path"):
        lvdata.AssetInfo().save(wrong)
    assert list(tmp_path.iterdir()) == []


def test_a_document_text_is_not_accepted_as_a_path() -> None:
    with pytest.raises(TypeError, match="a path is a str or an os.PathLike, not bytes"):
        lvdata.load(STUDIO.read_bytes())


def test_arguments_of_printing_can_be_given_by_their_place() -> None:
    record = lvdata.AssetInfo(asset1="x")
    assert record.to_xml(False, False) == record.to_xml(pretty=False, declaration=False)
    assert record.to_xml(True, False) != record.to_xml(False, False)


WRONG_ARGUMENTS: list[Callable[[object], object]] = [
    lambda record: lvdata.table(record, 5),
    lambda record: lvdata.check(record, most=1.5),
    lambda record: lvdata.check(record, most=2**70),
    lambda record: lvdata.diff(record, record, ignore=[1]),
    lambda record: lvdata.figures(record, y_unit=None),
    lambda record: lvdata.figures(record, y_unit="\udcff"),
    lambda record: lvdata.plot(record, 5),
    lambda record: lvdata.plot(record, plane=5),
    lambda record: lvdata.report(record, title=5),
    lambda record: lvdata.report(record, date="\udcff"),
    lambda record: next(lvdata.scan(str(STUDIO), 5)),
]


@pytest.mark.parametrize("call", WRONG_ARGUMENTS)
def test_errors_do_not_quote_whole_documents(call: Callable[[object], object]) -> None:
    with pytest.raises((TypeError, ValueError)) as raised:
        call(lvdata.load(STUDIO))
    assert 10 < len(str(raised.value)) < 200
    assert "Invoked with" not in str(raised.value)


@pytest.mark.parametrize(
    "call",
    [
        lambda file: lvdata.figures(file, mode=99),
        lambda file: lvdata.plot(file, mode=99),
        lambda file: lvdata.report(file, mode=99),
        lambda file: lvdata.diff(lvdata.AssetInfo(), file),
    ],
)
def test_errors_name_files_that_are_not_utf8(call: Callable[[str], object], tmp_path: Path) -> None:
    file = os.fsdecode(os.fsencode(tmp_path) + b"/n\xff.xml")
    with open(file, "wb") as copy:
        copy.write(STUDIO.read_bytes())
    with pytest.raises(ValueError, match="n\udcff.xml: "):
        call(file)


def test_all_functions_give_the_same_reason_for_an_error() -> None:
    reasons = set()
    for function in (lvdata.loads, lvdata.figures, lvdata.table, lvdata.report):
        with pytest.raises(lvdata.ParseError) as raised:
            function(b"<MonitorInfo>\n<UUID>1</UID></MonitorInfo>")
        reasons.add((raised.value.reason, raised.value.line))
    assert reasons == {("the end tag does not match the start tag", 2)}
