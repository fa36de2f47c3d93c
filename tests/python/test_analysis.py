"""Findings, differences, figures and rows: the same as the tool's."""

from __future__ import annotations

import json
import pickle
import threading
from collections.abc import Callable
from pathlib import Path
from typing import Any

import lvdata
import pytest
from conftest import turns_of_another_thread
from lvdata import _lvdata
from lvdata._sources import Source

Tool = Callable[..., bytes]


READERS: list[Callable[[Source], object]] = [lvdata.figures, lvdata.table, lvdata.plot, lvdata.report]


FAULTY = b'<AssetInfo Version="1" MinorVersion="0">\n<Asset1>x</Asset1>\n<Owner/>\n</AssetInfo>'


def findings_of(tool: Tool, *arguments: object) -> list[dict[str, Any]]:
    """What the tool tells as JSON."""
    found: list[dict[str, Any]] = json.loads(tool("check", "--format", "json", *arguments))["findings"]
    return found


def as_told(finding: lvdata.Finding) -> dict[str, Any]:
    """The finding as the tool tells it."""
    return {**finding._asdict(), "line": finding.line or 0}


def test_findings_are_those_of_the_tool(tool: Tool, golden: list[Path]) -> None:
    told = findings_of(tool, *golden)
    assert len(told) > 20
    assert [as_told(each) for file in golden for each in lvdata.check(file)] == told


def test_findings_can_be_asked_for_and_left_out(tool: Tool, studio: Path) -> None:
    assert [each.id for each in lvdata.check(FAULTY)] == ["301"]
    assert lvdata.check(FAULTY, ignore=["301"]) == []
    assert lvdata.check(FAULTY, ignore="301") == []
    strict = lvdata.check(studio, roundtrip=True)
    assert [as_told(each) for each in strict] == findings_of(tool, "--roundtrip", studio)
    assert len(lvdata.check(FAULTY.replace(b"<Owner/>", b"<Owner/>" * 20), most=7)) == 7


def test_a_finding_has_line_and_path(tmp_path: Path) -> None:
    file = tmp_path / "a.xml"
    file.write_bytes(FAULTY)
    [finding] = lvdata.check(file)
    assert (finding.severity, finding.id, finding.line) == ("warning", "301", 3)
    assert (finding.path, finding.file) == ("/AssetInfo/Owner", str(file))
    assert "Owner" in finding.message
    assert lvdata.check(FAULTY)[0].file is None
    assert pickle.loads(pickle.dumps(finding)) == finding


def test_an_unknown_rule_is_refused() -> None:
    with pytest.raises(ValueError, match=r"'999' is not the id of a rule; known ids: 001, 002, "):
        lvdata.check(FAULTY, ignore=["999"])
    with pytest.raises(ValueError, match="most must be a number from 0"):
        lvdata.check(FAULTY, most=-1)


def test_sources_are_records_paths_and_bytes(studio: Path) -> None:
    text = studio.read_bytes()
    assert lvdata.figures(str(studio)) == lvdata.figures(studio) == lvdata.figures(text)
    assert lvdata.figures(lvdata.loads(text)) == lvdata.figures(text)
    with pytest.raises(TypeError, match="a source is a record, a path or bytes, not int"):
        lvdata.check(7)  # type: ignore[arg-type]
    for wrong in ("", "a\0b"):
        with pytest.raises(ValueError, match="a path"):
            lvdata.check(wrong)


def test_reading_errors_say_why(tmp_path: Path) -> None:
    missing = tmp_path / "missing.xml"
    readers: list[Callable[[Source], object]] = [lvdata.check, *READERS]
    for function in readers:
        with pytest.raises(FileNotFoundError) as raised:
            function(missing)
        assert raised.value.filename == str(missing)
    broken = tmp_path / "broken.xml"
    broken.write_bytes(b"<AssetInfo>\n<A></B>")
    for function in READERS:
        with pytest.raises(lvdata.ParseError) as refused:
            function(broken)
        assert (refused.value.file, refused.value.line) == (str(broken), 2)
        again = pickle.loads(pickle.dumps(refused.value))
        assert (str(again), again.line) == (str(refused.value), 2)
    with pytest.raises(lvdata.ParseError, match='^unknown root element "Car"; known: AssetInfo, '):
        lvdata.table(b"<Car/>")


