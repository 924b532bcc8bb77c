"""Runs what stands on a page, in a folder that looks like the root of the project."""

import fnmatch
import re
import struct
import zlib

import blocks
import shell
from markdown import PageError
from rules import GALLERY, PHOTOGRAPHS, rules_for
from sandbox import CommandError, Sandbox

COMMAND_IN_TEXT = re.compile(r"(\./phone|build/\w+/bin/[\w-]+) .+")


def commands_in_text(page):
    """Commands inside the sentences of a page."""
    return [shell.Command(line, span) for line, span in page.code_spans if COMMAND_IN_TEXT.fullmatch(span)]


def prepared(command):
    """The text of a command that a test can run, and the rules that it follows."""
    rules = rules_for(command)
    text = command.text
    for rule in rules:
        if rule.instead is not None:
            text = re.sub(rule.pattern, rule.instead, text)
    return text, rules


def presets_of(page):
    """The builds in which a page has something to run."""
    commands = [command for block in page.blocks if blocks.kind_of(block) == "commands"
                for command in shell.commands_of(block)]
    return {_preset(prepared(command)[0]) for command in commands + commands_in_text(page)} | {
        "release" for _ in pictures_of(page)}


def pictures_of(page):
    """The pictures that a page shows, from the root of the project on."""
    root = page.root.resolve()
    files = [(root / page.path.parent / link.target).resolve().relative_to(root)
             for link in page.links if link.is_picture]
    return [file for file in files if not file.is_relative_to(GALLERY) and str(file) not in PHOTOGRAPHS]


def _preset(text):
    named = re.search(r"(?<![\w/])build/(\w+)|--preset (\w+)", text)
    return (named.group(1) or named.group(2)) if named else "release"


class PageRun:
    def __init__(self, page, build, python):
        self._page = page
        self._preset = build.name
        self._arguments = (page.root, build, python)
        self._outputs = []
        self.count = 0

    def run(self):
        with Sandbox(*self._arguments) as sandbox:
            present = sandbox.files()
            pictures = pictures_of(self._page)
            for picture in pictures:
                (sandbox.folder / picture).unlink(missing_ok=True)
            for block in self._page.blocks:
                self._run_block(sandbox, block)
            done = {command.text for block in self._page.blocks if blocks.kind_of(block) == "commands"
                    for command in shell.commands_of(block)}
            self._run_commands(sandbox, [command for command in commands_in_text(self._page)
                                         if command.text not in done])
            if self._preset == "release":
                for picture in pictures:
                    self._compare_picture(sandbox, picture)
            self._check_ignored(sandbox.files() - present)

    def _run_block(self, sandbox, block):
        kind = blocks.kind_of(block)
        if kind == "saved":
            file = sandbox.folder / blocks.named(block, blocks.SAVED)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(block.text, encoding="utf-8")
        elif kind == "commands":
            self._run_commands(sandbox, shell.commands_of(block))

    def _run_commands(self, sandbox, commands):
        plain = []  # run as one script, since one may set what the next one needs
        for command in commands:
            text, rules = prepared(command)
            if any(rule.is_left_out for rule in rules) or _preset(text) != self._preset:
                continue
            self.count += 1
            dialogue = next((rule for rule in rules if rule.dialogue), None)
            if dialogue is None and command.output is None:
                plain.append(text)
                continue
            self._run(sandbox, commands[0].line, "\n".join(plain))
            plain = []
            self._run(sandbox, command.line, text, dialogue, command.output)
        self._run(sandbox, commands[0].line if commands else 0, "\n".join(plain))

    def _run(self, sandbox, line, text, dialogue=None, shown=None):
        if not text:
            return
        try:
            if dialogue:
                sandbox.talk(text, dialogue.dialogue, dialogue.exit_code)
                return
            output = sandbox.run(text)
        except CommandError as error:
            raise self._page.error(line, f"{text}\n{error}") from error
        if "0 tests from 0 test suites" in output:
            raise self._page.error(line, f"{text}\nruns no test")
        if shown is not None and (difference := shell.difference(shown, output)):
            raise self._page.error(line, f"{text}\n{difference}")

    def _check_ignored(self, made):
        """Git ignores what a page makes, so that nobody commits it."""
        patterns = [line.strip("/") for line in (self._page.root / ".gitignore").read_text().split("\n") if line]
        for path in sorted(made):
            if not any(fnmatch.fnmatch(part, pattern) for part in path.parts for pattern in patterns):
                raise PageError(f"{self._page.path}: git does not ignore what the page makes: {path}")

    def _compare_picture(self, sandbox, picture):
        if not (sandbox.folder / picture).exists():
            raise PageError(f"{self._page.path}: no command on the page makes {picture}")
        if _pixels(sandbox.folder / picture) != _pixels(self._page.root / picture):
            raise PageError(f"{self._page.path}: {picture} is not what its command makes")


def _pixels(picture):
    """Size and form of a PNG file, and its pixels, however they were compressed."""
    data = picture.read_bytes()
    chunks, place = {b"IDAT": b""}, 8
    while place < len(data):
        size, kind = struct.unpack_from(">I4s", data, place)
        chunks[kind] = chunks.get(kind, b"") + data[place + 8:place + 8 + size]
        place += size + 12
    return chunks[b"IHDR"], zlib.decompress(chunks[b"IDAT"])
