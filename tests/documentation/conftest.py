"""What the tests of the documentation share: an installed tree."""

from __future__ import annotations

import os
import subprocess
from pathlib import Path

import pytest

COMPONENTS = ("lvdata_Runtime", "lvdata_Development", "lvdata_Tool")


@pytest.fixture(scope="session")
def prefix(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A folder with the library and the command, as `cmake --install` puts them there."""
    folder = tmp_path_factory.mktemp("prefix")
    install = ["cmake", "--install", os.environ["LVDATA_BUILD_DIR"], "--prefix", str(folder), "--component"]
    for component in COMPONENTS:
        subprocess.run([*install, component], check=True, capture_output=True)
    return folder


@pytest.fixture(scope="session")
def shell_environment(prefix: Path) -> dict[str, str]:
    """The environment of a user who has installed there."""
    libraries = prefix / os.environ["LVDATA_LIBRARY_FOLDER"]
    return {
        **{name: value for name, value in os.environ.items() if not name.startswith("LVDATA_")},
        "PATH": f"{prefix / 'bin'}:{os.environ['LVDATA_BUILD_DIR']}/examples:{os.environ['PATH']}",
        "PKG_CONFIG_PATH": str(libraries / "pkgconfig"),
        "LD_LIBRARY_PATH": str(libraries),
        "LC_ALL": "C.UTF-8",
    }
