"""Rows of many documents: the same as the tool's, in the same order."""

from __future__ import annotations

import gc
import json
import os
import signal
import subprocess
import sys
import threading
import time
import tracemalloc
from collections.abc import Callable, Iterator
from pathlib import Path

import lvdata
import pandas  # type: ignore[import]
import pytest
from conftest import turns_of_another_thread
from lvdata import _lvdata

Tool = Callable[..., bytes]


@pytest.fixture
def archive(studio: Path, tmp_path: Path) -> Path:
    """Folders of documents whose names make the order of a walk visible."""
    folder = tmp_path / "archive"
    text = studio.read_bytes()
    for name in ("b.xml", "a/z.xml", "a.xml", "a-.xml", "C.xml", "a/b/c.xml", ".hidden.xml"):
        file = folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(text.replace(b"27W-000417", name.encode()))
    (folder / "notes.txt").write_text("no document")
    (folder / "folder.xml").mkdir()
    (folder / "folder.xml" / "inside.xml").write_bytes(text)
    (folder / "loop").symlink_to(folder)
    (folder / "link.xml").symlink_to(folder / "b.xml")
    os.mkfifo(folder / "pipe.xml")
    return folder


@pytest.fixture(autouse=True)
def no_thread_is_left() -> Iterator[None]:
    before = threading.active_count()
    yield
    gc.collect()
    assert threading.active_count() == before


def rows_of_tool(tool: Tool, table: str, *paths: object) -> list[object]:
    return [json.loads(line) for line in tool("convert", "--to", "jsonl", "--table", table, *paths).splitlines()]


@pytest.mark.parametrize("jobs", [1, 2, 5, None])
def test_rows_are_those_of_the_tool(tool: Tool, archive: Path, studio: Path, jobs: int | None) -> None:
    for table in ("modes", "monitors", "maps"):
        expected = rows_of_tool(tool, table, archive, studio)
        assert list(lvdata.scan([archive, str(studio)], table, jobs=jobs)) == expected
    many = [archive] * 6  # more than are read ahead
    assert list(lvdata.scan(many, "monitors", jobs=jobs)) == rows_of_tool(tool, "monitors", *many)
    assert list(lvdata.scan(studio, "curves", jobs=jobs)) == lvdata.table(studio, "curves")


def test_documents_are_walked_as_the_tool_does(tool: Tool, archive: Path, studio: Path) -> None:
    found = lvdata.documents([archive, studio])
    names = [os.path.relpath(file, archive) for file in found[:-1]]
    assert names == [*".hidden.xml C.xml a/b/c.xml a/z.xml a-.xml a.xml b.xml".split(), "folder.xml/inside.xml", "link.xml"]
    assert found[-1] == str(studio)
    assert [row["file"] for row in rows_of_tool(tool, "monitors", archive, studio)] == found  # type: ignore[index]
    assert len(lvdata.documents(archive / "loop")) == len(names)


def test_a_data_frame_is_made_in_one_line(archive: Path) -> None:
    frame = pandas.DataFrame(lvdata.scan(archive))
    assert list(frame.columns) == [column.name for column in lvdata.tables()["modes"].columns]
    assert len(frame) == 9 * 5
    assert frame.brightness.max() == 1000


@pytest.mark.parametrize("jobs", [1, 3])
def test_bad_documents_raise_or_are_handed_over(archive: Path, tmp_path: Path, jobs: int) -> None:
    (archive / "a0.xml").write_bytes(b"<MonitorInfo>\n<x></MonitorInfo>")
    (tmp_path / "empty").mkdir()
    paths = [archive, tmp_path / "empty", tmp_path / "missing.xml"]
    with pytest.raises(lvdata.ParseError) as raised:
        list(lvdata.scan(paths, jobs=jobs))
    assert (raised.value.file, raised.value.line) == (str(archive / "a0.xml"), 2)
    problems: list[lvdata.ParseError | OSError] = []
    rows = list(lvdata.scan(paths, "monitors", jobs=jobs, on_error=problems.append))
    assert len(rows) == 9
    files = [each.filename if isinstance(each, OSError) else each.file for each in problems]
    assert files == [str(archive / "a0.xml"), str(tmp_path / "empty"), str(tmp_path / "missing.xml")]
    assert [type(each) for each in problems] == [lvdata.ParseError, FileNotFoundError, FileNotFoundError]
    assert "no files named *.xml in this folder" in str(problems[1])


