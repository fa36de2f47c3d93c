"""What the tests share."""

from __future__ import annotations

import os
import subprocess
import threading
from collections.abc import Callable
from pathlib import Path

import pytest

SAMPLES = Path(os.environ["LVDATA_SAMPLES_DIR"])
GOLDEN = SAMPLES.parents[1] / "tests" / "golden"


@pytest.fixture
def studio() -> Path:
    """A monitor with colour modes, measurements and maps."""
    return SAMPLES / "studio.xml"


@pytest.fixture
def golden() -> list[Path]:
    """Documents of all classes."""
    return sorted(GOLDEN.glob("*/*.xml"))


Tool = Callable[..., bytes]


@pytest.fixture
def tool() -> Tool:
    """Runs the command `lvdata`, and is what it prints; its findings are no failure."""

    def run(*arguments: object, failed: bool = False) -> bytes:
        command = [os.environ["LVDATA_TOOL"], *map(str, arguments)]
        done = subprocess.run(command, capture_output=True, check=False)
        assert (done.returncode == 2) is failed, done.stderr
        return done.stderr if failed else done.stdout

    return run


def later(document: bytes, day: str, uuid: str | None = None) -> bytes:
    """The document of the studio on another day, such as "2023-01-31", and of another monitor when asked for."""
    changed = document.replace(b"2024-05-02T", day.encode() + b"T")
    assert changed != document
    return changed if uuid is None else changed.replace(b"6f1d2c9a-52c7-4b0e-9a57-0d3c5b7e4417", uuid.encode())


def turns_of_another_thread(work: Callable[[], object]) -> int:
    """How often another thread, which asks for it each millisecond, has its turn while the work is done."""
    done = threading.Event()
    turns = []

    def count() -> None:
        number = 0
        while not done.wait(0.001):
            number += 1
        turns.append(number)

    counter = threading.Thread(target=count)
    counter.start()
    work()
    done.set()
    counter.join()
    return turns[0]
