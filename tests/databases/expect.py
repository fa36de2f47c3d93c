"""expect.py FOLDER: what databases must find in the tables of that folder, computed from the JSON Lines by plain code.

Writes expected.json: for each column how often it has a value and what the values come to, and the answers to the five
questions as rows of values that are not rounded.
"""

from __future__ import annotations

import json
import math
import sys
from collections import defaultdict
from datetime import datetime
from operator import itemgetter
from pathlib import Path
from statistics import fmean
from typing import Any

import make_fleet

Row = dict[str, Any]
TABLES = ("monitors", "modes", "patches", "curves", "maps")
TODAY = datetime(2024, 11, 30)  # as in the query


def read(folder: Path, table: str) -> list[Row]:
    return [json.loads(line) for line in (folder / f"{table}.jsonl").read_text(encoding="utf-8").split("\n")[:-1]]


def profile_of(rows: list[Row], column: str) -> Row:
    """Number of values, of empty texts among them, and the sum of numbers, or of the lengths of texts."""
    values = [row[column] for row in rows if row[column] is not None]
    if any(isinstance(value, str) for value in values):
        sizes = [len(value) for value in values]
        return {"kind": "text", "values": len(values), "empty": sizes.count(0), "sum": sum(sizes),
                "least": min(filter(None, values), default=None), "greatest": max(values)}
    return {"kind": "number" if values else "none", "values": len(values), "empty": 0, "sum": math.fsum(values),
            "least": min(values, default=None), "greatest": max(values, default=None)}


def date_of(text: str | None) -> datetime | None:
    try:
        return datetime.fromisoformat(text or "")
    except ValueError:
        return None


def monitor_of(row: Row) -> str:
    return row["uuid"] or row["serial"] or row["file"]


def latest_of(monitors: list[Row]) -> list[Row]:
    latest: dict[str, Row] = {}
    for row in sorted(monitors, key=lambda row: (date_of(row["last_calibration"]) or datetime.min, row["file"])):
        before = latest.get(monitor_of(row))
        if before is None or date_of(row["last_calibration"]) != date_of(before["last_calibration"]):
            latest[monitor_of(row)] = row
    return list(latest.values())


def whites_of(patches: list[Row]) -> list[Row]:
    """Those of a known sensor."""
    return [row for row in patches if row["source"] == "standard_mode_result" and row["sensor_serial"]
            and {row["rgb_r"], row["rgb_g"], row["rgb_b"]} == {255}]


def worst_monitors(tables: dict[str, list[Row]]) -> list[list[Any]]:
    latest = {row["file"]: row for row in latest_of(tables["monitors"])}
    rows = [[row["serial"], latest[row["file"]]["model"], row["name"], row["calibrated_time"],
             row["patches_delta_e2000_mean"], row["patches_delta_e2000_maximum"]]
            for row in tables["modes"] if row["file"] in latest and row["patches_delta_e2000_mean"] is not None]
    return sorted(rows, key=lambda row: (-row[4], row[0]))[:5]


def drift_per_month(tables: dict[str, list[Row]]) -> list[list[Any]]:
    times = {row["file"]: date_of(row["last_calibration"]) for row in tables["monitors"]}
    first: dict[tuple[str, str], tuple[datetime, float]] = {}
    months: dict[str, list[tuple[str, float, float]]] = defaultdict(list)
    whites = [(time, row) for row in whites_of(tables["patches"]) if (time := times[row["file"]])]
    for time, row in sorted(whites, key=itemgetter(0)):
        day, light = first.setdefault((monitor_of(row), row["sensor_serial"]), (time, row["xyz_y"]))
        if time > day:
            change = 100 * (row["xyz_y"] / light - 1)
            rate = change / ((time - day).total_seconds() / 86400) * make_fleet.DAYS_PER_MONTH
            months[f"{time:%Y-%m}"].append((monitor_of(row), change, rate))
    return [[month, len({row[0] for row in rows}), fmean(row[1] for row in rows), min(row[1] for row in rows),
             fmean(row[2] for row in rows)] for month, rows in sorted(months.items())]


def allowed_days_of(row: Row) -> float:
    lengths = {1: 31 * (row["schedule_interval_months"] or 0), 2: 7 * (row["schedule_interval_weeks"] or 0),
               31: (row["schedule_interval_hours"] or 0) / 24, 50: 31}
    return lengths.get(row["schedule_type"], 180)


