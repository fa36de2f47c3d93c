"""The site is made without a warning, has everything that it shows, and is the same each time."""

from __future__ import annotations

import hashlib
import os
import re
import subprocess
from pathlib import Path

import pytest
from pages import DOCS, SOURCES


def make(build: Path) -> Path:
    """The folder of the pages, from a build of its own."""
    configure = ["cmake", "-S", str(SOURCES), "-B", str(build), "--preset", "docs"]
    for command in (configure, ["cmake", "--build", str(build), "--target", "lvdata_docs"]):
        done = subprocess.run(command, cwd=SOURCES, capture_output=True, text=True)
        assert done.returncode == 0, done.stdout + done.stderr
    return build / "docs" / "html"


@pytest.fixture(scope="module")
def site(tmp_path_factory: pytest.TempPathFactory) -> Path:
    return make(tmp_path_factory.mktemp("site"))


def digests(folder: Path) -> dict[str, str]:
    files = [path for path in folder.rglob("*") if path.is_file()]
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest() for path in files}


def test_has_every_page(site: Path) -> None:
    for page in DOCS.rglob("*.md"):
        assert (site / page.relative_to(DOCS)).with_suffix(".html").is_file(), page


def test_loads_nothing_from_other_sites(site: Path) -> None:
    loaded = re.compile(r"<(?:script|img|link)[^>]*(?:src|href)=\"(?:https?:)?//[^\"]*\"|@import|url\((?:https?:)?//")
    for page in [*site.rglob("*.html"), *site.rglob("*.css")]:
        assert not loaded.search(page.read_text(encoding="utf-8")), page


def test_names_no_folder_of_this_machine(site: Path) -> None:
    for page in site.rglob("*.html"):
        assert str(SOURCES) not in page.read_text(encoding="utf-8"), page


def test_is_the_same_each_time(site: Path, tmp_path: Path) -> None:
    os.environ.pop("SOURCE_DATE_EPOCH", None)
    assert digests(make(tmp_path)) == digests(site)
