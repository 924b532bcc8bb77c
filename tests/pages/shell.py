"""The commands of a block, and the output that the page shows of them."""

import dataclasses
import difflib
import re
import subprocess


@dataclasses.dataclass
class Command:
    line: int
    text: str
    output: str | None = None  # None where the page shows none

    @property
    def bare(self):
        """Without the comment behind it."""
        return re.sub(r"\s+# .*", "", self.text).strip()


def commands_of(block):
    """An indented block is a list of commands, or, if it begins with "$ ", a session: commands and their output."""
    lines = block.text.split("\n")[:-1]
    return _session(block, lines) if lines[0].startswith("$ ") else _plain(block, lines)


def _plain(block, lines):
    commands = []
    pending, start = [], 0
    for number, line in enumerate(lines):
        if not pending and (not line.strip() or line.startswith("#")):
            continue
        start = start if pending else number
        pending.append(line)
        if _is_complete("\n".join(pending)):
            commands.append(Command(block.line + start, "\n".join(pending)))
            pending = []
    if pending:
        raise block.error(f"no shell understands this: {pending[0]}")
    return commands


def _session(block, lines):
    commands = []
    for number, line in enumerate(lines):
        if line.startswith("$ "):
            commands.append(Command(block.line + number, line[2:], ""))
        elif not commands[-1].output and not _is_complete(commands[-1].text):
            commands[-1].text += "\n" + line
        else:
            commands[-1].output += line + "\n"
    return commands


def _is_complete(text):
    if text.endswith("\\"):
        return False
    return subprocess.run(["bash", "-n", "-c", text], capture_output=True, check=False).returncode == 0


def difference(shown, actual):
    """What a page shows against what there is; empty if they are alike.

    "..." and the blanks around it stand for anything: for lines where it is a line, else for a part of one.
    """
    pattern = "".join("(?:.*\n)*?" if line == "..." else ".*".join(map(re.escape, re.split(r" *\.\.\. *", line))) + "\n"
                      for line in shown.split("\n")[:-1])
    if actual and not actual.endswith("\n"):
        actual += "\n"
    if re.fullmatch(pattern, actual):
        return ""
    lines = difflib.unified_diff(shown.splitlines(), actual.splitlines(), "the page", "the command", lineterm="", n=99)
    return "\n".join(lines)
