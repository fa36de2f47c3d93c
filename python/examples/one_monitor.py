"""One monitor: read it, look at it, change a value, save it.

    python3 one_monitor.py [DOCUMENT [FOLDER]]

Nothing is written without a FOLDER. Editors with notebook cells run the parts one by one.
"""

# %% Read a document
from __future__ import annotations

import sys
from pathlib import Path

import lvdata

SAMPLES = Path(__file__).resolve().parents[2] / "examples" / "data"
document = Path(sys.argv[1]) if len(sys.argv) > 1 else SAMPLES / "studio.xml"
folder = Path(sys.argv[2]) if len(sys.argv) > 2 else None

monitor = lvdata.load(document)
assert isinstance(monitor, lvdata.MonitorInfo), f"{document} is not about a whole monitor"
configuration = monitor.monitor_configuration
assert configuration is not None and configuration.color_mode_settings is not None
print(f"{configuration.name}, {configuration.model}, serial {configuration.serial}")

# %% Its colour modes: rows behave like a list, and what is not set is None
for mode in configuration.color_mode_settings.color_mode:
    print(f"mode {mode.index}: {mode.name}, {mode.type}")

# %% The figures of the calibrated modes: the numbers of the report, digit for digit
figures = lvdata.figures(monitor)
for mode_figures in figures["modes"]:
    if mode_figures["calibrated_time"]:
        white = mode_figures["figures"]["white_delta_e2000"]["measured"]
        mean = mode_figures["figures"]["patches_delta_e2000_mean"]["measured"]
        print(f"{mode_figures['name']}: white ΔE00 {white}, patches ΔE00 {mean} on average")

# %% Does anything in the document get lost when it is read and written?
findings = [finding for finding in lvdata.check(document) if finding.severity != "info"]
print(f"{len(findings)} findings")
for finding in findings:
    print(f"line {finding.line}: {finding.severity}: {finding.message}")

# %% Change a value; the document itself stays as it is
configuration.name = "Studio wall, left"
print(f"now called {configuration.name}")

# %% Save the record, a page about it, and a picture; in a notebook the last two show themselves
if folder is not None:
    folder.mkdir(parents=True, exist_ok=True)
    monitor.save(folder / "edited.xml")
    lvdata.report(monitor).save(folder / "monitor.html")
    lvdata.plot(monitor, "gamut").save(folder / "gamut.svg")
    print(f"written: {', '.join(sorted(path.name for path in folder.iterdir()))}")
