#!/usr/bin/env python3
"""count_instructions.py PROGRAM [STYLE...]: the instructions of a parse and a print as ratios to the XML library alone,
counted by valgrind's callgrind. PROGRAM is lvdata_once; styles are lvdata (by default), plain and pugixml. Memory and
caches cost time that no instruction shows; the benchmarks measure that."""

import re
import subprocess
import sys


def total(*arguments):
    """The instructions of the whole process."""
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", sys.argv[1], *arguments]
    output = subprocess.run(command, capture_output=True, text=True, check=True).stderr
    return int(re.search(r"Collected : (\d+)", output)[1])


def single(*arguments):
    """The instructions of one time."""
    return total(*arguments, "2") - total(*arguments, "1")


for operation in ("parse", "print"):
    for document in ("small", "typical", "wide", "arrays"):
        bare = single(operation, "bare", document)
        counts = {style: single(operation, style, document) for style in sys.argv[2:] or ["lvdata"]}
        ratios = "".join(f"   {style} {count:11} ({count / bare:.2f})" for style, count in counts.items())
        print(f"{operation} {document:8} bare {bare:11}{ratios}", flush=True)
