"""What became of each mutant, kept between runs beside the build tree."""

import hashlib
import json

from .areas import SOURCE
from .building import ROOT, files


def hashed(names):
    """One hash of several files."""
    return hashlib.sha256(b"".join((SOURCE / name).read_bytes() for name in names)).hexdigest()[:16]


class Results:
    """Of an area. A killed mutant stays killed while its source is the same, a survivor while the tests are, too."""

    def __init__(self, area):
        self.path = ROOT / f"{area}.jsonl"
        self.tests = hashed(name for name in files() if name.startswith("tests/") and name.endswith((".h", ".cpp", ".txt")))
        self.sources = {}
        lines = self.path.read_text(encoding="utf-8").splitlines() if self.path.exists() else []
        self.by_key = {entry["key"]: entry for entry in map(json.loads, lines)}

    def source(self, mutant):
        if mutant.path not in self.sources:
            self.sources[mutant.path] = hashed([mutant.path])
        return self.sources[mutant.path]

    def last(self, mutant):
        """What became of a mutant, maybe with other tests, or nothing."""
        entry = self.by_key.get(mutant.key)
        return entry["outcome"] if entry and entry["source"] == self.source(mutant) else ""

    def outcome(self, mutant):
        """What is known of a mutant with the tests as they are, or nothing."""
        outcome = self.last(mutant)
        return "" if outcome == "survived" and self.by_key[mutant.key]["tests"] != self.tests else outcome

    def store(self, mutant, outcome):
        entry = {"key": mutant.key, "outcome": outcome, "source": self.source(mutant), "tests": self.tests}
        self.by_key[mutant.key] = entry
        with self.path.open("a", encoding="utf-8") as file:
            file.write(json.dumps(entry) + "\n")
