#!/usr/bin/env python3
"""python_reading.py COMMAND: what the Python module costs. PYTHONPATH must lead to the module, of a release build.

    import [--breakdown]    time of `import lvdata`: the least of several runs, in fresh processes
    reading BENCHMARKS      time of `lvdata.loads` as a multiple of the time that C++ takes; BENCHMARKS is the program
                            lvdata_analysis_benchmarks, which is run in turns with it
    leaks [COUNT]           growth of memory over COUNT (10,000) documents
    use COUNT               the same without a judgement, to be run by a checker of memory

Ends with status 1 when a figure is beyond its bound."""

from __future__ import annotations

import argparse
import gc
import json
import os
import subprocess
import sys
import time
import tracemalloc
from pathlib import Path
from typing import NamedTuple

SAMPLE = Path(__file__).resolve().parents[1] / "examples" / "data" / "studio.xml"
IMPORT_RUNS = 20
READING_ROUNDS = 7
WARM_UP = 500  # documents, after which caches and the allocators' reserves no longer grow

IMPORT_BOUND = 50  # ms
READING_BOUND = 2  # times the C++ time
PYTHON_GROWTH_BOUND = 64  # KiB, over all documents
RESIDENT_GROWTH_BOUND = 4096  # KiB, over all documents


class Figure(NamedTuple):
    what: str
    value: float
    unit: str
    bound: float

    def is_within(self) -> bool:
        return self.value <= self.bound

    def __str__(self) -> str:
        judgement = "" if self.is_within() else ", which is too much"
        return f"{self.what}: {self.value:.2f} {self.unit} (bound {self.bound:g}){judgement}"


def import_time() -> float:
    """Milliseconds, in a process that has imported nothing else."""
    program = "import time; begin = time.perf_counter(); import lvdata; print(time.perf_counter() - begin)"
    done = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True)
    return float(done.stdout) * 1000


def print_breakdown() -> None:
    subprocess.run([sys.executable, "-X", "importtime", "-c", "import lvdata"], check=True)


def import_figures(breakdown: bool) -> list[Figure]:
    if breakdown:
        print_breakdown()
    return [Figure("import lvdata", min(import_time() for _ in range(IMPORT_RUNS)), "ms", IMPORT_BOUND)]


def reading_time(text: str, rounds: int = 200) -> float:
    """Milliseconds for a document, the least over the rounds."""
    import lvdata

    times = []
    for _ in range(rounds):
        begin = time.perf_counter()
        lvdata.loads(text)
        times.append(time.perf_counter() - begin)
    return min(times) * 1000


def cpp_reading_time(benchmarks: str) -> float:
    """Milliseconds for the same document, by the benchmark "read/studio"."""
    command = [benchmarks, "--benchmark_filter=^read/studio$", "--benchmark_repetitions=5", "--benchmark_format=json"]
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True)
    runs = [run for run in json.loads(done.stdout)["benchmarks"] if run["run_type"] == "iteration"]
    to_ms = {"ns": 1e-6, "us": 1e-3, "ms": 1.0}
    return min(float(run["real_time"]) * to_ms[run["time_unit"]] for run in runs)


def reading_figures(benchmarks: str) -> list[Figure]:
    text = SAMPLE.read_text(encoding="utf-8")
    times = [(reading_time(text), cpp_reading_time(benchmarks)) for _ in range(READING_ROUNDS)]
    python, cpp = (min(column) for column in zip(*times))
    print(f"lvdata.loads: {python:.3f} ms; C++: {cpp:.3f} ms")
    return [Figure("lvdata.loads to parsing in C++", python / cpp, "times", READING_BOUND)]


def use(text: str) -> None:
    """What programs do with a document, and one that is refused."""
    import lvdata

    record = lvdata.loads(text)
    record.to_xml()
    lvdata.from_json(record.to_json(compact=True))
    lvdata.table(record, "modes")
    try:
        lvdata.loads(text[: len(text) // 2])
    except lvdata.ParseError:
        pass


def use_documents(count: int) -> None:
    text = SAMPLE.read_text(encoding="utf-8")
    for number in range(count):
        use(text.replace("27W-000417", f"27W-{number:06}"))  # no two texts are the same


def memory_in_use() -> tuple[float, float]:
    """KiB of Python's own memory, and of the whole process."""
    gc.collect()
    pages = int(Path("/proc/self/statm").read_text().split()[1])
    return tracemalloc.get_traced_memory()[0] / 1024, pages * os.sysconf("SC_PAGE_SIZE") / 1024


def leak_figures(count: int) -> list[Figure]:
    tracemalloc.start()
    use_documents(WARM_UP)
    before = memory_in_use()
    use_documents(count)
    python, resident = (now - then for now, then in zip(memory_in_use(), before))
    return [
        Figure(f"growth of Python's memory over {count} documents", python, "KiB", PYTHON_GROWTH_BOUND),
        Figure(f"growth of the process over {count} documents", resident, "KiB", RESIDENT_GROWTH_BOUND),
    ]


def parsed_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    commands = parser.add_subparsers(dest="command", required=True)
    commands.add_parser("import").add_argument("--breakdown", action="store_true")
    commands.add_parser("reading").add_argument("benchmarks")
    commands.add_parser("leaks").add_argument("count", type=int, nargs="?", default=10_000)
    commands.add_parser("use").add_argument("count", type=int)
    return parser.parse_args()


def measured(arguments: argparse.Namespace) -> list[Figure]:
    if arguments.command == "import":
        return import_figures(arguments.breakdown)
    if arguments.command == "reading":
        return reading_figures(arguments.benchmarks)
    if arguments.command == "leaks":
        return leak_figures(arguments.count)
    use_documents(arguments.count)
    return []


def main() -> None:
    figures = measured(parsed_arguments())
    print(*figures, sep="\n")
    if not all(figure.is_within() for figure in figures):
        sys.exit(1)


if __name__ == "__main__":
    main()
