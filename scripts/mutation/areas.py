"""What is changed and which test programs are to notice, area by area."""

import dataclasses
import pathlib

SOURCE = pathlib.Path(__file__).resolve().parents[2]


@dataclasses.dataclass(frozen=True)
class Area:
    sources: tuple  # patterns below lvdata/
    programs: tuple  # those that test them
    is_sanitized: bool = False  # whether addresses and undefined behaviour are looked at in the changed sources


AREAS = {
    "records": Area(
        ("records/*.cpp", "core/DataObject.cpp", "core/checked.cpp", "core/detail/*.h", "core/detail/*.cpp"),
        ("lvdata_tests", "lvdata_detail_tests"),
    ),
    "xml": Area(  # reads texts in place
        ("core/ParsedDocument.cpp", "xml/*.cpp", "xml/detail/*.cpp", "xml/detail/*.h"),
        ("lvdata_tests", "lvdata_detail_tests"),
        is_sanitized=True,
    ),
    "analysis": Area(("analysis/**/*.cpp",), ("lvdata_analysis_tests",)),
}


def is_for_windows_only(path):
    return path.parent.name == "windows" or path.name == "exported_constants.cpp"


def sources(area, pattern):
    """The files of an area that fit a pattern, relative to the root."""
    found = {path for each in AREAS[area].sources for path in (SOURCE / "lvdata").glob(each) if not is_for_windows_only(path)}
    return [path for path in sorted(each.relative_to(SOURCE) for each in found) if path.match(pattern)]
