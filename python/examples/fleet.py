"""The documents of many monitors: data frames, the worst monitors, drift, findings.

    python3 fleet.py [PATH [FOLDER]]

PATH is a folder of documents, searched at any depth. Nothing is written without a FOLDER. Needs pandas.
"""

# %% A row for each colour mode of each document, read by all processors
from __future__ import annotations

import sys
from pathlib import Path

import lvdata
import pandas

SAMPLES = Path(__file__).resolve().parents[2] / "examples" / "data"
documents = Path(sys.argv[1]) if len(sys.argv) > 1 else SAMPLES
folder = Path(sys.argv[2]) if len(sys.argv) > 2 else None

bad: list[lvdata.ParseError | OSError] = []
modes = pandas.DataFrame(lvdata.scan([documents], table="modes", on_error=bad.append))
print(f"colour modes: {len(modes)}; documents with them: {modes['file'].nunique()}; documents that cannot be read: {len(bad)}")

# %% Which modes were calibrated, and when last?
calibrated = modes[modes["calibrated_time"].fillna("") != ""]
print(calibrated.groupby("serial")["calibrated_time"].max().to_string())

# %% How well? The figures of each calibrated mode as a row
FIGURES = ["white_delta_uv", "white_delta_e2000", "patches_delta_e2000_mean", "contrast"]


def figure_rows(file: str) -> list[dict[str, object]]:
    """The measured figures of the modes in a document; None where one cannot be computed."""
    figures = lvdata.figures(file)
    return [
        {
            "serial": figures["monitor"]["serial"],
            "mode": mode["name"],
            "time": mode["calibrated_time"],
            **{name: mode["figures"][name]["measured"] for name in FIGURES},
        }
        for mode in figures["modes"]
        if mode["calibrated_time"]
    ]


results = pandas.DataFrame([row for file in calibrated["file"].unique() for row in figure_rows(file)])

# %% The worst monitors: the greatest mean ΔE00 of their modes
worst = results.groupby("serial")["patches_delta_e2000_mean"].max().sort_values(ascending=False)
print(worst.head(10).to_string())

# %% Drift: how the difference of white changes from calibration to calibration of each mode
ordered = results.sort_values("time")
drift = ordered.assign(drift=ordered.groupby(["serial", "mode"])["white_delta_uv"].diff())
print(drift[["serial", "mode", "time", "white_delta_uv", "drift"]].to_string(index=False))

# %% What is wrong with the documents?
for file in modes["file"].unique():
    for finding in lvdata.check(file):
        if finding.severity != "info":
            print(f"{file}: line {finding.line}: {finding.message}")
for error in bad:
    print(error)

# %% Keep the tables, for a spreadsheet or a database
if folder is not None:
    folder.mkdir(parents=True, exist_ok=True)
    modes.to_csv(folder / "modes.csv", index=False)
    drift.to_csv(folder / "drift.csv", index=False)
