"""The wheel: what is in it, and that it works where it is installed. tests/install/CMakeLists.txt sets the environment."""

from __future__ import annotations

import email
import os
import re
import shutil
import subprocess
import sys
import tarfile
import zipfile
from collections.abc import Mapping
from pathlib import Path

import pytest

HERE = Path(__file__).parent
SOURCE_DIR = Path(os.environ["LVDATA_SOURCE_DIR"])
WORK_DIR = Path(os.environ["LVDATA_WORK_DIR"])
VERSION = os.environ["LVDATA_VERSION"]
PIP = [sys.executable, "-m", "pip", "--disable-pip-version-check", "--no-input"]


def run(*command: str | Path, environment: Mapping[str, str] | None = None, folder: str | Path = "/") -> str:
    done = subprocess.run(
        command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, cwd=folder
    )
    assert done.returncode == 0, done.stdout
    return done.stdout


def distutils_configuration(folder: Path) -> Path:
    """Keeps the build out of the source tree, and in a folder that a second run uses again."""
    path = folder / "build.cfg"
    path.write_text(f"[build]\nbuild_base = {WORK_DIR / 'wheel'}\n[egg_info]\negg_base = {folder}\n")
    return path


@pytest.fixture(scope="module")
def source(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """What a source archive unpacks to. Files keep their times, so that a second run builds little."""
    folder = tmp_path_factory.mktemp("source")
    environment = dict(os.environ, DIST_EXTRA_CONFIG=str(distutils_configuration(folder)))
    make = f"from setuptools import build_meta; build_meta.build_sdist({str(folder)!r})"
    run(sys.executable, "-c", make, environment=environment, folder=SOURCE_DIR)
    shutil.rmtree(WORK_DIR / "source", ignore_errors=True)
    with tarfile.open(folder / f"lvdata-{VERSION}.tar.gz") as archive:
        archive.extractall(WORK_DIR / "source")
    return WORK_DIR / "source" / f"lvdata-{VERSION}"


@pytest.fixture(scope="module")
def wheel(source: Path, tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The wheel, made of the source archive and without network."""
    folder = tmp_path_factory.mktemp("wheel")
    environment = dict(os.environ, DIST_EXTRA_CONFIG=str(distutils_configuration(folder)))
    options = ["--no-build-isolation", "--no-deps", "--no-index", "--wheel-dir", folder]
    run(*PIP, "wheel", *options, source, environment=environment)
    (made,) = folder.glob("*.whl")
    return made


@pytest.fixture(scope="module")
def installed(wheel: Path, tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The folder that the wheel was installed into."""
    folder = tmp_path_factory.mktemp("target")
    run(*PIP, "install", "--no-index", "--no-deps", "--no-compile", "--target", folder, wheel)
    return folder


@pytest.fixture(scope="module")
def module(installed: Path) -> Path:
    """The compiled part."""
    (found,) = (installed / "lvdata").glob("_lvdata.*.so")
    return found


def test_the_name_says_version_python_and_platform(wheel: Path) -> None:
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    assert re.fullmatch(rf"lvdata-{re.escape(VERSION)}-{python}-{python}-linux_\w+\.whl", wheel.name)


def test_the_source_archive_holds_what_is_built_and_no_tests(source: Path) -> None:
    names = {path.name for path in source.iterdir()}
    assert {"CMakeLists.txt", "LICENSE", "README.md", "cmake", "limits", "lvdata", "pyproject.toml", "python"} <= names
    assert not names & {"benchmarks", "build", "docs", "fuzz", "tests"}
    assert not [*source.rglob("__pycache__")]


def test_the_wheel_holds_only_the_package(wheel: Path) -> None:
    package = SOURCE_DIR / "python" / "lvdata"
    sources = {str(path.relative_to(package.parent)) for path in package.rglob("*") if path.is_file()}
    sources = {source for source in sources if "__pycache__" not in source}
    information = {f"lvdata-{VERSION}.dist-info/{name}" for name in ("LICENSE", "METADATA", "RECORD", "WHEEL", "top_level.txt")}
    names = set(zipfile.ZipFile(wheel).namelist())
    (compiled,) = {name for name in names if re.fullmatch(r"lvdata/_lvdata\.[\w-]+\.so", name)}
    generated = {f"lvdata/{name}" for name in os.environ["LVDATA_PYTHON_STUBS"].split()}
    assert names == sources | information | generated | {compiled}
    assert "lvdata/py.typed" in names


def test_the_wheel_says_name_licence_and_extras(wheel: Path) -> None:
    text = zipfile.ZipFile(wheel).read(f"lvdata-{VERSION}.dist-info/METADATA").decode()
    description = email.message_from_string(text)
    assert (description["Name"], description["Version"]) == ("lvdata", VERSION)
    assert (description["License"], description["Requires-Python"]) == ("MIT", ">=3.11")
    assert description.get_all("Provides-Extra") == ["arrays", "fleet"]
    assert all("extra ==" in each for each in description.get_all("Requires-Dist", [])), "nothing is needed without an extra"


def test_the_wheel_holds_no_path_of_the_build_machine(installed: Path) -> None:
    for path in (path for path in installed.rglob("*") if path.is_file()):
        content = path.read_bytes()
        for place in (SOURCE_DIR, WORK_DIR):
            assert str(place).encode() not in content, f"{path.name} names {place}"


def test_the_module_has_no_run_path_and_needs_system_libraries_alone(module: Path) -> None:
    dynamic = run("readelf", "--dynamic", "--wide", module)
    assert not re.search(r"R(UN)?PATH", dynamic)
    needed = set(re.findall(r"NEEDED.*\[(\w+)", dynamic))
    assert needed <= {"libtinyxml2", "liblcms2", "libexpat", "libstdc", "libm", "libgcc_s", "libc"}


def test_the_module_exports_its_entry_point_alone(module: Path) -> None:
    shown = run("nm", "--dynamic", "--defined-only", "--format=just-symbols", module)
    assert shown.split() == ["PyInit__lvdata"]


def test_the_wheel_works_where_it_is_installed(installed: Path) -> None:
    sample = SOURCE_DIR / "examples" / "data" / "studio.xml"
    environment = {"PYTHONPATH": str(installed), "PYTHONDONTWRITEBYTECODE": "1"}
    command = [sys.executable, "-s", "-X", "dev", "-W", "error", HERE / "use_module.py"]
    run(*command, VERSION, installed, sample, environment=environment)
