"""The pages in Markdown, and what the tests look at in them: links, headings, blocks of code, transcripts."""

from __future__ import annotations

import os
import re
from dataclasses import dataclass, field
from pathlib import Path

SOURCES = Path(os.environ["LVDATA_SOURCE_DIR"])
DOCS = SOURCES / "docs"
PAGES = sorted(SOURCES.glob("*.md")) + sorted(DOCS.rglob("*.md"))

FENCE = re.compile(r"^( *)```(.*)$")
COMMENT = re.compile(r"^ *<!-- *(.*?) *-->$")


@dataclass
class Block:
    """A block of code: its page, the line of its first line, its language, and the comment before it."""

    page: Path
    line: int
    language: str
    comment: str
    lines: list[str] = field(default_factory=list)

    @property
    def text(self) -> str:
        return "\n".join(self.lines) + "\n"

    @property
    def place(self) -> str:
        return f"{self.page.relative_to(SOURCES)}:{self.line}"

    @property
    def is_transcript(self) -> bool:
        return bool(self.lines) and self.lines[0].startswith("$ ")


def lines_of(page: Path) -> list[str]:
    return page.read_text(encoding="utf-8").splitlines()


def blocks_of(page: Path) -> list[Block]:
    """The blocks between fences, and those indented by four spaces that are transcripts."""
    return list(_walk(page)[0])


def prose_of(page: Path) -> list[tuple[int, str]]:
    """The lines that are not code, with their numbers; code inside a line is left out."""
    return [(number, re.sub(r"`[^`]*`", "``", line)) for number, line in _walk(page)[1]]


def _walk(page: Path) -> tuple[list[Block], list[tuple[int, str]]]:
    blocks: list[Block] = []
    prose: list[tuple[int, str]] = []
    fence = indented = None
    comment = ""
    for number, line in enumerate(lines_of(page), 1):
        found = FENCE.match(line)
        if fence is not None:
            if found and not found[2]:
                fence = None
            else:
                blocks[-1].lines.append(line[len(fence) :])
        elif found:
            fence = found[1]
            blocks.append(Block(page, number + 1, found[2].strip(), comment))
        elif indented and (line.startswith("    ") or not line):
            blocks[-1].lines.append(line[4:])
        elif line.startswith("    $ ") and (not prose or not prose[-1][1]):
            indented = True
            blocks.append(Block(page, number, "", comment, [line[4:]]))
        else:
            indented = None
            prose.append((number, line))
            found = COMMENT.match(line)
            comment = found[1] if found else comment if not line else ""
            continue
        comment = ""
        prose.append((number, ""))
    return blocks, prose


def anchors_of(page: Path) -> set[str]:
    """The anchors of the headings, as GitHub and the site make them."""
    anchors: set[str] = set()
    headings = (re.match(r"^#+ +(.*)$", line) for _, line in _walk(page)[1])
    for title in (found[1] for found in headings if found):
        plain = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", title)
        anchor = re.sub(r"[^\w\- ]", "", plain.lower()).replace(" ", "-")
        count = 0
        while (anchor if not count else f"{anchor}-{count}") in anchors:
            count += 1
        anchors.add(anchor if not count else f"{anchor}-{count}")
    return anchors


@dataclass
class Command:
    """What is typed, and the lines that a terminal shows then; a line "..." stands for any lines of the output."""

    text: str
    shown: list[str] = field(default_factory=list)

    @property
    def is_unfinished(self) -> bool:
        document = re.search(r"(?:^|[^<])<<-? *['\"]?([A-Za-z_]+)", self.text)
        if document:
            return not self.text.endswith("\n" + document[1])
        return self.text.endswith("\\")


def commands_of(block: Block) -> list[Command]:
    """The commands of a transcript. "> " goes on with one that ends with a backslash or has an open here-document."""
    commands: list[Command] = []
    for line in block.lines:
        if line.startswith("$ "):
            commands.append(Command(line[2:]))
        elif line.startswith(">") and commands[-1].is_unfinished:
            commands[-1].text += "\n" + line[2:]
        else:
            commands[-1].shown.append(line)
    for command in commands:
        command.shown = without_empty_end(command.shown)
    return commands


def without_empty_end(lines: list[str]) -> list[str]:
    while lines and not lines[-1]:
        lines = lines[:-1]
    return lines


def shows_streams(shown: list[str], output: list[str], error: list[str]) -> bool:
    """Whether a terminal shows all lines of both streams, each in its order and nothing else."""
    if not shown:
        return not output and not error
    if shown[0] == "...":
        return any(shows_streams(shown[1:], output[count:], error) for count in range(len(output) + 1))
    return any(
        stream[:1] == shown[:1] and shows_streams(shown[1:], *rest)
        for stream, rest in ((output, (output[1:], error)), (error, (output, error[1:])))
    )
