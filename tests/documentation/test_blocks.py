"""Every block of code on a page is what it says it is: text that its own tools accept."""

from __future__ import annotations

import ast
import json
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest
from pages import PAGES, SOURCES, Block, blocks_of

BLOCKS = [block for page in PAGES for block in blocks_of(page)]

#: Languages that a test looks at: here, in test_cpp.py, test_python.py, or (sql) in tests/databases.
CHECKED = {"cpp", "xml", "json", "sh", "cmake", "python", "sql"}
#: Output, trees and formulas; and a language for which there is no tool here.
NOT_CODE = {"", "text", "console", "js"}

RECORDS = {path.stem for path in (SOURCES / "docs" / "records").glob("[A-Z]*.md")} - {"README"}

#: The samples of rules are tried one by one in tests/tool/rules_page_test.cpp; some are wrong on purpose.
XML = [block for block in BLOCKS if block.language == "xml" and block.page.name != "rules.md"]


def those_of(language: str) -> list[Block]:
    found = [block for block in BLOCKS if block.language == language]
    assert found
    return found


def name(block: Block) -> str:
    return block.place


@pytest.mark.parametrize("block", BLOCKS, ids=name)
def test_language_is_known(block: Block) -> None:
    is_directive = re.fullmatch(r"\{[a-z-]+\}.*", block.language)
    assert is_directive or block.is_transcript or block.language in CHECKED | NOT_CODE, block.language


@pytest.mark.parametrize("block", XML, ids=name)
def test_xml_is_well_formed(block: Block) -> None:
    ElementTree.fromstring(block.text)


@pytest.mark.parametrize("block", XML, ids=name)
def test_records_are_read_without_a_finding(block: Block, tmp_path: Path, shell_environment: dict[str, str]) -> None:
    if ElementTree.fromstring(block.text).tag not in RECORDS:
        pytest.skip("not a record")
    document = tmp_path / "document.xml"
    document.write_text(block.text, encoding="utf-8")
    done = subprocess.run(["lvdata", "check", str(document)], env=shell_environment, capture_output=True, text=True)
    assert done.returncode == 0, done.stdout + done.stderr


@pytest.mark.parametrize("block", those_of("json"), ids=name)
def test_json_is_well_formed(block: Block) -> None:
    json.loads(block.text)


@pytest.mark.parametrize("block", those_of("sh"), ids=name)
def test_shell_commands_are_complete(block: Block) -> None:
    subprocess.run(["bash", "-n"], input=block.text, text=True, check=True)


@pytest.mark.parametrize("block", those_of("sh"), ids=name)
def test_scripts_and_presets_exist(block: Block) -> None:
    for script in re.findall(r"^(?:\w+=\S+ )*((?:scripts|benchmarks)/[\w./-]+)", block.text, re.M):
        assert os.access(SOURCES / script, os.X_OK), script
    presets = json.loads((SOURCES / "CMakePresets.json").read_text(encoding="utf-8"))
    known = {preset["name"] for preset in presets["configurePresets"]}
    assert set(re.findall(r"--preset (\w+)", block.text)) <= known


@pytest.mark.parametrize("block", those_of("python"), ids=name)
def test_python_without_prompts_compiles(block: Block) -> None:
    if not block.text.startswith(">>> "):
        ast.parse(block.text)


@pytest.mark.parametrize("block", those_of("cmake"), ids=name)
def test_cmake_projects_are_configured(block: Block, tmp_path: Path, prefix: Path) -> None:
    program = "#include <lvdata/lvdata.h>\nint main() { return lv::AssetInfo().asset1.hasValue; }\n"
    start = "cmake_minimum_required(VERSION 3.22)\nproject(page CXX)\n"
    if "add_executable(" not in block.text:
        start += "add_executable(application application.cpp)\n"
    (tmp_path / "CMakeLists.txt").write_text(start + block.text, encoding="utf-8")
    (tmp_path / "lvdata").symlink_to(SOURCES)
    for source in re.findall(r"\w+\.cpp", start + block.text):
        (tmp_path / source).write_text(program)
    paths = [f"-DCMAKE_PREFIX_PATH={prefix}", f"-DFETCHCONTENT_SOURCE_DIR_LVDATA={SOURCES}"]
    command = ["cmake", "-S", str(tmp_path), "-B", str(tmp_path / "build"), *paths]
    done = subprocess.run(command, capture_output=True, text=True)
    assert done.returncode == 0, done.stderr


def test_the_tour_shows_every_record() -> None:
    page = next(page for page in PAGES if page.name == "tour.md")
    tree = next(block for block in blocks_of(page) if block.language == "text")
    assert {name for name in re.findall(r"\w+", tree.text) if name in RECORDS} == RECORDS
