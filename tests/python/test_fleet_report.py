"""fleet.report against `lvdata report`."""

from __future__ import annotations

import json
import os

import dask
import lvdata
import pytest
from fleet_support import STUDIO, Folder, bad, document, messages, tool  # noqa: F401
from lvdata import _reports, fleet
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


def test_a_document_that_changes_meanwhile_is_told(
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
