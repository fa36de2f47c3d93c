"""The scripts, presets and targets that the pages name are there."""

from __future__ import annotations

import json
import re
from pathlib import Path

import pytest
from pages import PAGES, SOURCES

NAMED = re.compile(
    r"(?P<script>\bscripts/[\w./-]*\w)"
    r"|(?:--preset |\bpreset `)(?P<preset>[a-z][\w-]*)"
    r"|(?:--target |\btarget `)(?P<target>[a-z][\w-]*)"
)
TARGET = re.compile(r"add_(?:custom_target|executable|library)\(\s*([\w-]+)")
OF_CMAKE = {"all_verify_interface_header_sets"}


def presets() -> set[str]:
    text = (SOURCES / "CMakePresets.json").read_text(encoding="utf-8")
    return {preset["name"] for kind in json.loads(text).values() if isinstance(kind, list) for preset in kind}


def targets() -> set[str]:
    folders = ("benchmarks", "docs", "fuzz", "lvdata", "tests")
    files = [path for folder in folders for path in (SOURCES / folder).rglob("CMakeLists.txt")]
    return OF_CMAKE.union(*(TARGET.findall(path.read_text(encoding="utf-8")) for path in files))


def unknown_in(text: str) -> list[str]:
    """The names in a text that nothing has."""
    known = {"preset": presets(), "target": targets()}
    found = [(match.lastgroup, match[match.lastgroup]) for match in NAMED.finditer(text)]
    return [name for kind, name in found if not (name in known.get(kind, ()) or (SOURCES / name).is_file())]


@pytest.mark.parametrize("page", PAGES, ids=lambda page: str(page.relative_to(SOURCES)))
def test_what_pages_name_is_there(page: Path) -> None:
    assert not unknown_in(page.read_text(encoding="utf-8"))


def test_the_tests_find_names() -> None:
    text = "`scripts/old`, --preset old, preset `old`, --target old, target `old`; scripts/test, --preset ci, target `bench`"
    assert unknown_in(text) == ["scripts/old", "old", "old", "old", "old"]
