"""load_sqlite.py SQL FOLDER [--write] PAGE: loads the tables of FOLDER into SQLite and pandas as the folder SQL says,
and compares with expected.json; and what the PAGE shows: each file of SQL, and the answers.
"""

from __future__ import annotations

import contextlib
import io
import json
import os
import re
import runpy
import sqlite3
import subprocess
import sys
import tempfile
import warnings
from pathlib import Path
from typing import Any

QUESTIONS = "worst_monitors drift_per_month overdue_calibrations uniformity_by_model sensors_that_disagree".split()
LANGUAGES = {".sql": "sql", ".py": "python"}


def fill_by_csv(sql: Path) -> sqlite3.Connection:
    """As a user does it, with the command sqlite3, in a database that has a table of the user's own."""
    files = [(sql / name).read_text() for name in ("create_tables.sql", "sqlite_csv.sql", "visits.sql")]
    script = "CREATE TABLE own (text TEXT); INSERT INTO own VALUES ('');" + "".join(files)
    subprocess.run(["sqlite3", "-bail", "csv.sqlite"], input=script, text=True, check=True)
    return sqlite3.connect("csv.sqlite")


def fill_by_json_lines(sql: Path) -> sqlite3.Connection:
    database = sqlite3.connect("fleet.sqlite")
    database.executescript((sql / "create_tables.sql").read_text() + (sql / "visits.sql").read_text())
    database.commit()
    runpy.run_path(str(sql / "sqlite_jsonl.py"))["database"].close()
    return database


def profile_of(database: sqlite3.Connection, table: str, column: str, kind: str) -> dict[str, Any]:
    """As `profile_of` of expect.py."""
    value, filled = (f"length({column})", f"nullif({column}, '')") if kind == "text" else (column, column)
    keys = ("values", "empty", "sum", "least", "greatest")
    found = database.execute(f"""SELECT count({column}), count({column}) - count({filled}), total({value}),
                                min({filled}), max({column}) FROM {table}""").fetchone()
    return dict(zip(keys, found), kind=kind)


def without_empty_texts(profile: dict[str, Any]) -> dict[str, Any]:
    """CSV has none: they are null there."""
    greatest = profile["greatest"] or None
    return profile | {"values": profile["values"] - profile["empty"], "empty": 0, "greatest": greatest}


def is_near(found: Any, wanted: Any, tolerance: float) -> bool:
    if isinstance(wanted, (int, float)) and isinstance(found, (int, float)):
        return abs(found - wanted) <= tolerance
    return type(found) is type(wanted) and found == wanted


def compare_tables(database: sqlite3.Connection, expected: dict[str, Any], is_csv: bool) -> list[str]:
    faults = []
    for table, what in expected["tables"].items():
        count = database.execute(f"SELECT count(*) FROM {table}").fetchone()[0]
        faults += [f"{table}: {count} rows instead of {what['rows']}"] if count != what["rows"] else []
        for column, profile in what["columns"].items():
            wanted = without_empty_texts(profile) if is_csv and profile["kind"] == "text" else profile
            found = profile_of(database, table, column, profile["kind"])
            faults += [f"{table}.{column}, {key}: {found[key]!r} instead of {wanted[key]!r}" for key in wanted
                       if not is_near(found[key], wanted[key], 1e-12 * max(1, abs(found["sum"])))]
    return faults


def compare_own_table(database: sqlite3.Connection) -> list[str]:
    texts = database.execute("SELECT text FROM own").fetchall()
    return [] if texts == [("",)] else [f"CSV: the table of the user's own has {texts}"]


def try_empty_tables(sql: Path, tables: list[str]) -> list[str]:
    """An archive without maps, for example, makes an empty file."""
    with tempfile.TemporaryDirectory() as folder, contextlib.chdir(folder):
        for table in tables:
            Path(f"{table}.jsonl").touch()
        try:
            with contextlib.closing(fill_by_json_lines(sql)) as database:
                counts = [database.execute(f"SELECT count(*) FROM {table}").fetchone()[0] for table in tables]
        except IndexError as error:
            return [f"empty tables: {error}"]
    return ["empty tables: they have rows"] if any(counts) else []


def compare_monitors(database: sqlite3.Connection, expected: dict[str, Any], is_csv: bool) -> list[str]:
    """Every value of every row: texts with commas, quotation marks and line breaks among them."""
    found = {row[0]: list(row) for row in database.execute("SELECT * FROM monitors")}
    rows = [[None if is_csv and value == "" else value for value in row.values()] for row in expected["monitors"]]
    return [f"monitors: {found.get(row[0])} instead of {row}" for row in rows if found.get(row[0]) != row]


def answer(database: sqlite3.Connection, sql: Path, question: str) -> tuple[list[str], list[tuple[Any, ...]]]:
    cursor = database.execute((sql / f"{question}.sql").read_text())
    return [column[0] for column in cursor.description], cursor.fetchall()


def compare_answers(database: sqlite3.Connection, sql: Path, expected: dict[str, Any]) -> list[str]:
    faults = []
    for question in QUESTIONS:
        wanted, found = expected["answers"][question], answer(database, sql, question)[1]
        tolerance = 0.501 * 10 ** -wanted["digits"]
        is_same = len(found) == len(wanted["rows"]) and all(
            is_near(value, other, tolerance) for row, others in zip(found, wanted["rows"])
            for value, other in zip(row, others, strict=True))
        faults += [] if is_same else [f"{question}: {found} instead of {wanted['rows']}"]
    return faults


