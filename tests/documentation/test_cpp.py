"""The C++ blocks of all pages compile, in one translation unit.

A block is a program, or what stands in a function. A comment before it says what it needs: `<!-- continues -->` the
blocks before it on its page, `<!-- given: DECLARATION, ... -->` these parameters of its function. All may use the string
`text`, as a document that is there.
"""

from __future__ import annotations

import os
import re
import subprocess
from pathlib import Path

from pages import PAGES, SOURCES, Block, blocks_of

BLOCKS = [block for page in PAGES for block in blocks_of(page) if block.language == "cpp"]

HEADERS = """
#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/lvdata.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

extern const std::string text;
"""


def code_of(block: Block) -> str:
    """The block without its includes, at its own line numbers."""
    lines = ["" if line.startswith("#include ") else line for line in block.lines]
    return f'#line {block.line} "{block.page}"\n' + "\n".join(lines) + "\n"


def groups_of(blocks: list[Block]) -> list[list[Block]]:
    """The blocks, each with those that continue it."""
    groups: list[list[Block]] = []
    for block in blocks:
        if block.comment == "continues":
            groups[-1].append(block)
        else:
            groups.append([block])
    return groups


def unit_of(group: list[Block]) -> str:
    name = re.sub(r"\W", "_", group[0].place)
    code = "".join(code_of(block) for block in group)
    if re.search(r"^int main\(", code, re.M):
        return f"namespace {name} {{\n{code}}}\n"
    given = group[0].comment.removeprefix("given: ") if group[0].comment.startswith("given: ") else ""
    return f"[[maybe_unused]] static auto {name}({given}) {{\n{code}}}\n"


def includes_of(blocks: list[Block]) -> str:
    return "".join(line + "\n" for block in blocks for line in block.lines if line.startswith("#include "))


def compiled(source: str, folder: Path) -> subprocess.CompletedProcess[str]:
    (folder / "pages.cpp").write_text(source, encoding="utf-8")
    paths = [f"-I{SOURCES}", f"-I{os.environ['LVDATA_BUILD_DIR']}/include"]
    command = [os.environ["LVDATA_CXX"], "-std=c++17", "-fsyntax-only", "-w", *paths, "pages.cpp"]
    return subprocess.run(command, cwd=folder, capture_output=True, text=True)


def test_blocks_compile(tmp_path: Path) -> None:
    assert len(BLOCKS) > 20
    source = includes_of(BLOCKS) + HEADERS + "".join(map(unit_of, groups_of(BLOCKS)))
    done = compiled(source, tmp_path)
    assert done.returncode == 0, done.stderr


def test_a_wrong_block_does_not_compile(tmp_path: Path) -> None:
    wrong = Block(SOURCES / "README.md", 1, "cpp", "", ["lv::AssetInfo asset;", 'asset.asset9.set("");'])
    done = compiled(HEADERS + unit_of([wrong]), tmp_path)
    assert "README.md:2" in done.stderr and "asset9" in done.stderr
