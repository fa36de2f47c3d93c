"""The code of docs/python.md does what the page says."""

from __future__ import annotations

import doctest
import os
import re
import shutil
from pathlib import Path

import pytest

SAMPLES = Path(os.environ["LVDATA_SAMPLES_DIR"])
PAGE = SAMPLES.parents[1] / "docs" / "python.md"
OPTIONS = doctest.ELLIPSIS | doctest.IGNORE_EXCEPTION_DETAIL


def code_blocks(page: str) -> list[tuple[int, str]]:
    """The Python blocks of a page, each with the number of its first line, counted from 0."""
    blocks = re.finditer(r"^```python\n(.*?)^```$", page, re.M | re.S)
    return [(page.count("\n", 0, block.start(1)), block[1]) for block in blocks]


def test_every_block_shows_its_output() -> None:
    blocks = code_blocks(PAGE.read_text(encoding="utf-8"))
    assert len(blocks) > 5
    for line, block in blocks:
        assert block.startswith(">>> "), f"{PAGE.name}:{line + 1}: a block without a prompt is not run"


def test_the_blocks_print_what_they_show(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    for sample in SAMPLES.glob("*.xml"):
        shutil.copy(sample, tmp_path)
    monkeypatch.chdir(tmp_path)
    names: dict[str, object] = {}
    output: list[str] = []
    for line, block in code_blocks(PAGE.read_text(encoding="utf-8")):
        test = doctest.DocTestParser().get_doctest(block, names, PAGE.name, str(PAGE), line)
        doctest.DocTestRunner(optionflags=OPTIONS).run(test, out=output.append, clear_globs=False)
        names = test.globs  # each block goes on from the one before
    assert not output, "".join(output)


def test_every_link_has_a_target() -> None:
    page = PAGE.read_text(encoding="utf-8")
    for link in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", page):
        assert (PAGE.parent / link).exists(), link
    headings = {re.sub(r"[^\w -]", "", title).lower().replace(" ", "-") for title in re.findall(r"^#+ (.*)$", page, re.M)}
    for anchor in re.findall(r"\]\(#([^)]+)\)", page):
        assert anchor in headings, anchor