def test_a_name_that_is_not_utf8_is_kept(tmp_path: Path) -> None:
    file = Path(str(tmp_path) + "/\udcff.xml")
    file.write_bytes(FAULTY)
    assert lvdata.check(file)[0].file == str(file)
    with pytest.raises(FileNotFoundError) as raised:
        lvdata.check(str(file) + "x")
    assert raised.value.filename == str(file) + "x"
    with pytest.raises(lvdata.ParseError, match="JSON cannot carry") as refused:
        lvdata.table(file.rename(file), "monitors") or lvdata.table(monitor_at(file), "monitors")
    assert refused.value.file == str(file)


def monitor_at(file: Path) -> Path:
    """The file with a monitor in it."""
    file.write_bytes(b"<MonitorInfo><UUID>x</UUID></MonitorInfo>")
    return file


@pytest.mark.parametrize(
    "text", [b"", b"\0", b"<AssetInfo>\0</AssetInfo>", bytes(range(256)) * 100, b"<a>" * 100_000, b"x" * 10_000_000]
)
def test_hostile_texts_are_refused(text: bytes) -> None:
    for function in READERS:
        with pytest.raises(lvdata.ParseError):
            function(text)
    with pytest.raises(lvdata.ParseError):
        lvdata.diff(text, text)
    try:
        assert lvdata.check(text)[0].severity == "error"
    except lvdata.ParseError as beyond_limits:
        assert "more than" in beyond_limits.reason


def test_a_file_beyond_the_limit_is_not_read(tmp_path: Path) -> None:
    large = tmp_path / "large.xml"
    with large.open("wb") as file:
        file.truncate(1 << 30)
    with pytest.raises(lvdata.ParseError, match="more than 67108864 bytes") as raised:
        lvdata.check(large)
    assert raised.value.file == str(large)
    with pytest.raises(lvdata.ParseError, match="more than 67108864 bytes"):
        lvdata.check("/dev/zero")


def test_texts_that_are_not_utf8_are_shown_or_refused(studio: Path) -> None:
    text = studio.read_bytes().replace(b"Studio wall", b"Studio \xff wall")
    assert "Studio" in lvdata.report(text).html
    assert lvdata.figures(text)["monitor"]["name"] == "Studio \ufffd wall"
    assert lvdata.plot(text).svg.startswith("<svg")
    with pytest.raises(ValueError, match="not UTF-8"):
        lvdata.diff(studio, text)
    with pytest.raises(lvdata.ParseError, match="JSON cannot carry bytes that are not UTF-8"):
        lvdata.table(text, "monitors")


def told_differences(diff: lvdata.Diff) -> dict[str, Any]:
    """The differences as the tool tells them."""
    listed = []
    for each in diff:
        members = each._asdict()
        del members["words"]
        listed.append({key: value for key, value in members.items() if value is not None})
    return {"differences": listed, "within_tolerance": diff.within_tolerance, "ignored": diff.ignored}


def test_differences_are_those_of_the_tool(tool: Tool, studio: Path, tmp_path: Path, golden: list[Path]) -> None:
    changed = tmp_path / "changed.xml"
    changed.write_bytes(studio.read_bytes().replace(b"<Red>", b"<Red><X/>").replace(b"0|4105|", b"0|4106|"))
    typical = next(file for file in golden if file.match("MonitorInfo/typical.xml"))
    for before, after in ((studio, changed), (typical, studio), (studio, typical)):
        found = lvdata.diff(before, after)
        assert told_differences(found) == json.loads(tool("diff", "--format", "json", before, after))
        lines = "".join(f"{each}\n" for each in found)
        assert lines == tool("diff", before, after).decode().split("not listed")[0]
    assert lvdata.diff(studio, studio) == []


def test_differences_can_be_ignored_or_tolerated(tool: Tool, studio: Path) -> None:
    text = studio.read_bytes()
    changed = text.replace(b"<Brightness Type=\"Candela\">140<", b"<Brightness Type=\"Candela\">141<")
    changed = changed.replace(b"27W-000417", b"27W-000418")
    found = lvdata.diff(text, changed, tolerances={"candela": 1}, ignore=["//Serial"])
    assert (list(found), found.within_tolerance, found.ignored) == ([], changed.count(b">141<"), 1)
    assert lvdata.diff(text, changed, ignore="//Serial").ignored == 1


