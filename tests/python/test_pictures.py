"""Pictures: the same as the tool's, byte for byte."""

from __future__ import annotations

import pickle
from collections.abc import Callable
from pathlib import Path
from xml.etree import ElementTree

import lvdata
import pytest
from conftest import later

Tool = Callable[..., bytes]

KINDS = ("gamut", "tone", "balance", "lut", "uniformity", "brightness", "six-colours", "patches", "history")


@pytest.mark.parametrize("kind", KINDS)
def test_pictures_are_the_same_as_from_the_tool(tool: Tool, studio: Path, kind: str) -> None:
    assert lvdata.plot(studio, kind).svg.encode() == tool("plot", kind, studio)


def test_options_have_the_meaning_of_the_tool(tool: Tool, studio: Path) -> None:
    assert lvdata.plot(studio, plane="xy", mode=3).svg.encode() == tool("plot", "gamut", "--plane=xy", "--mode=3", studio)
    patches = lvdata.plot(studio, "patches", limits="iso14861")
    assert patches.svg.encode() == tool("plot", "patches", "--limits=iso14861", studio)
    history = lvdata.plot(studio, "history", figure="contrast", y_unit="cd")
    assert history.svg.encode() == tool("plot", "history", "--figure=contrast", "--y-unit=cd", studio)
    grid = lvdata.plot(studio, "uniformity", grid=5, map_unit="%")
    assert grid.svg.encode() == tool("plot", "uniformity", "--grid=5", "--map-unit=%", studio)


def test_a_picture_shows_and_saves_itself(studio: Path, tmp_path: Path) -> None:
    picture = lvdata.plot(studio)
    assert str(picture) == picture.svg == picture._repr_svg_()
    assert ElementTree.fromstring(picture.svg).tag == "{http://www.w3.org/2000/svg}svg"
    picture.save(tmp_path / "a.svg")
    assert (tmp_path / "a.svg").read_bytes() == picture.svg.encode()
    assert repr(picture) == f"<Picture of {len(picture.svg)} characters>"
    assert pickle.loads(pickle.dumps(picture)) == picture != lvdata.plot(studio, "tone")


def test_a_history_takes_several_documents(tool: Tool, studio: Path, tmp_path: Path) -> None:
    files = []
    for day in ("2024-01-10", "2023-06-30", "2025-02-01"):
        files.append(tmp_path / f"{day}.xml")
        files[-1].write_bytes(later(studio.read_bytes(), day))
    assert lvdata.plot(files, "history").svg.encode() == tool("plot", "history", *files)
    with pytest.raises(ValueError, match="^all pictures but history take one document$"):
        lvdata.plot(files, "gamut")
    with pytest.raises(ValueError, match="no documents were given"):
        lvdata.plot([], "history")
    other = later(studio.read_bytes(), "2024-03-03", uuid="another")
    with pytest.raises(lvdata.ParseError, match="is about a different monitor than the documents before it"):
        lvdata.plot([studio, other], "history")


def test_pictures_of_missing_data_are_refused(studio: Path) -> None:
    def refusal(*arguments: object, **options: object) -> str:
        with pytest.raises(ValueError) as raised:
            lvdata.plot(studio, *arguments, **options)  # type: ignore[arg-type]
        assert not isinstance(raised.value, lvdata.ParseError)
        return str(raised.value)

    assert refusal("cake") == f"unknown picture 'cake'; known pictures: {', '.join(KINDS)}"
    assert refusal("gamut", plane="ab") == "unknown plane 'ab'; known planes: xy, uv"
    assert refusal("tone", plane="xy") == "plane is for gamut only"
    assert refusal("tone", figure="contrast") == "figure is for history only"
    assert refusal("tone", limits="default") == "limits is for patches and history only"
    assert refusal("uniformity", mode=1) == "mode is not for maps: a map does not belong to a colour mode"
    assert refusal("history", figure="taste").startswith("unknown figure 'taste'; known figures: white_x, ")
    assert refusal("patches", limits="nowhere") == (
        "nowhere: no file and no limit set has this name; known limit sets: default, iso14861, ebu3320-g1"
    )
    assert refusal(mode=77).endswith("studio.xml: no colour mode has the index 77; known indices: 0, 1, 2, 3, 4")


def test_documents_without_modes_or_of_other_classes_are_refused() -> None:
    with pytest.raises(ValueError, match="there are no colour modes"):
        lvdata.plot(b"<MonitorInfo/>")
    with pytest.raises(lvdata.ParseError, match="^a document of AssetInfo does not describe a monitor$"):
        lvdata.plot(b"<AssetInfo/>")
