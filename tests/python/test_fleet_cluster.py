"""lvdata.fleet with a scheduler and two worker processes on this machine.

LVDATA_FLEET_DOCUMENTS is how many documents the fleet has: 2,000 unless it is set.
"""

from __future__ import annotations

import concurrent.futures
import json
import os
import shutil
import signal
import sys
import time
from typing import Any, Iterator

import distributed
import lvdata
import pandas
import pytest
from fleet_support import Folder, bad, document, few, printed, tool  # noqa: F401
from lvdata import fleet

COUNT = int(os.environ.get("LVDATA_FLEET_DOCUMENTS", "2000"))

# tornado says that a function is deprecated which Debian's version of distributed calls, here and in each worker.
OUTSIDE = "ignore:make_current is deprecated:DeprecationWarning"
pytestmark = pytest.mark.filterwarnings(OUTSIDE)


@pytest.fixture(scope="module")
def archive(tmp_path_factory: pytest.TempPathFactory) -> Folder:
    """A folder of folders with many small documents."""
    archive = tmp_path_factory.mktemp("archive")
    for number in range(COUNT):
        folder = archive / str(number // 1000)
        if number % 1000 == 0:
            folder.mkdir()
        (folder / f"{number}.xml").write_text(document(number), encoding="utf-8")
    return archive


@pytest.fixture(scope="module")
def cluster() -> Iterator[distributed.LocalCluster]:
    sys.warnoptions.append(OUTSIDE)  # the workers get these
    try:
        with distributed.LocalCluster(
            n_workers=2, threads_per_worker=1, processes=True, dashboard_address=":0"
        ) as cluster:
            yield cluster
    finally:
        sys.warnoptions.remove(OUTSIDE)


@pytest.fixture(scope="module")
def client(cluster: distributed.LocalCluster) -> Iterator[distributed.Client]:
    with distributed.Client(cluster, set_as_default=False) as client:
        yield client


# The whole archive, by two workers.


@pytest.mark.parametrize("form", ["csv", "jsonl"])
@pytest.mark.parametrize("table", ["monitors", "modes", "patches"])
def test_text_is_what_the_command_prints(archive: Folder, client: Any, table: str, form: str) -> None:
    text = client.compute(fleet.text(archive, table, form=form, client=client), sync=True)
    assert len(text) == COUNT / 100
    assert b"".join(text) == printed(table, form, archive)
    assert len(b"".join(text).splitlines()) > COUNT / 2


def test_a_table_has_the_rows_that_the_command_prints(archive: Folder, client: Any) -> None:
    frame = client.compute(fleet.table(archive, "modes", client=client), sync=True)
    lines = [json.loads(line) for line in printed("modes", "jsonl", archive).splitlines()]
    assert len(frame) == len(lines) == COUNT * 3 / 5
    for name in frame.columns:
        assert [None if value is not value or value is pandas.NA else value for value in frame[name]] == [
            line[name] for line in lines
        ]


def test_a_killed_worker_loses_nothing(archive: Folder, client: Any, cluster: Any) -> None:
    bag = fleet.text(archive, "patches", documents_per_task=COUNT // 200)
    scheduler = cluster.scheduler
    victims = client.run(os.getpid)
    address, victim = next(iter(victims.items()))
    result = client.compute(bag)

    def finished(tasks: Any) -> int:
        return sum(task.state == "memory" and bag.name in str(task.key) for task in list(tasks))

    while finished(scheduler.workers[address].has_what) < 5:
        time.sleep(0.001)
    os.kill(victim, signal.SIGKILL)
    assert finished(scheduler.tasks.values()) < 150
    assert not result.done()
    assert b"".join(result.result()) == printed("patches", "csv", archive)
    with pytest.raises(ProcessLookupError):
        os.kill(victim, 0)
    client.wait_for_workers(2)
    assert victim not in client.run(os.getpid).values()


@pytest.mark.parametrize("kind", ["parts", "report"])
def test_a_killed_worker_loses_no_file(archive: Folder, client: Any, tmp_path: Folder, kind: str) -> None:
    paths = [archive / "0" / f"{number}.xml" for number in range(300) if number % 5 < 3]
    target = tmp_path / kind
    victim = next(iter(client.run(os.getpid).values()))
    with concurrent.futures.ThreadPoolExecutor(1) as executor:
        if kind == "parts":
            work = executor.submit(fleet.write, paths, "patches", f"{target}/", client=client, documents_per_task=1)
        else:
            work = executor.submit(fleet.report, paths, target, client=client)
        while not work.done() and (not target.exists() or len(os.listdir(target)) < 5):
            time.sleep(0.001)
        os.kill(victim, signal.SIGKILL)
        assert not work.done()
    assert work.result().errors == []
    client.wait_for_workers(2)
    made = {file.name: file.read_bytes() for file in sorted(target.iterdir()) if not file.name.startswith(".lvdata-")}
    if kind == "parts":
        header, *lines = printed("patches", "csv", *paths).splitlines(keepends=True)
        assert list(made.values()) == [header + line for line in lines]
    else:
        tool("report", *paths, "-o", f"{tmp_path}/command/")
        assert made == {file.name: file.read_bytes() for file in (tmp_path / "command").iterdir()}
        assert len(made) == 181


def test_a_closed_client_is_refused(cluster: Any, few: Folder) -> None:
    client = distributed.Client(cluster, set_as_default=False)
    client.close()
    for call in (lambda: fleet.rows(few, "modes", client=client), lambda: fleet.report(few, few, client=client),
                 lambda: fleet.write(few, "modes", few / "modes.csv", client=client)):
        with pytest.raises(ValueError, match="the client is closed"):
            call()


def test_a_table_is_written_part_by_part(archive: Folder, client: Any, tmp_path: Folder) -> None:
    file = tmp_path / "modes.csv"
    written = fleet.write(archive, "modes", file, client=client)
    assert written == ([str(file)], [])
    assert file.read_bytes() == printed("modes", "csv", archive)
    assert os.listdir(tmp_path) == ["modes.csv"]


def test_workers_write_parts_into_a_folder(archive: Folder, client: Any, tmp_path: Folder) -> None:
    written = fleet.write(archive, "modes", f"{tmp_path}/parts/", client=client, documents_per_task=500)
    parts = sorted(os.listdir(tmp_path / "parts"))
    assert [f"{tmp_path}/parts/{part}" for part in parts] == written.files
    assert parts[:2] == ["part-00000.csv", "part-00001.csv"]
    header, *_ = printed("modes", "csv", archive).splitlines(keepends=True)
    texts = [(tmp_path / "parts" / part).read_bytes() for part in parts]
    assert all(text.startswith(header) for text in texts)
    assert header + b"".join(text[len(header):] for text in texts) == printed("modes", "csv", archive)


def test_bad_documents_among_many_come_back(archive: Folder, client: Any, bad: list[Folder]) -> None:
    paths = [archive / "0", *bad, archive / "1"]
    rows, errors = client.gather(client.compute(list(fleet.rows(paths, "modes", errors="collect", client=client))))
    assert [error.file for error in errors] == list(map(str, bad))
    assert len(rows) == 1200
    found = client.compute(fleet.check(paths, client=client), sync=True)
    assert list(found[found.id == "unreadable"].file) == list(map(str, bad[1:]))


def test_the_error_of_a_worker_keeps_file_and_line(client: Any, bad: list[Folder]) -> None:
    with pytest.raises(lvdata.ParseError) as raised:
        client.compute(fleet.rows(bad, "modes"), sync=True)
    assert (raised.value.file, raised.value.line) == (str(bad[0]), 2)


def test_a_client_keeps_the_result_on_its_workers(few: Folder, client: Any) -> None:
    persisted = fleet.table(few, "modes", client=client)
    client.compute(persisted, sync=True)
    shutil.rmtree(few)
    assert len(client.compute(persisted, sync=True)) == 6
    data, errors = fleet.rows(few, "modes", errors="collect", client=client)
    assert client.compute(errors, sync=True)[0].file == str(few)
    assert client.compute(data, sync=True) == []


def test_workers_write_the_pages_of_a_report(few: Folder, client: Any, tmp_path: Folder) -> None:
    for number in range(3, 10, 5):
        (few / f"{number}.xml").unlink()
    for number in range(4, 10, 5):
        (few / f"{number}.xml").unlink()
    tool("report", few, "-o", f"{tmp_path}/command/")
    reported = fleet.report(few, tmp_path / "fleet", client=client, documents_per_task=2)
    assert len(reported.pages) == 6
    names = os.listdir(tmp_path / "command")
    assert sorted(os.listdir(tmp_path / "fleet")) == sorted(names)
    assert len(names) == 7
    for name in names:
        assert (tmp_path / "fleet" / name).read_bytes() == (tmp_path / "command" / name).read_bytes()