def test_wrong_tolerances_are_refused() -> None:
    with pytest.raises(ValueError, match="unknown kind of tolerance 'de'; known: candela, "):
        lvdata.diff(FAULTY, FAULTY, tolerances={"de": 1})
    for wrong in (-1, float("nan"), float("inf")):
        with pytest.raises(ValueError, match="is not a number from 0"):
            lvdata.diff(FAULTY, FAULTY, tolerances={"de00": wrong})
    with pytest.raises(ValueError):
        lvdata.diff(b"<AssetInfo/>", b"<CandelaMap/>")


def test_the_document_that_cannot_be_compared_is_named(tmp_path: Path) -> None:
    broken = tmp_path / "broken.xml"
    broken.write_bytes(b"<")
    pairs: list[tuple[Source, Source]] = [(FAULTY, broken), (broken, FAULTY)]
    for before, after in pairs:
        with pytest.raises(lvdata.ParseError) as raised:
            lvdata.diff(before, after)
        assert raised.value.file == str(broken)


def told_figures(tool: Tool, *arguments: object) -> Any:
    return json.loads(tool("show", "--json", *arguments))


def test_figures_are_those_of_the_tool(tool: Tool, studio: Path, golden: list[Path]) -> None:
    monitors = 0
    for file in [studio, *golden]:
        try:
            found = lvdata.figures(file)
        except lvdata.ParseError:
            assert b"has no figures" in tool("show", "--json", file, failed=True)
            continue
        assert found == told_figures(tool, file)
        monitors += 1
    assert monitors > 10


def test_figures_have_the_digits_of_the_tool(tool: Tool, studio: Path) -> None:
    text = _lvdata.figures_text(studio.read_bytes(), b"", None, ("", "", 0))
    assert text == tool("show", "--json", studio)


def test_figures_take_modes_and_units(tool: Tool, studio: Path) -> None:
    options = {"y_unit": "cd/m²", "map_unit": "cd", "grid": 5}
    told = told_figures(tool, "--mode", 2, "--y-unit", "cd/m²", "--map-unit", "cd", "--grid", 5, studio)
    assert lvdata.figures(studio, mode=2, **options) == told  # type: ignore[arg-type]
    with pytest.raises(ValueError, match="studio.xml: no colour mode has the index 77; known indices: 0, 1, 2, 3, 4"):
        lvdata.figures(studio, mode=77)
    with pytest.raises(ValueError, match="-1 is not an index"):
        lvdata.figures(studio, mode=-1)
    with pytest.raises(ValueError, match="grid must be a number from 0 to 10000"):
        lvdata.figures(studio, grid=10001)


def test_figures_have_the_published_values(studio: Path) -> None:
    expected = studio.parents[2] / "tests" / "analysis" / "figures" / "studio_figures.txt"
    assert expected.is_file()
    contrast = lvdata.figures(studio, mode=2)["modes"][0]["figures"]["contrast"]["measured"]
    assert any(line.split()[-1] == str(contrast) for line in expected.read_text().splitlines() if "contrast" in line)


def test_rows_are_those_of_the_tool(tool: Tool, studio: Path) -> None:
    for name in lvdata.tables():
        lines = tool("convert", "--to", "jsonl", "--table", name, studio).splitlines()
        rows = lvdata.table(studio, name)
        assert rows == [json.loads(line) for line in lines]
        assert rows
        assert [*rows[0]] == [column.name for column in lvdata.tables()[name].columns]
        assert {row["file"] for row in lvdata.table(studio.read_bytes(), name)} == {None}


def test_tables_say_what_they_hold() -> None:
    tables = lvdata.tables()
    assert [*tables] == ["monitors", "modes", "patches", "curves", "maps"]
    assert tables["modes"].rows
    [serial] = [column for column in tables["modes"].columns if column.name == "serial"]
    assert serial == ("serial", "", "serial number of the monitor", "text")
    with pytest.raises(ValueError, match="unknown table 'cars'; known tables: monitors, modes, patches, curves, maps"):
        lvdata.table(b"<AssetInfo/>", "cars")


def test_other_threads_go_on_while_a_document_is_checked() -> None:
    text = b"<AssetInfo>" + b"<X/>" * 200_000 + b"</AssetInfo>"
    assert turns_of_another_thread(lambda: lvdata.check(text, most=0)) > 20


def test_threads_can_share_a_document(studio: Path) -> None:
    expected = lvdata.figures(studio), lvdata.check(studio), lvdata.report(studio)
    wrong = []

    def work() -> None:
        for _ in range(3):
            if (lvdata.figures(studio), lvdata.check(studio), lvdata.report(studio)) != expected:
                wrong.append(True)

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong
