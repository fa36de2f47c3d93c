"""fleet.report against `lvdata report`."""

from __future__ import annotations

import json
import os
from typing import Any

import dask
import lvdata
import pytest
from fleet_support import STUDIO, Folder, bad, document, messages, tool  # noqa: F401
from lvdata import _fleet_report, _reports, fleet
from lvdata._sources import Text


LIMIT = {"figure": "patches_delta_e2000_mean", "maximum": 1}


@pytest.fixture
def monitors(tmp_path: Folder) -> Folder:
    """Five documents of monitors: one monitor has two, and two have the same name and serial number."""
    folder = tmp_path / "monitors"
    folder.mkdir()
    text = STUDIO.read_text(encoding="utf-8")
    uuid = "6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417"
    assert uuid in text
    (folder / "0.xml").write_text(text, encoding="utf-8")
    (folder / "1.xml").write_text(text.replace("2024-05-02", "2023-05-02"), encoding="utf-8")
    (folder / "2.xml").write_text(text.replace(uuid, "other"), encoding="utf-8")
    (folder / "3.xml").write_text(text.replace(uuid, "third").replace("Studio wall", "Attic"), encoding="utf-8")
    (folder / "4.xml").write_text(document(1))
    return folder


def content(folder: Folder) -> dict[str, bytes]:
    return {file.name: file.read_bytes() for file in folder.iterdir()}


def test_a_report_has_the_files_of_the_command(monitors: Folder, tmp_path: Folder) -> None:
    command = tool("report", monitors, "-o", f"{tmp_path}/command/")
    reported = fleet.report(monitors, tmp_path / "fleet", documents_per_task=2)
    assert command.returncode == 0
    assert content(tmp_path / "fleet") == content(tmp_path / "command")
    assert sorted([*reported.pages, "index.html"]) == sorted(os.listdir(tmp_path / "command"))
    assert len(reported.pages) == 4
    assert fleet.report(monitors, tmp_path / "fleet") == reported  # its own pages are overwritten


def test_a_report_takes_the_options_of_the_command(monitors: Folder, tmp_path: Folder) -> None:
    limits = tmp_path / "own.json"
    limits.write_text(json.dumps({"name": "own", "title": "Own", "notice": "ours", "limits": [LIMIT]}))
    options = ["--limits", limits, "--title", "All", "--date", "2024", "--mode", "2", "--grid", "5"]
    units = ["--y-unit", "cd/m²", "--map-unit", "%"]
    tool("report", monitors, "-o", f"{tmp_path}/command/", *options, *units)
    with pytest.raises(lvdata.ParseError, match="no colour mode has the index 2"):
        fleet.report(monitors, tmp_path / "fleet", limits=limits, title="All", date="2024", mode=2, y_unit="cd/m²",
                     map_unit="%", grid=5)
    assert len(content(tmp_path / "command")) == 4
    assert content(tmp_path / "fleet") == content(tmp_path / "command")
    tool("report", monitors, "-o", f"{tmp_path}/iso/", "--limits", "iso14861")
    fleet.report(monitors, tmp_path / "iso2", limits="iso14861")
    assert content(tmp_path / "iso2") == content(tmp_path / "iso")
    assert content(tmp_path / "iso2") != content(tmp_path / "fleet")


def test_a_known_limit_set_is_not_read_as_a_file(
    monitors: Folder, tmp_path: Folder, monkeypatch: pytest.MonkeyPatch
) -> None:
    for name in ("default", "iso14861"):
        (tmp_path / name).mkdir()
    monkeypatch.chdir(tmp_path)
    for limits in ("default", "iso14861"):
        fleet.report(monitors, f"fleet-{limits}", limits=limits)
        tool("report", monitors, "-o", f"{tmp_path}/command-{limits}/", "--limits", limits)
        assert content(tmp_path / f"fleet-{limits}") == content(tmp_path / f"command-{limits}")


@pytest.mark.parametrize(
    "options, message",
    [
        ({"grid": 99999}, "grid must be a number from 0 to 10000"),
        ({"mode": -1}, "-1 is not an index"),
        ({"limits": "own"}, "no file and no limit set has this name"),
        ({"errors": "skip"}, "one of: raise, collect"),
        ({"documents_per_task": 0}, "documents_per_task must be at least 1"),
    ],
)
def test_wrong_arguments_are_not_reported_as_bad_documents(
    monitors: Folder, tmp_path: Folder, options: dict[str, Any], message: str
) -> None:
    with pytest.raises(ValueError, match=message) as raised:
        fleet.report(monitors, tmp_path / "fleet", **{"errors": "collect", **options})
    assert not isinstance(raised.value, lvdata.ParseError)
    assert not (tmp_path / "fleet").exists()


def test_missing_limits_of_workers_are_not_reported_as_bad_documents(
    monitors: Folder, tmp_path: Folder, monkeypatch: pytest.MonkeyPatch
) -> None:
    page_of = _fleet_report.page_of
    unseen: Any = {"limits": "unseen.json"}
    monkeypatch.setattr(_fleet_report, "page_of", lambda page, options: page_of(page, {**options, **unseen}))
    with dask.config.set(scheduler="sync"), pytest.raises(ValueError, match="unseen.json: no file and no limit set has this name"):
        fleet.report(monitors, tmp_path / "fleet", errors="collect")


def test_a_document_without_the_only_mode_is_reported_once(monitors: Folder, tmp_path: Folder) -> None:
    reported = fleet.report(monitors / "4.xml", tmp_path / "fleet", mode=99, errors="collect")
    command = tool("report", monitors / "4.xml", "-o", f"{tmp_path}/command/", "--mode", 99)
    assert messages(reported.errors) == command.stderr.decode().splitlines()


def test_bad_documents_are_left_out_of_a_report(monitors: Folder, bad: list[Folder], tmp_path: Folder) -> None:
    (monitors / "5.xml").write_text(document(4))
    paths = [*bad, monitors]
    command = tool("report", *paths, "-o", f"{tmp_path}/command/")
    reported = fleet.report(paths, tmp_path / "fleet", errors="collect")
    assert content(tmp_path / "fleet") == content(tmp_path / "command")
    assert messages(reported.errors) == [line.split(" (limit")[0] for line in command.stderr.decode().splitlines()]
    assert len(reported.errors) == 5
    assert fleet.report(bad, tmp_path / "none", errors="collect").pages == []
    assert not (tmp_path / "none").exists()


def test_other_files_are_not_overwritten_by_a_report(monitors: Folder, tmp_path: Folder) -> None:
    (tmp_path / "index.html").write_text("mine")
    with pytest.raises(FileExistsError):
        fleet.report(monitors, tmp_path)
    assert (tmp_path / "index.html").read_text() == "mine"


def test_a_document_that_changes_meanwhile_is_reported(
    monitors: Folder, tmp_path: Folder, monkeypatch: pytest.MonkeyPatch
) -> None:
    text_of = _reports.text_of
    read: list[str] = []

    def changing(file: str) -> Text:
        read.append(file)
        text, name = text_of(file)
        return Text(text.replace(b">third<", b">fourth<") if len(read) > 5 else text, name)

    monkeypatch.setattr(_reports, "text_of", changing)
    with dask.config.set(scheduler="sync"):
        reported = fleet.report(monitors, tmp_path / "fleet", errors="collect")
    assert reported.errors == [(str(monitors / "3.xml"), None, "changed while it was read")]
    assert len(reported.pages) == 3
