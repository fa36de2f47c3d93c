"""Bad documents in lvdata.fleet: what is reported of them, in the words of the command."""

from __future__ import annotations

import contextlib
import os
from typing import Any, Iterator

import lvdata
import pandas
import pytest
from fleet_support import Folder, bad, both, document, few, here, joined, messages, printed, tool  # noqa: F401
from lvdata import _fleet_tasks, fleet


@pytest.mark.parametrize("form", ["csv", "jsonl"])
def test_bad_documents_are_reported_as_the_command_reports_them(few: Folder, bad: list[Folder], form: Any) -> None:
    paths = [*bad, few]
    text, errors = both(fleet.text(paths, "modes", form=form, errors="collect"))
    command = tool("convert", "--to", form, "--table", "modes", *paths)
    assert b"".join(text) == command.stdout
    told = [line.split(" (limit: ")[0] for line in command.stderr.decode().splitlines() if ": error: " in line]
    assert messages(errors) == told
    assert len(told) == 4
    assert errors[0] == (str(bad[0]), 2, "the end tag does not match the start tag")


def test_a_document_may_not_be_larger_than_for_the_command(tmp_path: Folder) -> None:
    with open(tmp_path / "large.xml", "wb") as large:
        large.truncate(64 * 1024 * 1024 + 1)
    rows, errors = both(fleet.rows(tmp_path, "modes", errors="collect"))
    command = tool("convert", "--to", "csv", "--table", "modes", tmp_path).stderr.decode()
    assert messages(errors) == [command.split(" (limit: ")[0]]


def test_documents_are_read_once_for_data_and_errors(
    few: Folder, bad: list[Folder], monkeypatch: pytest.MonkeyPatch
) -> None:
    read: list[str] = []
    text_of = _fleet_tasks.text_of
    monkeypatch.setattr(_fleet_tasks, "text_of", lambda file: read.append(file) or text_of(file))
    for function in (fleet.text, fleet.rows, fleet.table):
        read.clear()
        data, errors = both(function([few, bad[0]], "modes", errors="collect", documents_per_task=3))
        assert len(data) > 0 and len(errors) == 1
        assert len(read) == 11


def test_a_table_has_bad_documents_as_a_frame(few: Folder, bad: list[Folder]) -> None:
    frame, errors = both(fleet.table([few, *bad[:2]], "modes", errors="collect"))
    assert len(frame) == 6
    assert list(errors.columns) == ["file", "line", "reason"]
    assert list(errors.file) == [str(bad[0]), str(bad[1])]
    assert errors.line[0] == 2 and errors.line[1] is pandas.NA
    assert errors.reason[1] == "No such file or directory"


@pytest.mark.parametrize("function", [fleet.text, fleet.rows, fleet.table])
def test_a_bad_document_raises_unless_errors_are_collected(few: Folder, bad: list[Folder], function: Any) -> None:
    with pytest.raises(lvdata.ParseError) as raised:
        here(function([few, bad[0]], "modes"))
    assert (raised.value.file, raised.value.line) == (str(bad[0]), 2)


def test_what_json_cannot_carry_is_a_bad_document(tmp_path: Folder) -> None:
    (tmp_path / "latin1.xml").write_bytes(b"<AssetInfo><Asset1>\xe4</Asset1></AssetInfo>")
    assert joined(fleet.text(tmp_path, "monitors"), scheduler="sync") == printed("monitors", "csv", tmp_path)
    rows, errors = both(fleet.rows(tmp_path, "monitors", errors="collect"))
    assert rows == []
    assert messages(errors) == [tool("convert", "--to", "jsonl", "--table", "monitors", tmp_path).stderr.decode()[:-1]]


@contextlib.contextmanager
def without_rights() -> Iterator[None]:
    """As another user than root, who may read everything."""
    is_root = os.geteuid() == 0
    if is_root:
        os.seteuid(65534)
    try:
        yield
    finally:
        if is_root:
            os.seteuid(0)


def test_a_folder_that_cannot_be_read_is_reported(few: Folder) -> None:
    few.chmod(0)
    inner = few.parent / "outer" / "inner"
    inner.mkdir(parents=True)
    for folder in [*few.parents][:3]:
        folder.chmod(0o755)
    (inner.parent / "z.xml").write_text(document(0))
    inner.chmod(0)
    with without_rights():
        rows = fleet.rows([few, inner.parent], "modes", errors="collect")
    rows, errors = both(rows)
    few.chmod(0o755)
    inner.chmod(0o755)
    assert len(rows) == 1
    assert errors == [(str(few), None, "Permission denied"), (str(inner), None, "Permission denied")]


def test_a_folder_without_documents_is_reported(tmp_path: Folder) -> None:
    rows, errors = both(fleet.rows(tmp_path, "modes", errors="collect"))
    assert rows == []
    assert messages(errors) == [tool("convert", "--to", "csv", "--table", "modes", tmp_path).stderr.decode()[:-1]]