def overdue_calibrations(tables: dict[str, list[Row]]) -> list[list[Any]]:
    rows = []
    for row in latest_of(tables["monitors"]):
        time = date_of(row["last_calibration"])
        age = (TODAY - time).total_seconds() / 86400 if time else None
        if age is None or age > allowed_days_of(row):
            rows.append([row["serial"], row["model"], row["last_calibration"], age, allowed_days_of(row)])
    undated = sorted((row for row in rows if row[3] is None), key=itemgetter(0))
    return undated + sorted((row for row in rows if row[3] is not None), key=lambda row: (row[4] - row[3], row[0]))


def uniformity_by_model(tables: dict[str, list[Row]]) -> list[list[Any]]:
    entries: dict[str, list[int]] = defaultdict(list)
    for row in tables["maps"]:
        if row["kind"] == "uniformity":
            entries[row["file"]].append(row["value"])
    models: dict[str, list[float]] = defaultdict(list)
    for row in latest_of(tables["monitors"]):
        models[row["model"]].append(100 * min(entries[row["file"]]) / max(entries[row["file"]]))
    rows = [[model, len(values), fmean(values), min(values)] for model, values in models.items()]
    return sorted(rows, key=itemgetter(2))


def sensors_that_disagree(tables: dict[str, list[Row]]) -> list[list[Any]]:
    readings: dict[str, dict[str, list[float]]] = defaultdict(lambda: defaultdict(list))
    for row in whites_of(tables["patches"]):
        readings[monitor_of(row)][row["sensor_serial"]].append(row["xyz_y"])
    pairs: dict[tuple[str, str], list[float]] = defaultdict(list)
    for sensors in readings.values():
        for one in sensors:
            for other in sensors:
                if one < other:
                    pairs[one, other].append(100 * (fmean(sensors[one]) / fmean(sensors[other]) - 1))
    rows = [[one, other, len(values), fmean(values)] for (one, other), values in pairs.items() if len(values) >= 3]
    return sorted(rows, key=lambda row: abs(float(row[3])), reverse=True)


# Each with the digits that its statement rounds to.
QUESTIONS = {worst_monitors: 2, drift_per_month: 2, overdue_calibrations: 1, uniformity_by_model: 1,
             sensors_that_disagree: 2}


def check_what_is_planted(answers: dict[str, list[list[Any]]]) -> None:
    """The fleet has what the questions are to find: otherwise they would prove little."""
    assert answers["worst_monitors"][0][0] == make_fleet.serial_of(make_fleet.WORST)
    overdue = [row[0] for row in answers["overdue_calibrations"]]
    undated = (make_fleet.NEVER, make_fleet.UNREADABLE, make_fleet.WITHOUT_DAY)
    assert overdue[:3] == sorted(map(make_fleet.serial_of, undated)), overdue
    assert 4 < len(overdue) < make_fleet.MONITORS - 2, overdue
    nameless = make_fleet.WITHOUT_UUID + make_fleet.EMPTY_UUID
    assert {*map(make_fleet.serial_of, nameless)} <= {*overdue}, overdue
    evenness = [row[0] for row in answers["uniformity_by_model"]]
    assert evenness == sorted(make_fleet.MODELS, key=lambda model: -make_fleet.MODELS[model]), evenness
    assert sum(row[1] for row in answers["uniformity_by_model"]) == make_fleet.MONITORS
    for month in answers["drift_per_month"]:
        assert abs(month[4] + 100 * make_fleet.LOSS_PER_MONTH) < 0.03, month
    odd = min(make_fleet.SENSORS, key=lambda sensor: make_fleet.SENSORS[sensor])
    pairs = answers["sensors_that_disagree"]
    assert len(pairs) == 3 and all(odd in pair[:2] for pair in pairs[:2]), pairs


def main() -> None:
    folder = Path(sys.argv[1])
    tables = {table: read(folder, table) for table in TABLES}
    answers = {question.__name__: question(tables) for question in QUESTIONS}
    check_what_is_planted(answers)
    rows = sum(map(len, tables.values()))
    assert rows >= 20_000, rows
    expected = {
        "tables": {name: {"rows": len(rows), "columns": {column: profile_of(rows, column) for column in rows[0]}}
                   for name, rows in tables.items()},
        "dates": {
            f"{table}.{column}": sum(date_of(row[column]) is not None for row in tables[table])
            for table, column in (("monitors", "last_calibration"), ("modes", "calibrated_time"))
        },
        "monitors": tables["monitors"],
        "answers": {question.__name__: {"digits": digits, "rows": answers[question.__name__]}
                    for question, digits in QUESTIONS.items()},
    }
    (folder / "expected.json").write_text(json.dumps(expected), encoding="utf-8")
    print(f"databases: {rows} rows of {len(tables['monitors'])} documents")


if __name__ == "__main__":
    main()
