"""Rows of many documents, and where documents are found."""

from __future__ import annotations

import json
import operator
import os
from collections import deque
from collections.abc import Callable, Generator, Iterable, Iterator
from typing import TYPE_CHECKING, Any, TypeVar, Union

from . import _lvdata
from ._errors import ParseError
from ._paths import file_name
from ._sources import text_argument

if TYPE_CHECKING:
    from concurrent.futures import Future

Path = Union[str, "os.PathLike[str]"]
Problem = Union[ParseError, OSError]
Row = dict[str, Any]
OnError = Callable[[Problem], object]

#: Documents per thread that are in progress, or done and not yet taken: one slow document does not stop the others.
_AHEAD = 8

Result = TypeVar("Result")
AnyProblem = TypeVar("AnyProblem", ParseError, OSError, Problem)


def documents(
    paths: Path | Iterable[Path], *, on_error: Callable[[OSError], object] | None = None
) -> list[str]:
    """The documents at these paths: the files themselves, and all files named *.xml in the folders, at any depth.

    In a folder, files and folders are taken together in the order of the bytes of their names. Links to folders are
    followed when they are given as paths, and ignored inside a folder.

    :param on_error: called with each OSError of a folder that cannot be read or holds no document; the search continues
    :raises OSError: for such a folder, without `on_error`
    """
    found = []
    for each in walk(paths):
        if isinstance(each, bytes):
            found.append(os.fsdecode(each))
        else:
            _report(each, on_error)
    return found


def scan(
    paths: Path | Iterable[Path], table: str = "modes", *, jobs: int | None = None, on_error: OnError | None = None
) -> Iterator[Row]:
    """The rows of a table of many documents, one after the other: those of `lvdata convert --table`.

    The order is that of the documents, whatever `jobs` is. A few documents for each thread are read ahead, so the
    number of documents does not matter for memory.

        pandas.DataFrame(lvdata.scan("archive/"))

    :param paths: files and folders, as `documents` takes them
    :param table: one of `tables()`
    :param jobs: how many documents are worked on at a time; None: as many as there are processors
    :param on_error: called with the ParseError or OSError of each unreadable document; the others are still read
    :raises ValueError: for an unknown table
    :raises ParseError: for a document that cannot be read, without `on_error`; OSError for a file or folder
    """
    _lvdata.table_columns(text_argument("table", table))
    files = walk(paths)
    threads = _threads(jobs)
    return _rows(_results(files, lambda file: _lvdata.rows_of_file(file, table), threads), on_error)


def _threads(jobs: int | None) -> int:
    if jobs is None:
        return len(os.sched_getaffinity(0)) if hasattr(os, "sched_getaffinity") else os.cpu_count() or 1
    if not 1 <= operator.index(jobs) <= 1024:
        raise ValueError(f"jobs must be a number from 1 to 1024, not {jobs}")
    return jobs


def _report(problem: AnyProblem, on_error: Callable[[AnyProblem], object] | None) -> None:
    if on_error is None:
        raise problem
    on_error(problem)


def walk(paths: Path | Iterable[Path]) -> Iterator[bytes | OSError]:
    """The names of files, or in their place the reason why there is none."""
    return _walk([file_name(each) for each in ([paths] if isinstance(paths, (str, bytes, os.PathLike)) else paths)])


def _walk(paths: list[bytes]) -> Iterator[bytes | OSError]:
    documents_of_paths = _lvdata.DocumentWalk()
    for path in paths:
        documents_of_paths.start(path)
        while (found := _next(documents_of_paths)) is not None:
            yield found


def _next(walk: _lvdata.DocumentWalk) -> bytes | OSError | None:
    try:
        return walk.next()
    except OSError as error:
        return error


def _outcome(work: Callable[[bytes], Result], found: bytes | OSError) -> Result | Problem:
    if not isinstance(found, bytes):
        return found
    try:
        return work(found)
    except (ParseError, OSError) as error:
        return error


def _results(
    files: Iterator[bytes | OSError], work: Callable[[bytes], Result], threads: int
) -> Generator[Result | Problem, None, None]:
    """The result for each file, in order, by that many threads; one is the caller's. No thread outlives the generator."""
    if threads == 1:
        for each in files:
            yield _outcome(work, each)
        return
    from concurrent.futures import ThreadPoolExecutor  # not needed by all who import this

    executor = ThreadPoolExecutor(threads, "lvdata-scan")
    ahead: deque[Future[Result | Problem]] = deque()
    try:
        for each in files:
            ahead.append(executor.submit(_outcome, work, each))
            if len(ahead) >= threads * _AHEAD:
                yield ahead.popleft().result()
        while ahead:
            yield ahead.popleft().result()
    finally:
        executor.shutdown(cancel_futures=True)


def _rows(results: Generator[str | Problem, None, None], on_error: OnError | None) -> Iterator[Row]:
    try:
        for each in results:
            if isinstance(each, str):
                yield from json.loads(each)
            else:
                _report(each, on_error)
    finally:
        results.close()
