"""Pages of monitors: the same as the tool's, byte for byte."""

from __future__ import annotations

import html
import pickle
from collections.abc import Callable
from pathlib import Path

import lvdata
import pytest
from conftest import later
from lvdata import _lvdata, _reports

Tool = Callable[..., bytes]


@pytest.fixture
def history(studio: Path, tmp_path: Path) -> list[Path]:
    """Documents of one monitor, not in the order of time."""
    folder = tmp_path / "history"
    folder.mkdir()
    files = []
    for number, day in enumerate(("2024-01-10", "2025-02-01", "2023-06-30")):
        files.append(folder / f"{number}.xml")
        files[-1].write_bytes(later(studio.read_bytes(), day))
    return files


def test_a_page_is_the_same_as_from_the_tool(tool: Tool, studio: Path, golden: list[Path]) -> None:
    pages = 0
    for file in [studio, *(file for file in golden if file.name == "typical.xml")]:
        try:
            page = lvdata.report(file)
        except lvdata.ParseError as error:
            assert str(error).encode() in tool("report", file, failed=True).replace(b"error: ", b"")
            continue
        assert page.html.encode() == tool("report", file)
        pages += 1
    assert pages > 4


def test_several_documents_give_a_history(tool: Tool, history: list[Path]) -> None:
    assert lvdata.report(history).html.encode() == tool("report", *history)
    assert lvdata.report(iter(history)) == lvdata.report(history)
    texts = [file.read_bytes() for file in history]
    assert lvdata.report(texts).html.count("&lt;document&gt;") > 0


def test_options_have_the_meaning_of_the_tool(tool: Tool, studio: Path, tmp_path: Path) -> None:
    page = lvdata.report(
        studio, limits="iso14861", mode=2, title="A & B", date="today", y_unit="cd", map_unit="%", grid=5
    )
    options = ["--limits=iso14861", "--mode=2", "--title=A & B", "--date=today"]
    options += ["--y-unit=cd", "--map-unit=%", "--grid=5"]
    assert page.html.encode() == tool("report", *options, studio)
    limits = tmp_path / "mine.json"
    limits.write_bytes((studio.parents[2] / "limits" / "iso14861.json").read_bytes())
    assert lvdata.report(studio, limits=limits).html.encode() == tool("report", f"--limits={limits}", studio)


def test_a_page_shows_and_saves_itself(studio: Path, tmp_path: Path) -> None:
    page = lvdata.report(studio)
    shown = page._repr_html_()
    assert shown.startswith('<iframe srcdoc="')
    inside = shown.removeprefix('<iframe srcdoc="').partition('"')[0]
    assert html.unescape(inside) == page.html == str(page)
    page.save(tmp_path / "a.html")
    assert (tmp_path / "a.html").read_bytes() == page.html.encode()
    assert pickle.loads(pickle.dumps(page)) == page


def test_what_cannot_be_reported_is_refused(studio: Path, tmp_path: Path) -> None:
    other = tmp_path / "other.xml"
    other.write_bytes(later(studio.read_bytes(), "2024-03-03", uuid="another"))
    with pytest.raises(lvdata.ParseError, match="is about a different monitor than the documents before it") as raised:
        lvdata.report([studio, other])
    assert raised.value.file == str(other)
    with pytest.raises(lvdata.ParseError, match="has no UUID and no serial number, so it cannot be matched with"):
        lvdata.report([studio, b"<MonitorInfo/>"])
    with pytest.raises(lvdata.ParseError, match="no colour mode has the index 9; known indices: 0, 1, 2, 3, 4"):
        lvdata.report(studio, mode=9)
    with pytest.raises(lvdata.ParseError) as without_file:
        lvdata.report(studio.read_bytes(), mode=9)
    assert without_file.value.file is None
    with pytest.raises(ValueError, match="no file and no limit set has this name; known limit sets: default, iso14861"):
        lvdata.report(studio, limits="strict")
    with pytest.raises(ValueError, match="no documents were given"):
        lvdata.report([])
    wrong = tmp_path / "limits.json"
    wrong.write_text('{\n"nam": 1}')
    with pytest.raises(ValueError, match=r"limits.json: line \d: "):
        lvdata.report(studio, limits=wrong)


def test_a_document_that_changes_while_it_is_read_is_refused(studio: Path) -> None:
    text = studio.read_bytes()
    monitor = _lvdata.MonitorSources(("", "", 0), False)
    monitor.add(text, b"a.xml")
    form = _lvdata.ReportForm("", "", None, "default")
    with pytest.raises(lvdata.ParseError, match="a.xml: changed while it was read"):
        _lvdata.page(monitor, later(text, "2024-01-01"), form)


def test_a_fleet_has_the_pages_of_the_tool(tool: Tool, studio: Path, history: list[Path], tmp_path: Path) -> None:
    archive = history[0].parent
    (archive / "other.xml").write_bytes(later(studio.read_bytes(), "2024-03-03", uuid="another"))
    (archive / "unnamed.xml").write_bytes(b"<MonitorInfo><UUID>7</UUID></MonitorInfo>")
    tool("report", "--title=All", "-o", f"{tmp_path}/pages/", archive)

    files = lvdata.documents(archive)
    keys = [(file, _reports.monitor_key(file)) for file in files]
    keys = pickle.loads(pickle.dumps(keys))
    entries = []
    names = {"index.html"}
    for group in pickle.loads(pickle.dumps(_reports.monitor_pages(keys))):
        page = pickle.loads(pickle.dumps(_reports.page_of(group, {})))
        assert page.html.encode() == (tmp_path / "pages" / group.page).read_bytes()
        entries.append(page.entry)
        names.add(group.page)
    index = _reports.index_page(entries, {}, "All")
    assert index.encode() == (tmp_path / "pages" / "index.html").read_bytes()
    assert names == {file.name for file in (tmp_path / "pages").iterdir()}
    assert [entry["documents"] for entry in entries] == [1, 3, 1]


def test_a_fleet_keeps_bytes_that_are_not_utf8(tool: Tool, studio: Path, tmp_path: Path) -> None:
    file = tmp_path / "a.xml"
    file.write_bytes(studio.read_bytes().replace(b"Studio wall", b"Studio \xff wall"))
    tool("report", "-o", f"{tmp_path}/pages/", file)
    [group] = _reports.monitor_pages([(str(file), _reports.monitor_key(file))])
    index = _reports.index_page([_reports.page_of(group, {}).entry], {}, "")
    assert index.encode() == (tmp_path / "pages" / "index.html").read_bytes()
