"""Documents from and to text and files: errors, hostile texts, other bytes than UTF-8, threads, memory."""

from __future__ import annotations

import pickle
import subprocess
import sys
import threading
import tracemalloc
from pathlib import Path

import lvdata
import pytest
from records_of_all_classes import SAMPLES


def test_errors_of_documents_say_line_file_and_path(tmp_path: Path) -> None:
    with pytest.raises(lvdata.ParseError) as caught:
        lvdata.loads("<MonitorInfo>\n<a></b></MonitorInfo>")
    assert (caught.value.line, caught.value.file) == (2, None)
    bad = tmp_path / "bad.xml"
    bad.write_text("<Unknown/>")
    with pytest.raises(lvdata.ParseError, match="bad.xml: .*unknown root element"):
        lvdata.load(bad)
    with pytest.raises(lvdata.ParseError) as caught:
        lvdata.from_json('{"asset_info":\n {"asset_1": ""}}')
    assert (caught.value.line, caught.value.path) == (2, "asset_info.asset_1")
    assert str(caught.value) == 'line 2: asset_info.asset_1: unknown key, did you mean "asset1"?'
    assert str(pickle.loads(pickle.dumps(caught.value))) == str(caught.value)
    assert b"lvdata._errors" not in pickle.dumps(caught.value)
    with pytest.raises(FileNotFoundError, match="missing.xml"):
        lvdata.load(tmp_path / "missing.xml")
    with pytest.raises(TypeError, match="as str or bytes"):
        lvdata.loads(3)  # type: ignore[arg-type]


@pytest.mark.parametrize("text", ["", "\0", "<", "<AssetInfo>" * 100_000, "\udcff", "<AssetInfo/>\0", "[" * 100_000])
def test_hostile_texts_are_refused(text: str) -> None:
    with pytest.raises(lvdata.ParseError):
        lvdata.loads(text)
    with pytest.raises(lvdata.ParseError):
        lvdata.from_json(text)


def test_losses_of_json_are_warnings() -> None:
    text = '{"parameter_setting": {"brightness": {"type": "SyncSignal", "value": 3}}}'
    with pytest.warns(UserWarning, match="Brightness"):
        lvdata.from_json(text)


def test_other_bytes_than_utf8_are_kept(tmp_path: Path) -> None:
    document = b"<AssetInfo><Asset1>caf\xe9</Asset1></AssetInfo>"
    record = lvdata.loads(document)
    assert record.asset1 == "caf\udce9"
    assert record == lvdata.AssetInfo(version=1, minor_version=0, asset1="caf\udce9")
    record.save(tmp_path / "a.xml")
    assert b"caf\xe9" in (tmp_path / "a.xml").read_bytes()
    assert lvdata.load(tmp_path / "a.xml") == record
    assert lvdata.loads(record.to_xml()) == record == pickle.loads(pickle.dumps(record))
    with pytest.raises(ValueError, match="not UTF-8"):
        record.to_json()


def test_saving_replaces_the_file_or_says_why_not(tmp_path: Path) -> None:
    record = lvdata.AssetInfo(asset1="one")
    record.save(tmp_path / "a.xml", pretty=False, declaration=False)
    assert (tmp_path / "a.xml").read_text() == record.to_xml(pretty=False, declaration=False) + "\n"
    with pytest.raises(FileNotFoundError, match="no/a.xml"):
        record.save(tmp_path / "no" / "a.xml")


def test_records_can_be_used_in_several_threads() -> None:
    text = (SAMPLES / "studio.xml").read_bytes()
    expected = lvdata.loads(text).to_xml()
    printed: list[bool] = []

    def work() -> None:
        printed.extend(lvdata.loads(text).to_xml() == expected for _ in range(5))

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert printed == [True] * 20


def test_memory_does_not_grow() -> None:
    text = (SAMPLES / "MeasurementData.xml").read_bytes()

    def work() -> None:
        record = lvdata.loads(text)
        record.measurements.to_numpy()
        assert pickle.loads(pickle.dumps(record)).copy() == record
        record.measurements = [*record.measurements, {"rgb": [1, 2, 3]}]
        with pytest.raises(ValueError):
            record.measurements[0].rgb = [1]

    tracemalloc.start()
    for _ in range(300):  # up to here, caches fill
        work()
    before = tracemalloc.get_traced_memory()[0]
    for _ in range(300):
        work()
    grown = tracemalloc.get_traced_memory()[0] - before
    tracemalloc.stop()
    assert grown < 300 * 16


def test_importing_loads_no_other_library() -> None:
    code = "import lvdata, sys; print([name for name in ('numpy', 'pandas', 'dask') if name in sys.modules])"
    found = subprocess.run([sys.executable, "-c", code], check=True, capture_output=True, text=True).stdout
    assert found == "[]\n"
