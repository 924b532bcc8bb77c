"""What can be said of the pages without running them: links, names of files, and whether every block and rule counts."""

import re

import blocks
import grammar
import run
import shell
from markdown import PageError
from rules import RULES


def check_all(root, pages):
    """The faults of all pages."""
    faults = []
    for check in (links, paths, blocks_of_pages, rules, screen_texts):
        try:
            faults += check(root, pages)
        except PageError as error:
            faults.append(error)
    return faults


def links(root, pages):
    by_path = {(root / page.path).resolve(): page for page in pages}
    for page in pages:
        for link in page.links:
            if re.match(r"https?:", link.target):
                continue
            name, _, anchor = link.target.partition("#")
            target = ((root / page.path).parent / name).resolve() if name else (root / page.path).resolve()
            if not target.exists():
                yield page.error(link.line, f"the link {link.target} leads nowhere")
            elif anchor and anchor not in getattr(by_path.get(target), "anchors", []):
                yield page.error(link.line, f"no heading is called #{anchor}")
            if link.is_picture and not link.text:
                yield page.error(link.line, f"nothing says what is seen in {link.target}")


def paths(root, pages):
    """Files and folders that the text names; NAME stands for any name."""
    folders = {entry.name for entry in root.iterdir() if entry.is_dir()} - {"build"}
    for page in pages:
        for line, span in page.code_spans:
            if re.fullmatch(r"[\w.-]+/[\w./-]*", span) and span.split("/")[0] in folders:
                if not list(root.glob(span.rstrip("/").replace("NAME", "*"))):
                    yield page.error(line, f"there is no {span}")


def blocks_of_pages(root, pages):
    for page in pages:
        for number, block in enumerate(page.blocks):
            kind = blocks.kind_of(block)
            if kind == "quoted":
                blocks.check_quoted(root, block)
            elif kind == "listing":
                blocks.check_listing(root, block)
            elif kind == "saved":
                name = blocks.named(block, blocks.SAVED)
                words = re.escape(name) + "|" + re.escape(name.split("/")[0]) + r"\b"
                if not any(block.language == "" and re.search(words, block.text) for block in page.blocks[number + 1:]):
                    yield block.error(f"no command below uses {name}")


def rules(root, pages):
    commands = [command for page in pages for command in _commands(page)]
    for rule in RULES:
        if not any(rule.applies_to(command) for command in commands):
            yield PageError(f"tests/pages/rules.py: no page has a command for {rule.pattern!r} ({rule.reason})")
    for preset in set().union(*map(run.presets_of, pages)) - {"release", "dev"}:
        yield PageError(f"a page runs programs of the preset {preset}, in which no test runs the pages")


def screen_texts(root, pages):
    """Each screen text that a page shows is one by the grammar that a page gives."""
    patterns = [grammar.pattern_of(block) for page in pages for block in page.blocks
                if blocks.kind_of(block) == "grammar"]
    count = 0
    for page in pages:
        for command in _commands(page):
            if command.output and command.output.startswith("object:\n") and "..." not in command.output:
                count += 1
                for pattern in patterns:
                    if not pattern.fullmatch(command.output):
                        yield page.error(command.line, "its output does not follow the grammar of the screen text")
    if not patterns or not count:
        yield PageError("no page gives a grammar, or none shows a screen text")


def _commands(page):
    for block in page.blocks:
        if blocks.kind_of(block) == "commands":
            yield from shell.commands_of(block)
    yield from run.commands_in_text(page)
