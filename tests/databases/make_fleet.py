"""make_fleet.py SAMPLE FOLDER: writes documents of a fleet of monitors, made of the sample document of one.

The same on every run. Some monitors and a sensor are known to be out of line: the queries must find them.
"""

from __future__ import annotations

import copy
import random
import sys
import xml.etree.ElementTree as ElementTree
from datetime import date as Date
from pathlib import Path

MODELS = {"LV-27W": 1.0, "LV-32U": 1.6, "LV-24P": 2.4}  # how uneven their screens are, times the sample
SENSORS = {"B-0417": 1.0, "S-3301": 1.004, "0003302": 0.975}  # what they read of the same light
DATES = ("2024-01-16", "2024-04-09", "2024-07-23", "2024-11-05")
MONITORS = 14
LOSS_PER_MONTH = 0.004
DAYS_PER_MONTH = 30.4375

WORST = 7  # the monitor whose patches are off by the most
NEVER = 8  # its calibrations have no time
UNREADABLE = 9  # its times are not written year first
WITHOUT_DAY = 12  # its times have no day
WITHOUT_UUID = (3, 10)  # known by their serial numbers alone
EMPTY_UUID = (6, 13)
UNNAMED_AT_LAST = (0, 9, 13)  # the last visit of these does not say which sensor it was
NEVER_NAMED = 6  # no visit of this one does
WHITE_TWICE = 11  # its white was measured twice at each visit

NAMES = (
    'Schnittplatz "Süd", links', "Regie\nzweite Zeile", "東京 3", "=1+1", "NA", "0417", "NULL", "Studio; wall", "it's",
    "back\\slash", "🎬 cinema", "1e5", "true", "plain",
)


def serial_of(monitor: int) -> str:
    return f"{list(MODELS)[monitor % 3].split('-')[1]}-{400 + monitor:06}"


def schedule_of(monitor: int) -> tuple[int, str, int]:
    """Kind, and the interval that it has."""
    return ((1, "IntervalMonth", 3), (2, "IntervalWeek", 6), (31, "IntervalHour", 500), (50, "", 0),
            (0x99, "", 0))[monitor % 5]


def scale(element: ElementTree.Element | None, factors: tuple[float, float, float]) -> None:
    if element is not None and element.text:
        numbers = zip(map(int, element.text.split("|")), factors)
        element.text = "|".join(str(round(number * factor)) for number, factor in numbers)


def set_text(parent: ElementTree.Element, path: str, text: str) -> None:
    element = parent.find(path)
    assert element is not None, path
    element.text = text


def set_uuid(root: ElementTree.Element, monitor: int) -> None:
    set_text(root, "UUID", "" if monitor in EMPTY_UUID else f"6f1d2c9a-52c7-4b0e-9a57-{monitor:012}")
    if monitor in WITHOUT_UUID:
        root[:] = [part for part in root if part.tag != "UUID"]


def name_monitor(root: ElementTree.Element, monitor: int) -> None:
    set_uuid(root, monitor)
    set_text(root, "MonitorConfiguration/Name", NAMES[monitor])
    set_text(root, "MonitorConfiguration/Model", list(MODELS)[monitor % 3])
    set_text(root, "MonitorConfiguration/Serial", serial_of(monitor))
    set_text(root, "AssetInfo/Asset2", f"room {monitor},\n“{NAMES[-monitor - 1]}”")
    set_text(root, "AssetInfo/Asset3", "")


def set_schedule(root: ElementTree.Element, monitor: int) -> None:
    kind, interval, length = schedule_of(monitor)
    schedule = root.find("MonitorConfiguration/SelfCalibrationSchedule/Type")
    assert schedule is not None
    schedule.set("Type", str(kind))
    for field in list(schedule) if kind != 50 else ():  # that of the sample
        schedule.remove(field)
    if interval:
        ElementTree.SubElement(schedule, interval).text = str(length)


def time_of(monitor: int, date: str, mode: int) -> str:
    if monitor == NEVER:
        return ""
    if monitor == UNREADABLE:
        return f"{date[8:]}.{date[5:7]}.{date[:4]} 09:1{mode}"
    if monitor == WITHOUT_DAY:
        return f"09:1{mode}"
    return f"{date}T09:1{mode}:00"


def dates_of(monitor: int) -> tuple[str, ...]:
    """Two to four: some monitors were not calibrated of late."""
    return DATES[: 2 + monitor % 3]


