"""Runs test programs on mutants: those tests that reach a mutant, the quickest first."""

import collections
import concurrent.futures
import dataclasses
import math
import os
import pathlib
import re
import resource
import subprocess
import sys
import tempfile
import threading

from .areas import AREAS

FIRST = 0.2  # seconds of tests that run first
MOST = 500  # tests in one command
WAITING = 600  # seconds after which a test that uses no processor ends
MEMORY = 4 << 30  # bytes; the address sanitizer keeps a limit of its own
SANITIZERS = {"ASAN_OPTIONS": "detect_leaks=0:max_allocation_size_mb=2048:hard_rss_limit_mb=4096"}


@dataclasses.dataclass
class Case:
    program: str
    name: str
    seconds: float
    reached: frozenset  # by itself
    reached_by_suite: frozenset  # what is computed once is reached by the first test of a suite only


def run(command, seconds, memory=0, **environment):
    """Whether a program succeeds; a crash, more seconds of the processor, or more memory are failures."""

    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        if memory:
            resource.setrlimit(resource.RLIMIT_AS, (memory, memory))

    with tempfile.TemporaryDirectory(prefix="mutate") as folder:
        own = {**os.environ, **SANITIZERS, "TMPDIR": folder, "TEST_TMPDIR": folder, **environment}
        with subprocess.Popen(
            command, env=own, cwd=folder, preexec_fn=limit, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        ) as process:
            timer = threading.Timer(WAITING, process.kill)
            timer.start()
            process.wait()
            timer.cancel()
    return process.returncode == 0


class Judge:
    """Knows the tests of a tree, and which mutants each of them reaches."""

    def __init__(self, area, tree, most):
        self.memory = 0 if AREAS[area].is_sanitized else MEMORY
        self.programs = {program: next((tree.tree / "tests").rglob(program)) for program in tree.programs}
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            suites = [(program, suite, most + 1) for program in tree.programs for suite in self.suites(program)]
            self.cases = [case for cases in pool.map(lambda suite: self.cases_of(*suite), suites) for case in cases]
        self.by_mutant = collections.defaultdict(list)
        ordered = sorted(self.cases, key=lambda case: case.seconds)
        for case, mutant in [(case, mutant) for case in ordered for mutant in case.reached]:
            self.by_mutant[mutant].append(case)
        for case, mutant in [(case, mutant) for case in ordered for mutant in case.reached_by_suite - case.reached]:
            self.by_mutant[mutant].append(case)

    def suites(self, program):
        listed = subprocess.run([self.programs[program], "--gtest_list_tests"], check=True, capture_output=True, text=True)
        return [line.split()[0] for line in listed.stdout.splitlines() if re.match(r"[\w/]+\.", line)]

    def cases_of(self, program, suite, size):
        """Runs the tests of a suite. What is reached before the first of them is reached by all."""
        with tempfile.TemporaryDirectory() as folder:
            reached, out = pathlib.Path(folder) / "reached", pathlib.Path(folder) / "out"
            reached.write_bytes(bytes(size))
            names = {"LVDATA_MUTANTS_REACHED": str(reached), "LVDATA_MUTANTS_OUT": str(out), "LVDATA_MUTANTS_SIZE": str(size)}
            if not run([self.programs[program], f"--gtest_filter={suite}*"], 3600, **names):
                sys.exit(f"mutate: {program} fails without a mutant: {suite}*")
            lines = [line.split("\t") for line in out.read_text(encoding="utf-8").splitlines()]
        together = frozenset(int(mutant) for line in lines for mutant in line[2].split())
        return [Case(program, name, int(time) / 1000, frozenset(map(int, own.split())), together) for name, time, own in lines[1:]]

    def passes(self, cases, number):
        """Whether tests pass with the mutant of that number."""
        for batch in batches(cases):
            for program, path in self.programs.items():
                names = ":".join(case.name for case in batch if case.program == program)
                seconds = math.ceil(10 + 10 * sum(case.seconds for case in batch))
                command = [path, "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={names}"]
                if names and not run(command, seconds, self.memory, LVDATA_MUTANT=str(number)):
                    return False
        return True

    def outcome(self, mutant):
        """Of one that is compiled in: "killed" or "survived"; nothing when no test reaches it."""
        cases = self.by_mutant[mutant.number]
        if not cases:
            return ""
        return "survived" if self.passes(cases, mutant.number) else "killed"

    def outcome_alone(self, tree, mutant, others):
        """Of one that is compiled by itself: as above, or "invalid". Tests that reach other mutants of the file run first."""
        if not tree.build_one(mutant):
            return "invalid"
        first = {case.name: case for other in others for case in self.by_mutant[other.number]}
        cases = sorted(first.values(), key=lambda case: case.seconds)
        return "survived" if self.passes(cases, 0) and self.passes(self.cases, 0) else "killed"


def batches(cases):
    """The quickest in a batch of their own, then as many as fit into a command."""
    first, seconds = 0, 0.0
    while first < min(len(cases), MOST) and seconds < FIRST:
        seconds += cases[first].seconds
        first += 1
    yield cases[:first]
    for start in range(first, len(cases), MOST):
        yield cases[start : start + MOST]
