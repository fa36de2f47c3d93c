"""use_module.py VERSION FOLDER SAMPLE: imports lvdata, which must have this version and come, with its library, from the
folder; then reads the sample with it."""

from __future__ import annotations

import json
import sys
from pathlib import Path


def loaded_libraries() -> set[Path]:
    """The files of the library and of the module that this process has loaded."""
    lines = Path("/proc/self/maps").read_text().splitlines()
    paths = (Path(line.split(maxsplit=5)[5]) for line in lines if "lvdata" in line)
    return {path for path in paths if ".so" in path.name}


def main(version: str, folder: Path, sample: Path) -> None:
    import lvdata
    from lvdata import _lvdata

    assert lvdata.__version__ == version, lvdata.__version__
    for path in {Path(lvdata.__file__), *loaded_libraries()}:
        assert path.is_relative_to(folder), f"{path} was loaded"
    assert Path(lvdata.__file__).with_name("py.typed").exists()

    rows = _lvdata.rows_text(sample.read_bytes(), sample.name, "modes", True).splitlines()
    assert [json.loads(row)["mode_index"] for row in rows] == [0, 1, 2, 3, 4], rows


if __name__ == "__main__":
    main(sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3]))
