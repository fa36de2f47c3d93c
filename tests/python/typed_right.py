"""Checked by mypy, never run: what is right about types."""

from __future__ import annotations

import lvdata
import numpy
from numpy.typing import NDArray

setting = lvdata.ParameterSetting(brightness={"type": "Value", "value": 140})
brightness: lvdata.ParameterSetting.Brightness | None = setting.brightness
if brightness is not None:
    number: float | None = brightness.value
    stored: int | None = brightness.raw.value
    brightness.value = 3
    brightness.type = None
    del brightness.type
setting.brightness = lvdata.ParameterSetting.Brightness(type="Value")
setting.brightness = {"type": "Value"}

data = lvdata.MeasurementData()
for row in data.measurements:
    natural: NDArray[numpy.float64] | None = row.rgb
    unsigned: NDArray[numpy.uint32] | None = row.raw.rgb
data.measurements.append(lvdata.MeasurementData.Measurements(rgb=[1, 2, 3]))
data.measurements = ({"rgb": numpy.zeros(3)} for _ in range(3))
data.measurements[0].rgb = (1, 2, 3)
data.raw.measurements[0].rgb = range(3)

profile = lvdata.ProfileData(measured_xyz={"red": [1, 2, 3]})
profile.measured_xyz.red = [1, 2, 3]
text: str = profile.to_xml(pretty=False)
record: lvdata.ProfileData = lvdata.loads(text)
copied: lvdata.ProfileData = record.copy()