def test_a_walk_raises_or_goes_on(archive: Path, tmp_path: Path) -> None:
    (tmp_path / "empty").mkdir()
    with pytest.raises(FileNotFoundError, match="no files named"):
        lvdata.documents([tmp_path / "empty", archive])
    problems: list[OSError] = []
    assert len(lvdata.documents([tmp_path / "empty", archive], on_error=problems.append)) == 9
    assert len(problems) == 1


def test_what_an_error_handler_raises_ends_the_scan(archive: Path) -> None:
    (archive / "a0.xml").write_bytes(b"<")

    def stop(problem: Exception) -> None:
        raise KeyError(str(problem))

    with pytest.raises(KeyError):
        list(lvdata.scan(archive, jobs=2, on_error=stop))


def test_wrong_arguments_are_refused_at_once(archive: Path) -> None:
    with pytest.raises(ValueError, match="unknown table 'x'; known tables: monitors"):
        lvdata.scan(archive, "x")
    for jobs in (0, -1, 1025):
        with pytest.raises(ValueError, match="jobs must be a number from 1 to 1024"):
            lvdata.scan(archive, jobs=jobs)
    with pytest.raises(TypeError, match="a path is a str or an os.PathLike, not bytes"):
        lvdata.scan([b"x"])  # type: ignore[list-item]
    with pytest.raises(TypeError):
        lvdata.scan(7)  # type: ignore[arg-type]


def test_a_scan_that_is_dropped_leaves_no_thread(archive: Path) -> None:
    for jobs in (1, 2):
        rows = lvdata.scan([archive] * 20, jobs=jobs)
        next(rows)
        del rows
        unused = lvdata.scan(archive, jobs=jobs)
        del unused


def test_only_a_few_documents_are_read_ahead(archive: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    begun = []

    def counted(file: bytes, table: str) -> str:
        begun.append(file)
        return "[{}]"

    monkeypatch.setattr(_lvdata, "rows_of_file", counted)
    rows = lvdata.scan([archive] * 100, "monitors", jobs=2)
    next(rows)
    time.sleep(0.2)
    assert 1 <= len(begun) <= 18
    rows.close()  # type: ignore[attr-defined]


def test_memory_stays_flat(tmp_path: Path) -> None:
    for number in range(2000):
        (tmp_path / f"{number}.xml").write_bytes(b"<MonitorInfo><UUID>%d</UUID></MonitorInfo>" % number)
    sum(1 for _ in lvdata.scan(tmp_path, "monitors", jobs=2))
    tracemalloc.start()
    try:
        assert sum(1 for _ in lvdata.scan(tmp_path, "monitors", jobs=2)) == 2000
        _, peak = tracemalloc.get_traced_memory()
    finally:
        tracemalloc.stop()
    assert peak < 1_000_000


def test_ctrl_c_ends_a_scan(archive: Path) -> None:
    script = (
        "import lvdata, sys, threading\n"
        "try:\n"
        "    for number, row in enumerate(lvdata.scan([sys.argv[1]] * 100_000, 'monitors', jobs=2)):\n"
        "        if number == 5: print('running', flush=True)\n"
        "except KeyboardInterrupt:\n"
        "    print('ended', threading.active_count())\n"
    )
    command = [sys.executable, "-X", "dev", "-W", "error", "-c", script, str(archive)]
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE) as process:
        assert process.stdout and process.stdout.readline() == b"running\n"
        process.send_signal(signal.SIGINT)
        out, errors = process.communicate(timeout=60)
    assert (out, errors) == (b"ended 1\n", b"")


def test_other_threads_go_on_during_a_scan(tmp_path: Path) -> None:
    large = tmp_path / "large.xml"
    large.write_bytes(b"<MonitorInfo>" + b"<X/>" * 200_000 + b"</MonitorInfo>")
    rows: list[object] = []
    assert turns_of_another_thread(lambda: rows.extend(lvdata.scan(large, "monitors", jobs=2))) > 20
    assert len(rows) == 1
