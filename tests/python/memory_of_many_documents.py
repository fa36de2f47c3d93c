"""Reads, changes, copies and prints 10,000 documents, and fails when memory grows: memory_of_many_documents.py [NUMBER].

Too long for the tests. tracemalloc sees what Python holds, the size of the process also what C++ holds.
"""

from __future__ import annotations

import os
import pickle
import resource
import sys
import tracemalloc
from pathlib import Path

import lvdata

SAMPLES = Path(os.environ["LVDATA_SAMPLES_DIR"])


def work(text: bytes) -> None:
    record = lvdata.loads(text)
    record.measurements.to_numpy()
    record.measurements = [*record.measurements, {"rgb": [1, 2, 3]}]
    again = lvdata.from_json(record.to_json())
    assert pickle.loads(pickle.dumps(again)).copy() == record
    for wrong in ("<a>", "<Unknown/>"):
        try:
            lvdata.loads(wrong)
        except lvdata.ParseError:
            continue


def used() -> tuple[int, int]:
    """Bytes that Python holds, and the most that the process ever had."""
    return tracemalloc.get_traced_memory()[0], resource.getrusage(resource.RUSAGE_SELF).ru_maxrss * 1024


def main(number: int) -> int:
    text = (SAMPLES / "MeasurementData.xml").read_bytes()
    tracemalloc.start()
    for _ in range(number // 2):
        work(text)
    before = used()
    for _ in range(number // 2):
        work(text)
    grown = [after - first for first, after in zip(before, used())]
    print(f"after {number} documents: Python grew by {grown[0]} bytes, the process by {grown[1]} in the second half")
    return 0 if grown[0] < 20_000 and grown[1] < 1_000_000 else 1


if __name__ == "__main__":
    sys.exit(main(int(sys.argv[1]) if len(sys.argv) > 1 else 10_000))
