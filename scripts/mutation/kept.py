"""Reads kept.txt: the mutants that may survive, each with its reason."""

import pathlib
import sys


def read():
    """{key: reason}. In the file the reason stands below the key, indented."""
    result, key = {}, ""
    for line in pathlib.Path(__file__).with_name("kept.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith(" "):
            result[key] = f"{result[key]} {line.strip()}".strip()
        elif line and not line.startswith("#"):
            key = line
            result[key] = ""
    without = [key for key, reason in result.items() if not reason]
    if without:
        sys.exit(f"kept without a reason: {without[0]}")
    return result
