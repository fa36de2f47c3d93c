"""All links of all pages lead somewhere. Links to other sites are only looked at, not followed."""

from __future__ import annotations

import re
from pathlib import Path

import pytest
from pages import PAGES, SOURCES, anchors_of, blocks_of, prose_of

LINK = re.compile(r"\]\(([^)\s]+)\)")
OTHER_SITE = re.compile(r"https://[\w.-]+\.[a-z]+(/[\w./~%+#-]*)?$")


def links_of(page: Path) -> list[tuple[int, str]]:
    return [(number, link) for number, line in prose_of(page) for link in LINK.findall(line)]


def problem_of(page: Path, link: str) -> str:
    """What is wrong with a link; empty when it is right."""
    if ":" in link.split("#")[0]:
        return "" if OTHER_SITE.match(link) else "not an address of the form https://host/path"
    name, _, anchor = link.partition("#")
    target = (page.parent / name).resolve() if name else page
    if not target.exists():
        return "there is no such file"
    if anchor and anchor not in anchors_of(target):
        return "the page has no such heading"
    return ""


@pytest.mark.parametrize("page", PAGES, ids=lambda page: str(page.relative_to(SOURCES)))
def test_links_lead_somewhere(page: Path) -> None:
    found = [(number, link, problem_of(page, link)) for number, link in links_of(page)]
    problems = [f"{page}:{number}: {link}: {problem}" for number, link, problem in found if problem]
    assert not problems, "\n".join(problems)


def test_files_that_blocks_include_exist() -> None:
    blocks = [block for page in PAGES for block in blocks_of(page) if block.language.startswith("{literalinclude} ")]
    assert blocks
    for block in blocks:
        name = block.language.split()[1]
        assert (block.page.parent / name).is_file(), f"{block.place}: {name}"


def test_the_tests_find_links() -> None:
    page = SOURCES / "README.md"
    assert len(links_of(page)) > 5
    assert problem_of(page, "docs/missing.md")
    assert problem_of(page, "docs/format.md#missing")
    assert problem_of(page, "#missing")
    assert problem_of(page, "http://example")
    assert not problem_of(page, "docs/format.md#fixed-point")
