"""The pages show what a user types and what the terminal answers. It is typed again here.

Each block has a shell and a folder of its own, with the documents of examples/data, and with the blocks of the same
page that are files: those after a comment `<!-- file: NAME -->`.
"""

from __future__ import annotations

import re
import shlex
import shutil
import subprocess
from pathlib import Path

import pytest
from pages import DOCS, PAGES, SOURCES, Block, blocks_of, commands_of, shows_streams, without_empty_end

TRANSCRIPTS = [block for page in PAGES for block in blocks_of(page) if block.is_transcript]


#: Programs that few machines have: their transcripts are left out without them.
OPTIONAL = ("xmllint",)


def fill(folder: Path, page: Path) -> None:
    for document in (SOURCES / "examples" / "data").iterdir():
        shutil.copy(document, folder)
    for name in ("schemas", "limits"):
        (folder / name).symlink_to(SOURCES / name)
    for block in blocks_of(page):
        if block.comment.startswith("file: "):
            (folder / block.comment.removeprefix("file: ")).write_text(block.text, encoding="utf-8")


def script_of(texts: list[str], streams: Path) -> str:
    """Runs the commands in one shell, with the output, the errors and the status of each in files."""
    lines = []
    for index, text in enumerate(texts):
        stem = shlex.quote(str(streams / str(index)))
        lines.append(f"{{ {text}\n}} >{stem}.out 2>{stem}.err; status=$?\n")
        lines.append(f"echo $status >{stem}.status; (exit $status)\n")
    return "".join(lines) + ":"


def lines_of_stream(path: Path) -> list[str]:
    return without_empty_end(path.read_text(encoding="utf-8", errors="surrogateescape").split("\n"))


def is_shared(environment: dict[str, str]) -> bool:
    libraries = Path(environment["LD_LIBRARY_PATH"])
    return bool(list(libraries.glob("liblvdata.*"))) and not (libraries / "liblvdata.a").exists()


def is_tool_alone(text: str) -> bool:
    return text.startswith("lvdata ") and "|" not in text


@pytest.mark.parametrize("block", TRANSCRIPTS, ids=lambda block: block.place)
def test_shows_what_happens(block: Block, tmp_path: Path, shell_environment: dict[str, str]) -> None:
    if "pkg-config" in block.text and not is_shared(shell_environment):
        pytest.skip("the page shows how to link the shared library")
    for program in OPTIONAL:
        if block.text.startswith(f"$ {program} ") and not shutil.which(program):
            pytest.skip(f"{program} is not installed")
    folder, streams = tmp_path / "folder", tmp_path / "streams"
    folder.mkdir()
    streams.mkdir()
    fill(folder, block.page)
    commands = commands_of(block)
    script = script_of([command.text for command in commands], streams)
    subprocess.run(["bash", "-c", script], cwd=folder, env=shell_environment, check=True)
    for index, command in enumerate(commands):
        output, error = (lines_of_stream(streams / f"{index}.{name}") for name in ("out", "err"))
        status = int((streams / f"{index}.status").read_text())
        assert shows_streams(command.shown, output, error), f"$ {command.text}\n" + "\n".join(output + error)
        if is_tool_alone(command.text):  # a failure comes with a message, a success without one
            assert status == 1 or (status == 2) == bool(error), command.text


def test_each_subcommand_has_a_transcript(shell_environment: dict[str, str]) -> None:
    run = subprocess.run(["lvdata", "--help"], env=shell_environment, capture_output=True, text=True, check=True)
    subcommands = re.findall(r"^ +(\w+) {2,}", run.stdout.partition("Subcommands:")[2], re.M)
    assert "format" in subcommands
    blocks = [block for block in TRANSCRIPTS if block.page == DOCS / "tool.md"]
    typed = [command.text for block in blocks for command in commands_of(block)]
    for subcommand in subcommands:
        assert any(text.startswith(f"lvdata {subcommand} ") for text in typed), subcommand


def transcript(text: str) -> list[tuple[str, list[str]]]:
    block = Block(Path("page"), 1, "", "", text.splitlines())
    return [(command.text, command.shown) for command in commands_of(block)]


def test_commands_of_several_lines() -> None:
    assert transcript("$ cat <<'END'\n> <a/>\n>\n> END\n> shown\n$ one \\\n> two\n") == [
        ("cat <<'END'\n<a/>\n\nEND", ["> shown"]),
        ("one \\\ntwo", []),
    ]
    assert transcript("$ cat <<< a\n> a\n") == [("cat <<< a", ["> a"])]


def test_both_streams_are_shown_whole_and_in_order() -> None:
    assert shows_streams(["e1", "o1", "e2", "o2"], ["o1", "o2"], ["e1", "e2"])
    assert shows_streams(["a", "...", "d"], ["a", "b", "c", "d"], [])
    assert shows_streams(["a", "..."], ["a"], [])
    assert not shows_streams(["o2", "o1"], ["o1", "o2"], [])
    assert not shows_streams(["o1"], ["o1", "o2"], [])
    assert not shows_streams(["o1", "o2"], ["o1"], [])
    assert not shows_streams(["o1"], ["o1"], ["e1"])
    assert not shows_streams(["..."], ["a"], ["e"])


def test_pages_have_transcripts() -> None:
    pages = {block.page.name for block in TRANSCRIPTS}
    assert {"README.md", "tool.md", "quickstart.md", "tour.md", "schemas.md"} <= pages
