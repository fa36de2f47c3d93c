#!/usr/bin/env python3
"""fleet_dask.py LVDATA DOCUMENT [COUNT]: makes COUNT (4,000) monitors of the document, which must have an UUID, and reads
the table "modes" of them by `lvdata.fleet` with one worker process and with two; prints the time, the rate and the ratio.
`lvdata convert` on one thread is beside it. Each is the median of three runs, after one that counts for nothing."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

import distributed

from fleet import make_monitors
from lvdata import fleet as lvdata_fleet

RUNS = 3


def seconds(work):
    """The median time of the work, which gives its result each time: also the size of that."""
    times = []
    for _ in range(RUNS + 1):
        begin = time.monotonic()
        size = len(work())
        times.append(time.monotonic() - begin)
    return statistics.median(times[1:]), size


def by_workers(workers, folder, **options):
    with distributed.LocalCluster(n_workers=workers, threads_per_worker=1, dashboard_address=None) as cluster:
        with distributed.Client(cluster):
            return seconds(lambda: b"".join(lvdata_fleet.text(folder, "modes", **options).compute()))


def by_command(lvdata, folder):
    command = [lvdata, "convert", "--to", "csv", "--table", "modes", "--jobs", "1", folder]
    return seconds(lambda: subprocess.run(command, stdout=subprocess.PIPE, check=False).stdout)


def overhead():
    """Seconds of a task that does nothing, with one worker."""
    count = 1000
    with distributed.LocalCluster(n_workers=1, threads_per_worker=1, dashboard_address=None) as cluster:
        with distributed.Client(cluster):
            return seconds(lambda: b"".join(lvdata_fleet.text([], "modes").compute()) * 0 + b"x")[0], seconds(
                lambda: lvdata_fleet.rows(["/nowhere"] * count, "modes", errors="collect", documents_per_task=1)
                .data.compute() or [0]
            )[0] / count


def line(what, wall, count, one):
    print(f"| {what} | {wall:.2f} | {count / wall:.0f} | {one / wall:.2f} |", flush=True)


def main():
    lvdata, document = sys.argv[1:3]
    count = int(sys.argv[3]) if len(sys.argv) > 3 else 4000
    with tempfile.TemporaryDirectory() as folder:
        make_monitors(document, folder, count)
        wall, size = by_command(lvdata, folder)
        one, size_of_one = by_workers(1, folder)
        print("| Who | seconds | documents a second | ratio to one worker |\n|---|--:|--:|--:|")
        line("lvdata convert --jobs 1", wall, count, one)
        line("1 worker", one, count, one)
        two, size_of_two = by_workers(2, folder)
        line("2 workers", two, count, one)
        if not size == size_of_one == size_of_two:
            sys.exit("the results differ")
        print("\n| Documents in a task | seconds of 2 workers |\n|--:|--:|")
        for documents_per_task in (1, 10, 100, 1000):
            wall, _ = by_workers(2, folder, documents_per_task=documents_per_task)
            print(f"| {documents_per_task} | {wall:.2f} |", flush=True)
        fixed, each = overhead()
        print(f"\nA task costs {each * 1000:.2f} ms, a computation {fixed * 1000:.0f} ms.")


if __name__ == "__main__":
    main()
