"""mypy --strict has nothing to say about the package, its stubs, the examples and the benchmark."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
from pathlib import Path

import lvdata
import pytest

ROOT = Path(os.environ["LVDATA_SAMPLES_DIR"]).parents[1]
CONFIGURATION = Path(__file__).with_name("mypy.ini")
PACKAGE = Path(lvdata.__file__).parent  # with the stubs that the build made

ALONE = "--follow-imports=silent"  # nothing is said of the modules that a file imports


@pytest.fixture
def package(tmp_path: Path) -> Path:
    """The package as it is installed, without the compiled part, of which the stubs tell."""
    files = shutil.ignore_patterns("*.so", "__pycache__")
    return Path(shutil.copytree(PACKAGE, tmp_path / "lvdata", ignore=files))


def judge(*arguments: str | Path, search: Path) -> str:
    """What mypy says of these files, which find the package in the folder `search`."""
    command: list[str | Path] = [sys.executable, "-m", "mypy", "--config-file", CONFIGURATION, "--cache-dir", search / "cache"]
    environment = dict(os.environ, MYPYPATH=str(search))
    command += ["--no-error-summary", *arguments]
    done = subprocess.run(command, env=environment, capture_output=True, text=True, cwd=search)
    return done.stdout + done.stderr


def test_the_package_and_its_stubs_have_correct_types(package: Path) -> None:
    assert judge(package, search=package.parent) == ""


def test_sources_with_stubs_have_correct_types(package: Path) -> None:
    # mypy takes the stub for the module, and would not look at the source.
    for stub in package.glob("*.pyi"):
        if stub.with_suffix(".py").exists():
            stub.unlink()
            assert judge(ALONE, stub.with_suffix(".py"), search=package.parent) == ""


@pytest.mark.parametrize("script", sorted((ROOT / "python" / "examples").glob("*.py")), ids=lambda path: path.stem)
def test_the_examples_have_correct_types(script: Path, package: Path) -> None:
    assert judge(ALONE, script, search=package.parent) == ""


def test_the_benchmark_has_correct_types(package: Path) -> None:
    assert judge(ALONE, ROOT / "benchmarks" / "python_reading.py", search=package.parent) == ""
