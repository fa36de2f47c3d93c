"""Tables of fleets as files."""

from __future__ import annotations

import os
import tempfile
from dataclasses import dataclass
from typing import Any, Literal, NamedTuple

from . import _lvdata
from ._fleet_graph import in_order
from ._fleet_jobs import DOCUMENTS_PER_TASK, Paths, form_name, handed_over, table_jobs
from ._fleet_parts import BadDocument
from ._fleet_tasks import TableJob, header, text_bytes


@dataclass(frozen=True)
class PartFileJob:
    """A part of a table to be written into a file of its own."""

    part: TableJob
    file: str


def write_part(job: PartFileJob) -> list[BadDocument]:
    """Writes the file in one step, so that nobody sees half of it, also when two workers do it."""
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
    """Writes the rows of a table into a file, or into a folder of parts: one that is there, or a name that ends in "/".

    A file is written by the caller, who gets the parts one after the other: it holds what `lvdata convert` prints, and
    no machine has all of it in memory. It gets its name when it is complete; until then, and when writing fails, a
    file that has the name stays.

    Parts are written by the workers, so all must see the folder under this name. They are called part-00000.csv and so
    on, in the order of the documents, each with a header. A folder that holds such files already is refused with
    `FileExistsError`, so that parts of two runs are never mixed.
    """
    jobs = table_jobs(paths, documents_per_task, table, form_name(form), "collect")
    name = os.fspath(target)
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


def _write_file(jobs: list[TableJob], file: str, begin: bytes, client: Any) -> Written:
    errors: list[BadDocument] = []
    with tempfile.TemporaryDirectory(prefix=".lvdata-", dir=os.path.dirname(os.path.abspath(file))) as folder:
        growing = os.path.join(folder, "growing")
        with open(growing, "wb") as stream:
            stream.write(begin)
            for text, bad in in_order(text_bytes, jobs, client):
                stream.write(text)
                errors += bad
        os.replace(growing, file)
    return Written([file], errors)
