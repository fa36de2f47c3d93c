"""Tables of fleets as files."""

from __future__ import annotations

import os
import shutil
import stat
import tempfile
from dataclasses import dataclass
from typing import Any, Iterator, Literal, NamedTuple

from . import _lvdata
from ._fleet_graph import in_order
from ._fleet_jobs import DOCUMENTS_PER_TASK, Paths, collects, form_name, handed_over, table_jobs
from ._fleet_parts import BadDocument
from ._fleet_tasks import TableJob, header, text_bytes
from ._paths import file_name


@dataclass(frozen=True)
class PartFileJob:
    """A part of a table, to be written into a separate file."""

    part: TableJob
    file: str


def write_part(job: PartFileJob) -> list[BadDocument]:
    """Writes the file in one step, so nobody sees an incomplete file, even when two workers write it."""
    text, errors = text_bytes(job.part)
    _lvdata.write_file(os.fsencode(job.file), header(job.part.table, job.part.form) + text)
    return list(errors)


class Written(NamedTuple):
    """Files that were written."""

    files: list[str]  #: Their names, in the order of the documents.
    errors: list[BadDocument]  #: Documents that could not be read, and so are not in the files.


def write(
    paths: Paths, table: str, target: str | os.PathLike[str], *, form: Literal["csv", "jsonl"] = "csv",
    errors: Literal["raise", "collect"] = "raise", client: Any = None, documents_per_task: int = DOCUMENTS_PER_TASK,
) -> Written:
    """Writes the rows of a table into a file, or into a folder of parts: one that exists, or a name that ends in "/".

    A file is written by the caller, who gets the parts one after the other: it holds what `lvdata convert` prints, and
    no machine holds all of it in memory. It gets its name when it is complete; until then, and if writing fails, an
    existing file with that name stays. One of the documents, a device or a pipe is refused with `FileExistsError`.
    Through a symbolic link the file is replaced, not the link, and it keeps its rights.

    Parts are written by the workers, so all must see the folder under this name. They are called part-00000.csv and so
    on, in the order of the documents, each with a header. A folder that holds such files already is refused with
    `FileExistsError`, so that parts of two runs are never mixed.

    A `pathlib.Path` has no "/" at its end: `Path("parts/")` is a folder only when it is there already.
    """
    collects(errors)
    name = os.fsdecode(file_name(target))
    jobs = table_jobs(paths, documents_per_task, table, form_name(form), "collect")
    if name.endswith("/") or os.path.isdir(name):
        written = _write_folder(jobs, os.path.abspath(name), form, client)
    else:
        written = _write_file(jobs, name, header(table, form), client)
    return handed_over(written, written.errors, errors)


def _write_folder(jobs: list[TableJob], folder: str, form: str, client: Any) -> Written:
    os.makedirs(folder, exist_ok=True)
    if any(name.startswith("part-") for name in os.listdir(folder)):
        raise FileExistsError(f"{folder} holds parts already; choose another folder or remove them")
    files = [os.path.join(folder, f"part-{index:05}.{form}") for index in range(len(jobs))]
    part_jobs = [PartFileJob(job, file) for job, file in zip(jobs, files)]
    errors = [bad for found in in_order(write_part, part_jobs, client) for bad in found]
    return Written(files, errors)


def _documents_of(jobs: list[TableJob]) -> Iterator[str]:
    return (entry for job in jobs for entry in job.entries if isinstance(entry, str))


def _is_file(name: str, status: os.stat_result) -> bool:
    return os.path.exists(name) and os.path.samestat(os.stat(name), status)


def _refuse_to_overwrite(file: str, jobs: list[TableJob]) -> None:
    """Raises `FileExistsError` for a device or a pipe, and for one of the documents."""
    if not os.path.exists(file):
        return
    status = os.stat(file)
    if not stat.S_ISREG(status.st_mode):
        raise FileExistsError(f"{file} is not overwritten, since it is not a regular file")
    if any(_is_file(document, status) for document in _documents_of(jobs)):
        raise FileExistsError(f"{file} is not overwritten, since it is one of the documents")


def _write_file(jobs: list[TableJob], file: str, begin: bytes, client: Any) -> Written:
    _refuse_to_overwrite(file, jobs)
    target = os.path.realpath(file)
    errors: list[BadDocument] = []
    with tempfile.TemporaryDirectory(prefix=".lvdata-", dir=os.path.dirname(target)) as folder:
        growing = os.path.join(folder, "growing")
        with open(growing, "wb") as stream:
            stream.write(begin)
            for text, bad in in_order(text_bytes, jobs, client):
                stream.write(text)
                errors += bad
        if os.path.exists(target):
            shutil.copymode(target, growing)
        os.replace(growing, target)
    return Written([file], errors)
