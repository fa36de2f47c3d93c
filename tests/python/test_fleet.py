"""lvdata.fleet against the command, in this process. test_fleet_errors.py has bad documents,
test_fleet_cluster.py what needs workers."""

from __future__ import annotations

import json
import os
import subprocess
import sys
import tomllib
from typing import Any

import lvdata
import pandas
import pytest
from fleet_support import STUDIO, Folder, bad, document, few, here, joined, printed, tool  # noqa: F401
from lvdata import fleet

# Which documents, in which order.


def test_documents_come_in_the_order_of_the_command(tmp_path: Folder) -> None:
    names = [b"b.xml", b"B.xml", b"a/x.xml", b"a/.xml", b"a-.xml", b"a0/y.xml", b"\xc3\xa4.xml", b"\xff.xml", b"~.xml"]
    for name in names:
        file = os.path.join(os.fsencode(tmp_path), name)
        os.makedirs(os.path.dirname(file), exist_ok=True)
        with open(file, "w", encoding="utf-8") as stream:
            stream.write(document(0))
    (tmp_path / "other.txt").write_text("no document")
    (tmp_path / "folder.xml").symlink_to("a")
    os.mkfifo(tmp_path / "pipe.xml")
    (tmp_path / "link.xml").symlink_to("b.xml")
    (tmp_path / "linked").symlink_to("a")
    paths = [f"{tmp_path}/", tmp_path / "linked", tmp_path / "b.xml", tmp_path / "a"]
    assert joined(fleet.text(paths, "modes"), scheduler="sync") == printed("modes", "csv", f"{tmp_path}/", *paths[1:3],
                                                                           tmp_path / "a")


def test_without_documents_there_is_nothing_but_columns() -> None:
    assert joined(fleet.text([], "modes"), scheduler="sync") == printed("modes", "csv", os.devnull)
    assert here(fleet.text([], "modes", form="jsonl")) == [b""]
    assert here(fleet.rows([], "modes")) == []
    assert len(here(fleet.table([], "modes"))) == 0
    assert len(here(fleet.check([]))) == 0


@pytest.mark.parametrize("path", [STUDIO, str(STUDIO), [STUDIO], iter([STUDIO])])
def test_one_document_is_enough(path: Any) -> None:
    assert joined(fleet.text(path, "curves"), scheduler="sync") == printed("curves", "csv", STUDIO)


