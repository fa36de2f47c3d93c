"""The scripts of python/examples/ run as people run them, and write nothing but into the folder that they are given."""

from __future__ import annotations

import os
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest

SAMPLES = Path(os.environ["LVDATA_SAMPLES_DIR"])
EXAMPLES = SAMPLES.parents[1] / "python" / "examples"
# pandas says that a newer numexpr would be quicker, and asks for modules that are on their way out.
THIRD_PARTY = ["-W", "ignore::DeprecationWarning:pandas", "-W", "ignore::UserWarning:pandas"]


def run(name: str, *arguments: str | Path, folder: Path) -> str:
    """What the example prints, started in a folder of its own."""
    done = subprocess.run(
        [sys.executable, "-X", "dev", "-W", "error", *THIRD_PARTY, EXAMPLES / f"{name}.py", *arguments],
        cwd=folder,
        capture_output=True,
        encoding="utf-8",
        env=dict(os.environ, PYTHONIOENCODING="utf-8"),
    )
    assert done.returncode == 0, done.stderr
    assert done.stderr == ""
    return done.stdout


def files_in(folder: Path) -> set[str]:
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


def test_every_example_is_run() -> None:
    assert {path.stem for path in EXAMPLES.glob("*.py")} == {"one_monitor", "comparison", "fleet"}


@pytest.mark.parametrize("name", ["one_monitor", "comparison", "fleet"])
def test_without_arguments_the_samples_are_read_and_nothing_is_written(name: str, tmp_path: Path) -> None:
    before = files_in(EXAMPLES), files_in(SAMPLES)
    assert run(name, folder=tmp_path).strip()
    assert files_in(tmp_path) == set()
    assert (files_in(EXAMPLES), files_in(SAMPLES)) == before


def test_one_monitor_prints_its_modes_and_figures(tmp_path: Path) -> None:
    lines = run("one_monitor", folder=tmp_path).splitlines()
    assert lines[0] == "Studio wall, LV-27W, serial 27W-000417"
    assert "mode 2: Photo, Calibration" in lines
    assert "Photo: white ΔE00 0.12, patches ΔE00 0.07 on average" in lines
    assert "0 findings" in lines


def test_one_monitor_writes_the_edited_document_a_page_and_a_picture(tmp_path: Path) -> None:
    run("one_monitor", SAMPLES / "studio.xml", "out", folder=tmp_path)
    assert files_in(tmp_path) == {"out/edited.xml", "out/gamut.svg", "out/monitor.html"}
    original = (SAMPLES / "studio.xml").read_text(encoding="utf-8")
    edited = (tmp_path / "out" / "edited.xml").read_text(encoding="utf-8")
    assert edited == original.replace("<Name>Studio wall<", "<Name>Studio wall, left<", 1)
    assert ElementTree.parse(tmp_path / "out" / "gamut.svg").getroot().tag.endswith("svg")
    assert "Studio wall, left" in (tmp_path / "out" / "monitor.html").read_text(encoding="utf-8")


def test_comparison_lists_what_differs(tmp_path: Path) -> None:
    output = run("comparison", folder=tmp_path)
    assert "Brightness/Value: 120 -> 140" in output
    assert "0.3457, 0.3585 -> 0.345, 0.3585" in output
    assert "1 beyond the tolerances" in output


def test_comparison_of_a_document_with_itself_finds_nothing(tmp_path: Path) -> None:
    output = run("comparison", SAMPLES / "studio.xml", SAMPLES / "studio.xml", "out", folder=tmp_path)
    assert " -> " not in output
    assert "0 beyond the tolerances" in output
    assert files_in(tmp_path) == {"out/before.svg", "out/after.svg"}


@pytest.fixture
def monitors(tmp_path: Path) -> Path:
    """Two calibrations of one monitor, another monitor, and a document that is broken."""
    folder = tmp_path / "monitors"
    folder.mkdir()
    text = (SAMPLES / "studio.xml").read_text(encoding="utf-8")
    (folder / "a-2024.xml").write_text(text, encoding="utf-8")
    (folder / "a-2025.xml").write_text(text.replace("2024-05-02T", "2025-05-02T"), encoding="utf-8")
    (folder / "b.xml").write_text(text.replace("27W-000417", "27W-000418"), encoding="utf-8")
    (folder / "broken.xml").write_text(text[:1000], encoding="utf-8")
    return folder


def test_fleet_makes_tables_of_all_documents(monitors: Path, tmp_path: Path) -> None:
    output = run("fleet", monitors, tmp_path / "out", folder=tmp_path)
    assert "broken.xml: line 23: the document ends inside an element" in output, "the bad document, with its line"
    assert "colour modes: 15; documents with them: 3; documents that cannot be read: 1" in output
    assert files_in(tmp_path / "out") == {"modes.csv", "drift.csv"}
    assert len((tmp_path / "out" / "modes.csv").read_text(encoding="utf-8").splitlines()) == 16
    drift = [line for line in (tmp_path / "out" / "drift.csv").read_text().splitlines() if "2025-05-02" in line]
    assert drift and all(line.endswith(",0.0") for line in drift), "the same values again are no drift"
