"""Checked by mypy, never run: each line with a comment is wrong about types, for the reason in the comment."""

from __future__ import annotations

import lvdata

setting = lvdata.ParameterSetting(brightnes={})  # Unexpected keyword argument "brightnes"
setting.brightnes  # has no attribute "brightnes"
setting.raw.brightnes  # has no attribute "brightnes"
setting.brightnes = None  # has no attribute "brightnes"
setting.version = "2"  # Incompatible types in assignment
setting.version = 2.5  # Incompatible types in assignment
setting.brightness = lvdata.AssetInfo()  # Incompatible types in assignment
lvdata.AssetInfo(asset1=3)  # has incompatible type "int"
lvdata.AssetInfo("positional")  # Too many positional arguments
lvdata.AssetInfos()  # has no attribute "AssetInfos"
lvdata.MeasurementData().measurements.append(lvdata.AssetInfo())  # has incompatible type "AssetInfo"
lvdata.MeasurementData().measurements[0].rbg  # has no attribute "rbg"
lvdata.MeasurementData().measurements = 3  # Incompatible types in assignment
lvdata.ProfileData().measured_xyz.rad  # has no attribute "rad"
lvdata.ProfileData().measured_xyz.red = "text of numbers".split  # Incompatible types in assignment
number: int = lvdata.MonitorParameter().red_gain  # Incompatible types in assignment
