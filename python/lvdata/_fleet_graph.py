"""Dask collections made of jobs, and results of jobs one after the other. The only part that knows how Dask works."""

from __future__ import annotations

import importlib
import os
import uuid
from collections import deque
from typing import Any, Callable, Iterator, Sequence

# Any is the border to Dask, which has types for a few of its functions only.
dask: Any = importlib.import_module("dask")
dask_bag: Any = importlib.import_module("dask.bag")
dask_frame: Any = importlib.import_module("dask.dataframe")

Work = Callable[[Any], Any]


class Tasks:
    """A task for each job. Collections that are made of them share them."""

    def __init__(self, name: str, work: Work, jobs: Sequence[Any]) -> None:
        prefix = f"lvdata-{name}-{uuid.uuid4().hex}"  # new each time, since files may have changed
        task = dask.delayed(work, pure=False, traverse=False)
        self._parts = [task(job, dask_key_name=f"{prefix}-{index}") for index, job in enumerate(jobs)]

    def bag(self, member: int) -> Any:
        """A Bag of what the member of the result with that position holds."""
        return dask_bag.from_delayed([part[member] for part in self._parts])

    def frame(self, member: int, meta: Any) -> Any:
        """A DataFrame of that member of the results. `meta` is an empty one of the same columns."""
        parts = [part[member] for part in self._parts]
        return dask_frame.from_delayed(parts, meta=meta, verify_meta=False)


def started(collections: tuple[Any, ...], client: Any) -> tuple[Any, ...]:
    """The same collections, being read by the workers of the client."""
    _refuse_closed(client)
    return tuple(client.persist(list(collections)))


def current_client() -> Any:
    """The client that Dask would use; None without one."""
    try:
        return importlib.import_module("distributed").get_client()
    except (ImportError, ValueError):
        return None


def in_order(work: Work, jobs: Sequence[Any], client: Any) -> Iterator[Any]:
    """The results of the jobs in their order. Only a few of them are in memory at a time."""
    client = client or current_client()
    if client is not None:
        _refuse_closed(client)
    yield from _by_client(work, jobs, client) if client is not None else _by_default_scheduler(work, jobs)


def _refuse_closed(client: Any) -> None:
    if client.status in ("closing", "closed"):
        raise ValueError("the client is closed; make another one")


def _by_client(work: Work, jobs: Sequence[Any], client: Any) -> Iterator[Any]:
    most = max(16, 4 * sum(client.nthreads().values()))
    waiting: deque[Any] = deque()
    for job in jobs:
        if len(waiting) == most:
            yield waiting.popleft().result()
        waiting.append(client.submit(work, job, key=f"lvdata-{work.__name__}-{uuid.uuid4().hex}"))
    while waiting:
        yield waiting.popleft().result()


def _by_default_scheduler(work: Work, jobs: Sequence[Any]) -> Iterator[Any]:
    most = 4 * (os.cpu_count() or 1)
    for begin in range(0, len(jobs), most):
        tasks = [dask.delayed(work, pure=False, traverse=False)(job) for job in jobs[begin : begin + most]]
        yield from dask.compute(*tasks)
