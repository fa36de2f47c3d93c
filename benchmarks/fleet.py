#!/usr/bin/env python3
"""fleet.py LVDATA DOCUMENT [COUNT]: makes COUNT (200) monitors of the document, which must have an UUID, a page of each and
an index by `lvdata report` on one thread and on all; prints the time, the rate and the most memory of each."""

import os
import re
import subprocess
import sys
import tempfile
import time


def make_monitors(document, folder, count):
    with open(document, encoding="utf-8") as file:
        text = file.read()
    for number in range(count):
        path = os.path.join(folder, f"{number:06}.xml")
        with open(path, "w", encoding="utf-8") as file:
            file.write(re.sub("<UUID>[^<]*", f"<UUID>{number:06}", text, count=1))


def measure(command):
    """Wall time in seconds, processor time in seconds, and the most memory in megabytes."""
    begin = time.monotonic()
    process = subprocess.Popen(command)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{command} failed")
    return time.monotonic() - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def main():
    lvdata, document = sys.argv[1:3]
    count = int(sys.argv[3]) if len(sys.argv) > 3 else 200
    print("| Threads | seconds | pages a second | pages a second of processor time | MB |")
    print("|--:|--:|--:|--:|--:|")
    with tempfile.TemporaryDirectory() as folder:
        inputs = os.path.join(folder, "in")
        os.mkdir(inputs)
        make_monitors(document, inputs, count)
        for jobs in sorted({1, os.cpu_count()}):
            output = os.path.join(folder, f"out{jobs}/")
            wall, processor, memory = measure([lvdata, "report", inputs, "-o", output, "--jobs", str(jobs)])
            if len(os.listdir(output)) != count + 1:
                sys.exit("pages are missing")
            print(f"| {jobs} | {wall:.2f} | {count / wall:.1f} | {count / processor:.1f} | {memory:.1f} |")


if __name__ == "__main__":
    main()
