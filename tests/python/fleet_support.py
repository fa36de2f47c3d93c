"""What the tests of lvdata.fleet share: documents, the command to compare with, fixtures."""

from __future__ import annotations

import os
import pathlib
import subprocess
from typing import Any

import dask
import pandas
import pytest
from lvdata import fleet

Folder = pathlib.Path

TOOL = os.environ["LVDATA_TOOL"]
STUDIO = Folder(os.environ["LVDATA_SAMPLES_DIR"]) / "studio.xml"

MONITOR = """<MonitorInfo><UUID>{number:06}</UUID><MonitorConfiguration><Name>Wall, &quot;{number}&quot;</Name>
<Serial>S{number:06}</Serial><ColorModeSettings><ColorMode Type="Calibration"><Index>{index}</Index><Name>Photo</Name>
<Target><TargetSetting><WhitePoint Type="Coordinate"><x>3127</x><y>3290</y></WhitePoint></TargetSetting></Target>
</ColorMode></ColorModeSettings>
</MonitorConfiguration><CalibrationModeResult><ColorMode Type="Calibration"><Index>{index}</Index>
<CalibratedTime>2024-05-{day:02}</CalibratedTime><BasicData><UsageHours>{number}</UsageHours></BasicData>
<MeasurementData><Measurements><RGB>255|0|{day}</RGB><XYZ>{number}|412400|0</XYZ></Measurements></MeasurementData>
</ColorMode></CalibrationModeResult></MonitorInfo>"""
CONFIGURATION = "<MonitorConfiguration><Serial>S{number:06}</Serial><Name>\u00e4 {index}</Name></MonitorConfiguration>"
ASSETS = "<AssetInfo><Asset1>a;{number},b</Asset1></AssetInfo>"
BASES = [MONITOR, MONITOR, MONITOR, CONFIGURATION, ASSETS]


def document(number: int) -> str:
    return BASES[number % len(BASES)].format(number=number, index=number % 7, day=1 + number % 28)


def tool(*arguments: object) -> subprocess.CompletedProcess[bytes]:
    return subprocess.run([TOOL, *map(str, arguments)], stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def printed(table: str, form: str, *paths: object) -> bytes:
    return tool("convert", "--to", form, "--table", table, *paths).stdout


def joined(bag: Any, **how: Any) -> bytes:
    return b"".join(bag.compute(**how))


def here(collection: Any) -> Any:
    """The result, computed in this process."""
    return collection.compute(scheduler="sync")


def both(collected: fleet.Collected) -> tuple[Any, Any]:
    return dask.compute(*collected, scheduler="sync")


def messages(errors: list[fleet.BadDocument]) -> list[str]:
    """Bad documents as the command calls them."""
    return [
        f"{error.file}: error: {'' if error.line is None else f'line {error.line}: '}{error.reason}" for error in errors
    ]


@pytest.fixture
def few(tmp_path: Folder) -> Folder:
    """A folder with ten documents."""
    folder = tmp_path / "few"
    folder.mkdir()
    for number in range(10):
        (folder / f"{number}.xml").write_text(document(number), encoding="utf-8")
    return folder


@pytest.fixture
def bad(tmp_path: Folder) -> list[Folder]:
    """Documents that cannot be read, each for another reason."""
    (tmp_path / "cut.xml").write_text("<MonitorInfo>\n<UUID>1</UID></MonitorInfo>")
    (tmp_path / "loop.xml").symlink_to("loop.xml")
    (tmp_path / "attributes.xml").write_text("<A " + " ".join(f'a{number}=""' for number in range(101)) + "/>")
    return [tmp_path / name for name in ("cut.xml", "missing.xml", "loop.xml", "attributes.xml")]
