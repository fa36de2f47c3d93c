"""Makes a wheel: CMake builds the module with the library inside, and installs it into the folder that is packed."""

from __future__ import annotations

import os
import re
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

SOURCE_DIR = Path(__file__).parent.resolve()
OPTIONS = {
    "BUILD_SHARED_LIBS": "OFF",
    "CMAKE_BUILD_TYPE": "Release",
    "LVDATA_BUILD_EXAMPLES": "OFF",
    "LVDATA_BUILD_PYTHON": "ON",
    "LVDATA_BUILD_TESTS": "OFF",
    "LVDATA_BUILD_TOOL": "OFF",
    "LVDATA_PYTHON_DIR": ".",
    "Python_EXECUTABLE": sys.executable,
}


def version() -> str:
    """The version of the project, which stands in CMakeLists.txt."""
    found = re.search(r"^project\(.*?\bVERSION ([0-9.]+)", (SOURCE_DIR / "CMakeLists.txt").read_text(), re.M | re.S)
    if found is None:
        raise SystemExit("CMakeLists.txt has no version")
    return found[1]


class CMakeBuild(build_ext):
    """Everything is built and listed by CMake; the environment variable CMAKE_ARGS has further options for it."""

    def run(self) -> None:
        if self.inplace or getattr(self, "editable_mode", False):
            raise SystemExit("lvdata cannot be installed editable: import it from a build tree, PYTHONPATH=<build>/python")
        os.environ.setdefault("CMAKE_BUILD_PARALLEL_LEVEL", str(os.cpu_count()))
        options = [f"-D{name}={value}" for name, value in OPTIONS.items()]
        cmake("-S", str(SOURCE_DIR), "-B", self.build_temp, *options, *shlex.split(os.environ.get("CMAKE_ARGS", "")))
        cmake("--build", self.build_temp, "--target", "lvdata_python_package")
        shutil.rmtree(self.build_lib, ignore_errors=True)  # what an earlier build left there would be packed, too
        cmake(
            *("--install", self.build_temp, "--component", "lvdata_Python", "--strip"),
            *("--prefix", os.path.abspath(self.build_lib)),
        )


def cmake(*arguments: str) -> None:
    subprocess.run(["cmake", *arguments], check=True)


# No list of packages: what CMake installs is what is packed. The extension only says that the wheel is for one platform.
setup(version=version(), packages=[], ext_modules=[Extension("lvdata._lvdata", [])], cmdclass={"build_ext": CMakeBuild})
