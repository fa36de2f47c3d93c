#!/usr/bin/env python3
"""fleet_dask.py LVDATA DOCUMENT [COUNT]: makes COUNT (2,000) monitors of the document, which must have an UUID, and reads
the table "modes" of them by `lvdata convert` on one thread and by `lvdata.fleet` with one worker process and with two.
They take turns, and the least time of each is printed, since other programs can only add to it. Then what a task costs.
Needs the module lvdata on PYTHONPATH."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

import distributed

from fleet import make_monitors
from lvdata import fleet as lvdata_fleet

TURNS = 9


@contextlib.contextmanager
def workers(count):
    """A function that runs work on so many worker processes of one thread."""
    with distributed.LocalCluster(n_workers=count, threads_per_worker=1, dashboard_address=":0") as cluster:
        with distributed.Client(cluster, set_as_default=False) as client:
            client.run(lambda: __import__("lvdata.fleet"))
            yield client


def processor_time(client):
    return sum(client.run(time.process_time).values())


def by_workers(client, folder, **options):
    """Wall time in seconds, processor time of the workers, and the size of the result."""
    before = processor_time(client)
    begin = time.monotonic()
    text = client.compute(lvdata_fleet.text(folder, "modes", **options), sync=True)
    return time.monotonic() - begin, processor_time(client) - before, len(b"".join(text))


def by_command(lvdata, folder):
    before = os.times()
    begin = time.monotonic()
    command = [lvdata, "convert", "--to", "csv", "--table", "modes", "--jobs", "1", folder]
    text = subprocess.run(command, stdout=subprocess.PIPE, check=False).stdout
    after = os.times()
    used = after.children_user + after.children_system - before.children_user - before.children_system
    return time.monotonic() - begin, used, len(text)


def turns(works):
    """The results of each work, turn by turn."""
    results = [[work() for work in works] for _ in range(TURNS)]
    if len({size for turn in results for _, _, size in turn}) != 1:
        sys.exit("the results differ")
    return list(zip(*results))


def compare(lvdata, folder, count):
    with workers(1) as one, workers(2) as two:
        works = [lambda: by_command(lvdata, folder), lambda: by_workers(one, folder), lambda: by_workers(two, folder)]
        results = turns(works)
    print("| Who | seconds | documents a second | documents a second of processor time | ratio to 1 worker |")
    print("|---|--:|--:|--:|--:|")
    for name, times in zip(["lvdata convert --jobs 1", "1 worker", "2 workers"], results):
        wall, used = (min(each[index] for each in times) for index in (0, 1))
        one = min(each[0] for each in results[1])
        print(f"| {name} | {wall:.2f} | {count / wall:.0f} | {count / used:.0f} | {one / wall:.2f} |", flush=True)


def sizes_of_tasks(folder):
    sizes = [1, 10, 100, 1000]
    with workers(2) as two:
        works = [lambda size=size: by_workers(two, folder, documents_per_task=size) for size in sizes]
        results = turns(works)
    print("\n| Documents in a task | seconds of 2 workers |\n|--:|--:|")
    for size, times in zip(sizes, results):
        print(f"| {size} | {min(wall for wall, _, _ in times):.2f} |", flush=True)


def cost_of_a_task():
    count = 1000
    missing = ["/does/not/exist.xml"] * count
    with workers(1) as one:
        times = []
        for _ in range(TURNS):
            begin = time.monotonic()
            rows, _ = lvdata_fleet.rows(missing, "modes", errors="collect", documents_per_task=1)
            one.compute(rows, sync=True)
            times.append(time.monotonic() - begin)
    print(f"\nA task that reads nothing: {min(times) / count * 1000:.2f} ms")


def main():
    lvdata, document = sys.argv[1:3]
    count = int(sys.argv[3]) if len(sys.argv) > 3 else 2000
    with tempfile.TemporaryDirectory() as folder:
        make_monitors(document, folder, count)
        compare(lvdata, folder, count)
        sizes_of_tasks(folder)
    cost_of_a_task()


if __name__ == "__main__":
    main()
