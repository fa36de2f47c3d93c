"""Every class, function and member of the public headers has a comment, and is in the reference."""

from __future__ import annotations

import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import Iterator

import pytest
from pages import DOCS, SOURCES

BUILD = Path(os.environ["LVDATA_BUILD_DIR"])


@pytest.fixture(scope="module")
def compounds(tmp_path_factory: pytest.TempPathFactory) -> list[ElementTree.Element]:
    """What Doxygen finds in the public headers, documented or not."""
    folder = tmp_path_factory.mktemp("reference")
    settings = (BUILD / "reference" / "Doxyfile").read_text(encoding="utf-8")
    settings += f'OUTPUT_DIRECTORY = "{folder}"\nEXTRACT_ALL = YES\n'
    subprocess.run([os.environ["LVDATA_DOXYGEN"], "-"], input=settings, text=True, check=True)
    roots = (ElementTree.parse(path).getroot() for path in sorted((folder / "xml").glob("*.xml")))
    found = [compound for root in roots for compound in root.iter("compounddef")]
    assert len(found) > 50
    return [compound for compound in found if compound.get("kind") in ("class", "struct", "namespace")]


def name_of(compound: ElementTree.Element) -> str:
    return compound.findtext("compoundname", "")


def is_documented(element: ElementTree.Element) -> bool:
    parts = (element.find(name) for name in ("briefdescription", "detaileddescription"))
    return any("".join(part.itertext()).strip() for part in parts if part is not None)


def members_of(compound: ElementTree.Element) -> Iterator[tuple[str, ElementTree.Element]]:
    for member in compound.iter("memberdef"):
        if member.get("prot") != "private" and member.get("kind") != "friend":
            name = f"{name_of(compound)}::{member.findtext('name')}"
            yield name, member
            yield from ((f"{name}::{value.findtext('name')}", value) for value in member.iter("enumvalue"))


def is_public(compound: ElementTree.Element) -> bool:
    return "::detail" not in name_of(compound)


def test_doxygen_has_no_complaint(tmp_path: Path) -> None:
    settings = (BUILD / "reference" / "Doxyfile").read_text(encoding="utf-8")
    assert "WARN_AS_ERROR          = FAIL_ON_WARNINGS" in settings and "EXTRACT_ALL            = NO" in settings
    settings += f'OUTPUT_DIRECTORY = "{tmp_path}"\n'
    done = subprocess.run([os.environ["LVDATA_DOXYGEN"], "-"], input=settings, text=True, capture_output=True)
    assert done.returncode == 0 and not done.stderr, done.stderr


def test_every_class_and_member_has_a_comment(compounds: list[ElementTree.Element]) -> None:
    public = [compound for compound in compounds if is_public(compound)]
    missing = [name_of(each) for each in public if each.get("kind") != "namespace" and not is_documented(each)]
    missing += [name for each in public for name, member in members_of(each) if not is_documented(member)]
    assert not missing, "\n".join(missing)


def test_every_class_and_function_is_in_the_reference(compounds: list[ElementTree.Element]) -> None:
    pages = "\n".join(path.read_text(encoding="utf-8") for path in (DOCS / "api").glob("*.md"))
    shown = set(re.findall(r"^```\{doxygen\w+\} (\S+)", pages, re.M))
    nested = {name_of(compound) for compound in compounds if compound.get("kind") != "namespace"}
    for compound in filter(is_public, compounds):
        name = name_of(compound)
        if compound.get("kind") != "namespace" and name.rpartition("::")[0] not in nested:
            assert name in shown, name
        if name == "lv":
            for full, member in members_of(compound):
                location = member.find("location")
                header = Path(location.get("file", "") if location is not None else "").name
                assert "operator" in full or full in shown or header in shown, full


def public_headers() -> list[Path]:
    headers = [path for path in (SOURCES / "lvdata").rglob("*.h") if not {"detail", "windows"} & set(path.parts)]
    assert len(headers) > 100
    return sorted(headers)


def test_clang_has_no_complaint(tmp_path: Path) -> None:
    source = tmp_path / "headers.cpp"
    source.write_text("".join(f"#include <{path.relative_to(SOURCES)}>\n" for path in public_headers()))
    warnings = ["-Wdocumentation", "-Wdocumentation-unknown-command", "-Werror"]
    paths = [f"-I{SOURCES}", f"-I{BUILD}/include"]
    command = [os.environ["LVDATA_CLANG"], "-std=c++17", "-fsyntax-only", *warnings, *paths, str(source)]
    done = subprocess.run(command, capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