def compare_database(database: sqlite3.Connection, sql: Path, expected: dict[str, Any], is_csv: bool) -> list[str]:
    faults = compare_tables(database, expected, is_csv) + compare_monitors(database, expected, is_csv)
    faults += compare_answers(database, sql, expected)
    return [("CSV, " if is_csv else "JSON Lines, ") + fault for fault in faults]


def try_pandas(sql: Path, expected: dict[str, Any]) -> tuple[str, list[str]]:
    """What the example prints, and where its tables are not as expected."""
    with contextlib.redirect_stdout(io.StringIO()) as output, warnings.catch_warnings():
        warnings.simplefilter("error")
        names = runpy.run_path(str(sql / "pandas_tables.py"))
    faults = []
    for column, profile in expected["tables"]["modes"]["columns"].items():
        filled = profile["values"] - profile["empty"]
        for frame, wanted in ((names["modes"], filled), (names["again"], profile["values"])):
            values = frame[column].dropna()
            is_text = values.dtype == object
            total = values.str.len().sum() if is_text else values.sum()
            if len(values) != wanted or is_text != (profile["kind"] == "text") or not is_near(
                    float(total), float(profile["sum"]), 1e-9 * max(1, abs(total))):
                faults.append(f"pandas, modes.{column}: {len(values)} values, {total} in all, {values.dtype}")
    return output.getvalue(), faults


def table_of(names: list[str], rows: list[tuple[Any, ...]]) -> str:
    """As it stands on the page."""
    numbers = [any(isinstance(row[place], (int, float)) for row in rows) for place in range(len(names))]
    lines = [names, ["--:" if is_number else "---" for is_number in numbers]]
    lines += [["null" if value is None else str(value) for value in row] for row in rows]
    text = "".join("| " + " | ".join(line) + " |\n" for line in lines)
    return text.replace("| --- ", "|---").replace("| --: ", "|--:")


def block_of(file: Path) -> str:
    return f"```{LANGUAGES[file.suffix]}\n{file.read_text()}```\n"


def blocks_of_page(database: sqlite3.Connection, sql: Path, pandas_output: str) -> dict[str, str]:
    """What stands on the page below a mark such as <!-- worst_monitors.sql -->, up to the next empty mark."""
    blocks = {file.name: block_of(file) for file in sorted(sql.iterdir())}
    blocks["pandas_tables.py"] += f"\n```\n{pandas_output}```\n"
    for question in QUESTIONS:
        blocks[f"{question}.sql"] += "\n" + table_of(*answer(database, sql, question))
    return blocks


def with_blocks(page: str, blocks: dict[str, str]) -> str:
    for name, block in blocks.items():
        pattern = re.compile(rf"(<!-- {re.escape(name)} -->\n).*?(<!-- end -->)", re.DOTALL)
        page, count = pattern.subn(lambda found: found[1] + block + found[2], page)
        if count != 1:
            sys.exit(f"databases: {name} stands {count} times on the page")
    return page


def compare_page(page: Path, blocks: dict[str, str], must_write: bool) -> list[str]:
    text = page.read_text(encoding="utf-8")
    wanted = with_blocks(text, blocks)
    if must_write:
        page.write_text(wanted, encoding="utf-8")
    pairs = zip(text.split("\n"), wanted.split("\n"))
    first = next((f"{old!r} instead of {new!r}" for old, new in pairs if old != new), "its end")
    return [] if must_write or text == wanted else [f"{page.name}: {first}"]


def compare_counts(page: Path, expected: dict[str, Any]) -> list[str]:
    """What the page says of the fleet."""
    text = " ".join(page.read_text(encoding="utf-8").split())
    monitors, rows = expected["monitors"], sum(table["rows"] for table in expected["tables"].values())
    serials = {monitor["serial"] for monitor in monitors}
    said = f"fleet of {len(serials)} monitors with {len(monitors)} documents, {rows:,} rows in all"
    return [] if said in text else [f"{page.name}: it does not say: {said}"]


def main() -> None:
    sql, page = Path(sys.argv[1]).resolve(), Path(sys.argv[-1]).resolve()
    os.chdir(sys.argv[2])
    for file in ("csv.sqlite", "fleet.sqlite"):
        Path(file).unlink(missing_ok=True)
    expected = json.loads(Path("expected.json").read_text(encoding="utf-8"))
    csv, lines = fill_by_csv(sql), fill_by_json_lines(sql)
    faults = compare_database(csv, sql, expected, True) + compare_database(lines, sql, expected, False)
    faults += compare_own_table(csv) + try_empty_tables(sql, list(expected["tables"]))
    printed, faults_of_pandas = try_pandas(sql, expected)
    faults += faults_of_pandas + compare_counts(page, expected)
    faults += compare_page(page, blocks_of_page(lines, sql, printed), "--write" in sys.argv)
    print("\n".join(faults + [f"databases: SQLite, pandas and the page, {len(faults)} failures"]))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
