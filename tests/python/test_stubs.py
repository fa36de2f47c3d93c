"""The types that mypy sees are those of the classes that are made when the package is imported."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

import lvdata
import pytest
from records_of_all_classes import CLASSES

HERE = Path(__file__).parent
PACKAGE = Path(lvdata.__file__).parent


def said_by(folder: Path, *arguments: str) -> tuple[int, str]:
    """The exit status of a module of mypy, and what it printed."""
    environment = {**os.environ, "MYPYPATH": str(PACKAGE.parent), "MYPY_CACHE_DIR": str(folder)}
    command = [sys.executable, "-m", *arguments]
    done = subprocess.run(command, env=environment, cwd=folder, capture_output=True, text=True)
    return done.returncode, done.stdout + done.stderr


@pytest.fixture(scope="module")
def cache(tmp_path_factory: pytest.TempPathFactory) -> Path:
    return tmp_path_factory.mktemp("mypy")


def test_each_class_and_attribute_is_in_the_stub() -> None:
    text = (PACKAGE / "_records.pyi").read_text()
    for cls in CLASSES:
        assert f"class {cls.__name__}(" in text
        for name in cls._names:
            assert f"    {name}: " in text


def test_the_package_has_strict_types(cache: Path) -> None:
    status, text = said_by(cache, "mypy", "--strict", "-p", "lvdata")
    assert status == 0, text


def test_right_programs_have_no_errors(cache: Path) -> None:
    status, text = said_by(cache, "mypy", "--strict", str(HERE / "typed_right.py"))
    assert status == 0, text


def test_each_wrong_line_is_an_error(cache: Path) -> None:
    path = HERE / "typed_wrong.py"
    _, text = said_by(cache, "mypy", "--strict", str(path))
    for number, line in enumerate(path.read_text().splitlines(), 1):
        found = [each for each in text.splitlines() if f"typed_wrong.py:{number}: error" in each]
        reason = line.partition("  # ")[2]
        assert bool(found) == bool(reason), (line, found)
        assert any(reason in each for each in found) or not reason, (line, found)


def test_the_stub_describes_the_module(cache: Path) -> None:
    status, text = said_by(cache, "mypy.stubtest", "lvdata._records", "lvdata._lvdata", "--ignore-missing-stub")
    assert status == 0, text
