"""What a page in Markdown holds, as far as it can be checked: blocks, links, headings and code in the text."""

import dataclasses
import pathlib
import re

FENCE = re.compile(r"```(\w*)\s*$")
INDENT = "    "


class PageError(Exception):
    """A page says what is not so. The text begins with page and line."""


@dataclasses.dataclass
class Block:
    page: pathlib.Path
    line: int  # of its first line, from 1
    language: str  # of the fence; empty for an indented block
    text: str
    before: str  # the paragraph above

    def error(self, reason):
        return PageError(f"{self.page}:{self.line}: {reason}")


@dataclasses.dataclass
class Link:
    line: int
    text: str
    target: str
    is_picture: bool


class Page:
    """A page of the project in `root`; `path` is relative to it."""

    def __init__(self, root, path):
        self.root = pathlib.Path(root)
        self.path = pathlib.Path(path)
        self.blocks = []
        self._prose = []  # pairs of a line's number and its text
        self._behind_block = 0  # where the prose behind the last block begins
        self._read((self.root / path).read_text(encoding="utf-8").split("\n"))

    def error(self, line, reason):
        return PageError(f"{self.path}:{line}: {reason}")

    @property
    def links(self):
        """Those of Markdown, and those in HTML, of which a picture counts as a link like others."""
        pattern = re.compile(r"""(!?)\[([^\]]*)\]\(([^)\s]+)\)|(?:href|src)="([^"]+)\"""")
        return [Link(line, text, target or html, mark == "!") for line, prose in self._prose
                for mark, text, target, html in pattern.findall(re.sub("`[^`]*`", "", prose))]

    @property
    def code_spans(self):
        return [(line, span) for line, prose in self._prose for span in re.findall("`([^`]+)`", prose)]

    @property
    def anchors(self):
        """The names by which links reach the headings."""
        anchors = []
        for _, prose in self._prose:
            if heading := re.match(r"#+ +(.*)", prose):
                name = re.sub(r"[^\w\- ]", "", heading.group(1).lower()).replace(" ", "-")
                anchors.append(f"{name}-{anchors.count(name)}" if name in anchors else name)
        return anchors

    def _read(self, lines):
        number = 0
        while number < len(lines):
            fence = FENCE.match(lines[number])
            if fence:
                number = self._read_fence(lines, number, fence.group(1))
            elif lines[number].startswith(INDENT) and (number == 0 or not lines[number - 1].strip()):
                number = self._read_indented(lines, number)
            else:
                self._prose.append((number + 1, lines[number]))
                number += 1

    def _read_fence(self, lines, start, language):
        end = start + 1
        while end < len(lines) and lines[end] != "```":
            end += 1
        if end == len(lines):
            raise self.error(start + 1, "this fence is never closed")
        if not language:
            raise self.error(start + 1, "this fence names no language; commands are indented")
        self._add(start + 2, language, lines[start + 1:end])
        return end + 1

    def _read_indented(self, lines, start):
        if re.match(r"([-*]|\d+\.) |  ", self._paragraph_before().split("\n")[-1]):
            raise self.error(start + 1, "behind a list this is no block, but one more paragraph of the list")
        end = start
        while end < len(lines) and (lines[end].startswith(INDENT) or not lines[end].strip()):
            end += 1
        while not lines[end - 1].strip():
            end -= 1
        self._add(start + 1, "", [line[len(INDENT):] for line in lines[start:end]])
        return end

    def _add(self, line, language, lines):
        if not any(lines):
            raise self.error(line, "this block is empty")
        self.blocks.append(Block(self.path, line, language, "\n".join(lines) + "\n", self._paragraph_before()))
        self._behind_block = len(self._prose)

    def _paragraph_before(self):
        paragraph = []
        for _, prose in reversed(self._prose[self._behind_block:]):
            if prose.strip():
                paragraph.insert(0, prose)
            elif paragraph:
                break
        return "\n".join(paragraph)


def pages_of(root):
    """All pages of the project, apart from what was built or installed in it."""
    skipped = {"build", "node_modules"}
    for path in sorted(pathlib.Path(root).rglob("*.md")):
        parts = path.relative_to(root).parts
        if not any(part in skipped or part.startswith(".") for part in parts):
            yield Page(root, path.relative_to(root))