@pytest.mark.parametrize("size", [1, 3, 10, 11])
def test_documents_are_partitioned_by_their_number(few: Folder, size: int) -> None:
    text = fleet.text(few, "modes", documents_per_task=size)
    assert text.npartitions == -(-10 // size)
    assert joined(text, scheduler="sync") == printed("modes", "csv", few)


# Tables.


@pytest.mark.parametrize("table", ["monitors", "modes", "patches", "curves", "maps"])
def test_types_are_known_before_anything_is_read(table: str, few: Folder) -> None:
    (few / "3.xml").unlink()
    lazy = fleet.table([STUDIO, few / "4.xml", few / "missing.xml"], table, documents_per_task=1)
    frames = [part.compute(scheduler="sync") for part in [lazy.get_partition(0), lazy.get_partition(1)]]
    kinds = {"Float64", "Int64", "string"}
    for frame in frames:
        assert list(frame.dtypes.items()) == list(lazy.dtypes.items())
        assert {str(kind) for kind in frame.dtypes} <= kinds
    assert len(frames[0]) > 0
    lines = printed(table, "jsonl", STUDIO).splitlines()
    assert here(fleet.rows(STUDIO, table)) == [json.loads(line) for line in lines]


def test_numbers_are_those_of_the_text() -> None:
    frame = here(fleet.table(STUDIO, "modes"))
    assert str(frame.dtypes["mode_index"]) == "Int64" and str(frame.dtypes["white_x"]) == "Float64"
    assert frame.white_x[2] == 0.3127 and frame.mode_index[2] == 2 and frame.white_x[0] is pandas.NA


@pytest.mark.parametrize(
    "call, message",
    [
        (lambda: fleet.rows([], "mode"), "one of: monitors, modes, patches, curves, maps"),
        (lambda: fleet.table([], "mode"), "one of: monitors"),
        (lambda: fleet.text([], "modes", form="xml"), "one of: csv, jsonl"),  # type: ignore[call-overload]
        (lambda: fleet.rows([], "modes", errors="skip"), "one of: raise, collect"),  # type: ignore[call-overload]
        (lambda: fleet.rows([], "modes", documents_per_task=0), "at least 1"),
        (lambda: fleet.rows(["a", ""], "modes"), "path is empty"),
        (lambda: fleet.check([], ignore=["x"]), "'x' is not the id of a rule"),
        (lambda: fleet.write([], "mode", "x"), "one of: monitors"),
        (lambda: fleet.write([], "modes", ""), "path is empty"),
        (lambda: fleet.write(["missing.xml"], "modes", "x", documents_per_task=0), "documents_per_task must be"),
    ],
)
def test_wrong_arguments_say_what_is_possible(call: Any, message: str) -> None:
    with pytest.raises(ValueError, match=message):
        call()


def test_a_path_is_not_bytes() -> None:
    with pytest.raises(TypeError, match="not bytes"):
        fleet.rows(b"/x", "modes")  # type: ignore[call-overload]


# Findings.


def found_by_command(*arguments: object) -> list[dict[str, Any]]:
    findings: list[dict[str, Any]] = json.loads(tool("check", "--format", "json", *arguments).stdout)["findings"]
    return findings


def listed(frame: Any) -> list[dict[str, Any]]:
    """The findings of documents that could be read, as the command prints them."""
    rows = json.loads(frame[frame.id != "unreadable"].to_json(orient="records"))
    return [{**row, "line": row["line"] or 0, "path": row["path"] or ""} for row in rows]


def test_findings_are_those_of_the_command(few: Folder, bad: list[Folder]) -> None:
    (few / "5.xml").write_text("<MonitorInfo>\n<Unknown/><UUID a='1'/></MonitorInfo>")
    paths = [few, STUDIO, *bad]
    frame = here(fleet.check(paths, documents_per_task=2))
    assert listed(frame) == found_by_command(*paths)
    assert {"error", "warning", "info"} == set(frame.severity)
    unreadable = frame[frame.id == "unreadable"]
    assert list(unreadable.file) == list(map(str, bad[1:]))
    assert list(unreadable.severity) == ["error"] * 3
    assert list(unreadable.message)[:2] == ["No such file or directory", "Too many levels of symbolic links"]
    assert list(unreadable.line)[2] == 1


def test_rules_can_be_left_out_and_added(few: Folder) -> None:
    everything = found_by_command("--roundtrip", few)
    some = everything[0]["id"]
    assert listed(here(fleet.check(few, roundtrip=True))) == everything
    assert listed(here(fleet.check(few, roundtrip=True, ignore=[some]))) == found_by_command(
        "--roundtrip", "--ignore", some, few
    )


# Files and reports.


def test_a_bad_document_raises_after_the_good_ones_were_written(few: Folder, bad: list[Folder]) -> None:
    target = few.parent / "modes.csv"
    with pytest.raises(lvdata.ParseError):
        fleet.write([few, *bad], "modes", target)
    assert target.read_bytes() == printed("modes", "csv", few)
    written = fleet.write([few, *bad], "modes", target, errors="collect")
    assert [error.file for error in written.errors] == list(map(str, bad))


def test_a_document_is_not_overwritten_by_its_table(few: Folder) -> None:
    file = few / "1.xml"
    (few / "link").symlink_to("1.xml")
    (few.parent / "second.xml").hardlink_to(file)
    for target in (file, few / "link", few.parent / "second.xml"):
        with pytest.raises(FileExistsError, match="one of the documents"):
            fleet.write([few / "missing.xml", few], "modes", target)
    assert file.read_text(encoding="utf-8") == document(1)
    assert (few / "link").is_symlink()


def test_only_regular_files_are_overwritten(few: Folder) -> None:
    os.mkfifo(few / "pipe")
    for target in (few / "pipe", os.devnull):
        with pytest.raises(FileExistsError, match="not a regular file"):
            fleet.write(few, "modes", target)
    assert (few / "pipe").is_fifo()


def test_a_table_keeps_link_and_rights_of_its_file(few: Folder) -> None:
    file = few.parent / "modes.csv"
    file.touch()
    file.chmod(0o640)
    for link, name in [("old.csv", "modes.csv"), ("new.csv", "made.csv")]:
        (few / link).symlink_to(few.parent / name)
        fleet.write(few, "modes", few / link)
        assert (few / link).is_symlink()
        assert (few.parent / name).read_bytes() == printed("modes", "csv", few)
    assert file.stat().st_mode & 0o777 == 0o640


@pytest.mark.parametrize("target", ["modes.csv", "parts/"])
def test_nothing_is_written_when_an_argument_is_wrong(few: Folder, target: str) -> None:
    with pytest.raises(ValueError, match="one of: raise, collect"):
        fleet.write(few, "modes", f"{few.parent}/{target}", errors="skip")  # type: ignore[arg-type]
    assert os.listdir(few.parent) == ["few"]


def test_parts_of_two_runs_are_not_mixed(few: Folder, tmp_path: Folder) -> None:
    parts = tmp_path / "parts"
    parts.mkdir()
    fleet.write(few, "modes", parts, form="jsonl")
    assert (parts / "part-00000.jsonl").read_bytes() == printed("modes", "jsonl", few)
    with pytest.raises(FileExistsError):
        fleet.write(few, "modes", parts)


# Without Dask.


def python(code: str) -> subprocess.CompletedProcess[str]:
    return subprocess.run([sys.executable, "-X", "dev", "-W", "error", "-c", code], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True)


def test_the_package_does_not_need_dask() -> None:
    result = python("import sys, lvdata; assert not {'dask', 'distributed', 'pandas', 'numpy'} & set(sys.modules)")
    assert (result.returncode, result.stdout) == (0, "")


def test_without_dask_the_error_says_what_to_install() -> None:
    result = python("import sys; sys.modules['dask'] = None; import lvdata.fleet")
    assert result.returncode != 0
    assert "ImportError: lvdata.fleet needs Dask: install python3-dask and python3-distributed" in result.stdout
    wanted = tomllib.loads((STUDIO.parents[2] / "pyproject.toml").read_text())["project"]["optional-dependencies"]
    for package in wanted["fleet"][:2]:
        assert f"'{package}'" in result.stdout
