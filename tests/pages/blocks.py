"""What becomes of each block of a page. A block of no kind is an error: none is left out in silence."""

import re

import shell
from markdown import PageError

LIBRARY_TESTS = "docs/testing.md"  # its C++ becomes part of the library's tests

SAVED = r"\bSave this as `([^`]+)`"
WHOLE = r"\bThis is `([^`]+)`"
PART = r"\bas in `([^`]+)`"


def named(block, phrase):
    """The file that the paragraph above a block names behind a phrase, or none."""
    found = re.search(phrase, " ".join(block.before.split()))
    return found and found.group(1)


def kind_of(block):
    if block.language == "":
        return "commands"
    if named(block, SAVED):
        return "saved"
    if named(block, WHOLE) or named(block, PART):
        return "quoted"
    if block.language == "cpp" and str(block.page) == LIBRARY_TESTS:
        return "library test"
    if block.language == "ebnf":
        return "grammar"
    if block.language == "text":
        return "listing"
    raise block.error(f"no test knows what to do with this block ({block.language})")


def check_quoted(root, block):
    """The block stands in the file that the text names: as the whole of it, or as lines of it."""
    whole = named(block, WHOLE)
    name = whole or named(block, PART)
    text = (root / name).read_text(encoding="utf-8") if (root / name).is_file() else ""
    if whole and shell.difference(block.text, text):
        raise block.error(f"this is not {name}:\n{shell.difference(block.text, text)}")
    if not whole and _without_indentation(block.text) not in _without_indentation(text):
        raise block.error(f"this does not stand in {name}")


def check_listing(root, block):
    """Each line begins with a file or folder of the project, or with several: "src/List.h, .cpp"."""
    for number, line in enumerate(block.text.split("\n")[:-1]):
        names = re.split(r" {2,}", line)[0].split(", ")
        for name in names:
            path = re.sub(r"\.\w+$", name, names[0]) if name.startswith(".") else name
            if not (root / path).exists():
                raise PageError(f"{block.page}:{block.line + number}: there is no {path}")


def _without_indentation(text):
    return "\n".join(line.strip() for line in text.split("\n"))
