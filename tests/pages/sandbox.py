"""A folder that looks like the root of the project, in which commands of a page may make what they like."""

import os
import pathlib
import pty
import re
import select
import shutil
import signal
import struct
import subprocess
import tempfile
import fcntl
import termios
import time

PATIENCE = 120.0  # seconds until a command counts as hanging
ROWS, COLUMNS = 24, 80  # as people have it who never chose another size

# Two builds in one folder would write over each other's logs, and a page must not install anything.
TOOLS = {
    "cmake": 'exec flock {build}/pages.lock {cmake} "$@"',
    "python3": 'exec {python} "$@"',
    "pytest": 'exec {python} -m pytest "$@"',
    "apt-get": 'echo "a page must not install: $*" >&2; exit 1',
    "sudo": 'echo "a page must not install: $*" >&2; exit 1',
}


class CommandError(Exception):
    """A command hangs, or has ended otherwise than it should."""


class Sandbox:
    """Use it in a `with` statement, at whose end everything goes that was made or started in it."""

    def __init__(self, root, build, python):
        self._outer = pathlib.Path(tempfile.mkdtemp(prefix="page-"))
        self.folder = self._outer / "project"
        skipped = shutil.ignore_patterns("build", "node_modules", "__pycache__", ".git", "*.pyc")
        shutil.copytree(root, self.folder, ignore=skipped, symlinks=True)
        (self.folder / "build").mkdir()
        (self.folder / "build" / pathlib.Path(build).name).symlink_to(build)
        names = {"build": build, "cmake": shutil.which("cmake"), "python": python}
        (self._outer / "tools").mkdir()
        for name, text in TOOLS.items():
            tool = self._outer / "tools" / name
            tool.write_text("#!/bin/sh\n" + text.format(**names) + "\n", encoding="utf-8")
            tool.chmod(0o755)
        (self._outer / "tmp").mkdir()
        self._environment = os.environ | {
            "PATH": f"{self._outer / 'tools'}:{os.environ['PATH']}", "SCRATCH": str(self._outer),
            "LC_ALL": "C.UTF-8", "TERM": "xterm-256color",
            "PYTHONPATH": str(self._outer / "site"), "PYTHONDONTWRITEBYTECODE": "1"}

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        shutil.rmtree(self._outer, ignore_errors=True)

    def files(self):
        """What lies in the project now, from its root on; builds apart."""
        return {path.relative_to(self.folder) for path in self.folder.rglob("*")
                if path.is_file() and path.relative_to(self.folder).parts[0] != "build"}

    def run(self, command):
        """The output of a command, whose input has ended."""
        process = self._start(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        try:
            output, _ = process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired as error:
            self._kill(process)
            raise CommandError(f"does not end:\n{(error.output or b'').decode(errors='replace')}") from error
        return _checked(process, 0, output.decode(errors="replace"))

    def talk(self, command, dialogue, exit_code):
        """Runs a command in a terminal; `dialogue` has pairs of a text to wait for and the keys to type then."""
        mine, its = pty.openpty()
        fcntl.ioctl(its, termios.TIOCSWINSZ, struct.pack("HHHH", ROWS, COLUMNS, 0, 0))
        process = self._start("exec " + command, stdin=its, stdout=its, stderr=its,
                              preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))
        os.close(its)
        try:
            shown = ""
            for text, keys in dialogue:
                shown = _read_until(mine, lambda seen, text=text: text in seen, f"never shows {text!r}")
                os.write(mine, keys.encode())
            shown += _read_until(mine, lambda _: False, "does not end")
            process.wait(PATIENCE)
        finally:
            self._kill(process)
            os.close(mine)
        return _checked(process, exit_code, shown)

    def _start(self, command, **streams):
        return subprocess.Popen(["bash", "-e", "-c", command], cwd=self.folder, env=self._environment,
                                start_new_session=True, **streams)

    @staticmethod
    def _kill(process):
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def _checked(process, exit_code, output):
    if process.returncode != exit_code:
        raise CommandError(f"ends with {process.returncode}:\n{output}")
    return output


def _read_until(terminal, is_enough, complaint):
    """What a terminal has shown, without the sequences that place and colour it, until that is enough or its end."""
    shown = ""
    deadline = time.monotonic() + PATIENCE
    while not is_enough(_plain(shown)):
        if not select.select([terminal], [], [], max(0.0, deadline - time.monotonic()))[0]:
            raise CommandError(f"{complaint}:\n{_plain(shown)}")
        try:
            shown += os.read(terminal, 65536).decode(errors="replace")
        except OSError:  # the terminal's other end has been closed
            if complaint != "does not end":
                raise CommandError(f"{complaint}:\n{_plain(shown)}") from None
            break
    return _plain(shown)


def _plain(shown):
    return re.sub(r"\033(\[[0-9;?]*[A-Za-z]|[()][A-Z0-9]|[=>])", "", shown)
