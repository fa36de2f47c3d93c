"""The Python blocks with prompts do what they show; each page goes on from one block to the next."""

from __future__ import annotations

import doctest
import shutil
from pathlib import Path

import lvdata
import lvdata.fleet
import pytest
from pages import DOCS, PAGES, SOURCES, Block, blocks_of

OPTIONS = doctest.ELLIPSIS | doctest.IGNORE_EXCEPTION_DETAIL


def sessions_of(page: Path) -> list[Block]:
    return [block for block in blocks_of(page) if block.language == "python" and block.text.startswith(">>> ")]


@pytest.mark.parametrize("page", [page for page in PAGES if sessions_of(page)], ids=lambda page: page.name)
def test_blocks_do_what_they_show(page: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    for sample in (SOURCES / "examples" / "data").glob("*.xml"):
        shutil.copy(sample, tmp_path)
    monkeypatch.chdir(tmp_path)
    names: dict[str, object] = {}
    output: list[str] = []
    for block in sessions_of(page):
        test = doctest.DocTestParser().get_doctest(block.text, names, page.name, str(page), block.line - 1)
        doctest.DocTestRunner(optionflags=OPTIONS).run(test, out=output.append, clear_globs=False)
        names = test.globs
    assert not output, "".join(output)


def test_each_block_of_the_page_of_the_module_is_run() -> None:
    page = DOCS / "python.md"
    assert len(sessions_of(page)) > 5
    assert sessions_of(page) == [block for block in blocks_of(page) if block.language == "python"]


def test_the_reference_has_each_name_of_the_module() -> None:
    reference = (DOCS / "api" / "python.md").read_text(encoding="utf-8").split()
    generic = {"Element", "Group", "RawView", "Record", "Rows", "__version__", "record_classes"}
    names = set(lvdata.__all__) - generic - set(lvdata.record_classes)
    for name in {f"lvdata.{name}" for name in names} | {f"lvdata.fleet.{name}" for name in lvdata.fleet.__all__}:
        assert name in reference, name
