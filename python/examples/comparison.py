"""Two calibrations of one monitor: what differs by more than it may, and what both look like.

    python3 comparison.py [BEFORE AFTER [FOLDER]]

Without arguments the sample monitor is compared with itself, some values changed. Nothing is written without a FOLDER.
"""

# %% The two documents
from __future__ import annotations

import sys
from pathlib import Path

import lvdata

SAMPLES = Path(__file__).resolve().parents[2] / "examples" / "data"


def sample_calibrations() -> tuple[lvdata.Record, lvdata.Record]:
    """The sample monitor, and the same with other values in two places."""
    text = (SAMPLES / "studio.xml").read_text(encoding="utf-8")
    changed = text.replace("<Value>120</Value>", "<Value>140</Value>").replace("<x>3457</x>", "<x>3450</x>")
    return lvdata.loads(text), lvdata.loads(changed)


before, after = (lvdata.load(sys.argv[1]), lvdata.load(sys.argv[2])) if len(sys.argv) > 2 else sample_calibrations()
folder = Path(sys.argv[3]) if len(sys.argv) > 3 else None

# %% Everything that differs, in natural values
for difference in lvdata.diff(before, after):
    print(difference)

# %% Only what matters: chromaticities that moved by more than 0.001, colours by more than ΔE00 0.5
tolerances = {"duv": 0.001, "chromaticity": 0.001, "de00": 0.5}
important = list(lvdata.diff(before, after, tolerances=tolerances))
print(f"{len(important)} beyond the tolerances")

# %% The figures of both, side by side
for old, new in zip(lvdata.figures(before)["modes"], lvdata.figures(after)["modes"]):
    if old["calibrated_time"]:
        values = [each["figures"]["white_tristimulus_y_deviation"]["measured"] for each in (old, new)]
        print(f"{old['name']}: Y of white is off by {values[0]} %, then {values[1]} %")

# %% The tone response of both; in a notebook, a picture in the last line of a cell shows itself
pictures = {"before": lvdata.plot(before, "tone"), "after": lvdata.plot(after, "tone")}
if folder is not None:
    folder.mkdir(parents=True, exist_ok=True)
    for name, picture in pictures.items():
        picture.save(folder / f"{name}.svg")