def sensor_of(monitor: int, visit: int) -> str:
    """The same at most visits to a monitor. Another one at a visit in the middle, if there is one."""
    own = (monitor - monitor // 3) % 3
    visits = len(dates_of(monitor))
    other_visit = 2 if monitor % 6 == 5 else 1
    return list(SENSORS)[(own + 1) % 3 if visits > 2 and visit == other_visit else own]


def serial_of_sensor(monitor: int, visit: int) -> str:
    is_last = visit == len(dates_of(monitor)) - 1
    is_unnamed = monitor == NEVER_NAMED or (is_last and monitor in UNNAMED_AT_LAST)
    return "" if is_unnamed else sensor_of(monitor, visit)


def set_sensor(basic: ElementTree.Element | None, sensor: str, time: str) -> None:
    assert basic is not None
    set_text(basic, "ColorSensorName", "Built-in sensor" if sensor.startswith("B") else "Sensor on a stand")
    set_text(basic, "ColorSensorSerial", sensor)
    set_text(basic, "executedDate", time)


def change_mode(mode: ElementTree.Element, error: float, dice: random.Random) -> None:
    """The light of a calibrated mode: near the target, blue and red off by the error."""
    factors = (1 + error + dice.uniform(-0.002, 0.002), 1 + dice.uniform(-0.002, 0.002), 1 - error)
    scale(mode.find("BasicData/JustCalibratedWhite"), factors)
    for patch in mode.findall("MeasurementData/Measurements"):
        scale(patch.find("XYZ"), (factors[0], 1 + dice.uniform(-error, error), factors[2]))


def months_until(date: str) -> float:
    return (Date.fromisoformat(date) - Date.fromisoformat(DATES[0])).days / DAYS_PER_MONTH


def change_standard_mode(result: ElementTree.Element, sensor: str, months: float, dice: random.Random) -> None:
    factor = SENSORS[sensor] * (1 - LOSS_PER_MONTH * months) * dice.uniform(0.9995, 1.0005)
    for patch in result.findall("MeasurementData/Measurements"):
        scale(patch.find("XYZ"), (factor, factor, factor))


def measure_white_again(result: ElementTree.Element) -> None:
    patches = result.find("MeasurementData")
    assert patches is not None
    white = next(patch for patch in patches if patch.findtext("RGB") == "255|255|255")
    patches.append(copy.deepcopy(white))


def change_map(root: ElementTree.Element, monitor: int, dice: random.Random) -> None:
    values = root.find("CandelaMap/Uniformity/Values")
    assert values is not None and values.text
    unevenness = list(MODELS.values())[monitor % 3]
    entries = (round(100 - (100 - int(each)) * unevenness * dice.uniform(0.9, 1.1)) for each in values.text.split("|"))
    values.text = "|".join(map(str, entries))


def drop_long_lists(root: ElementTree.Element) -> None:
    for mode in root.findall("CalibrationModeResult/ColorMode"):
        parameter = mode.find("MonitorParameter")
        if parameter is not None:
            mode.remove(parameter)
    result = root.find("StandardModeResult")
    secondary = root.find("StandardModeResult/MeasurementDataSecondary")
    assert result is not None and secondary is not None
    result.remove(secondary)


def document_of(sample: ElementTree.Element, monitor: int, date: str) -> ElementTree.Element:
    dice = random.Random(f"{monitor} {date}")
    root = copy.deepcopy(sample)
    name_monitor(root, monitor)
    set_schedule(root, monitor)
    visit = DATES.index(date)
    sensor = serial_of_sensor(monitor, visit)
    error = 0.06 if monitor == WORST else dice.uniform(0.001, 0.012)
    for number, mode in enumerate(root.findall("CalibrationModeResult/ColorMode")):
        time = time_of(monitor, date, number)
        set_text(mode, "CalibratedTime", time)
        set_sensor(mode.find("BasicData"), sensor, time)
        change_mode(mode, error, dice)
    result = root.find("StandardModeResult")
    assert result is not None
    set_sensor(result.find("BasicData"), sensor, time_of(monitor, date, 5))
    if monitor == WHITE_TWICE:
        measure_white_again(result)
    change_standard_mode(result, sensor_of(monitor, visit), months_until(date), dice)
    change_map(root, monitor, dice)
    if monitor or visit:
        drop_long_lists(root)
    return root


def main() -> None:
    sample, folder = Path(sys.argv[1]), Path(sys.argv[2])
    tree = ElementTree.parse(sample).getroot()
    for monitor in range(MONITORS):
        for date in dates_of(monitor):
            path = folder / ("Süd, links" if monitor == 0 else "others") / f"{serial_of(monitor)} {date}.xml"
            path.parent.mkdir(parents=True, exist_ok=True)
            document = ElementTree.ElementTree(document_of(tree, monitor, date))
            document.write(path, encoding="UTF-8", xml_declaration=True)


if __name__ == "__main__":
    main()
