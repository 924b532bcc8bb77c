"""A telephone under test: a phonelet program with the control channel on a socket of its own."""

import json
import pathlib
import shutil
import socket
import subprocess
import tempfile
import time

from .picture import Picture
from .screen import Screen


class PhoneError(Exception):
    """The telephone did not do what it was told. `answer` is its answer, empty if none came."""

    def __init__(self, reason, answer=None):
        super().__init__(reason)
        self.answer = answer or {}


class Phone:
    """Starts a phonelet program, with a clock that stands still but for advance(), and works it.

    The program ends with close(), at the end of a `with` statement, and with this process, however that ends.
    `timeout` is how long an expected text, or an answer, may take, in seconds.
    """

    def __init__(self, program, arguments=(), timeout=5.0):
        self.program = str(program)
        self.timeout = timeout
        self.history = []  # the steps so far, as a script has them
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="phone-"))
        self._log = self._folder / "log"
        self._connection = None
        self._process = None
        self._received = b""
        command = [self.program, "--control", str(self._folder / "socket"), "--timeout", str(timeout), *arguments]
        try:
            with open(self._log, "wb") as log:
                # Its end of the pipe is the life of the telephone: it goes with this process, even by a kill.
                self._process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=log, stderr=log)
        except OSError as error:
            self.close()
            raise PhoneError(f"cannot start {self.program}: {error.strerror}") from error

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        self.close()

    # Keys, time, and what comes from outside

    def press(self, key, count=1):
        """Presses and releases a key: LEFT, RIGHT, UP, DOWN, OK, CLEAR, 0 to 9, *, #, F1 to F8."""
        self._do(f"press {key}" + (f" {count}" if count != 1 else ""), "key", key=key, count=count)

    def type(self, keys):
        """Presses and releases each of these dial keys."""
        self._do(f"type {keys}", "type", keys=keys)

    def hold(self, key):
        """Presses a key and holds it down, until release()."""
        self.ask("key", key=key, state="press")
        self._do(f"hold {key}", "key", key=key, state="hold")

    def release(self, key):
        self._do(f"release {key}", "key", key=key, state="release")

    def advance(self, seconds):
        """Moves the clock, and lets every timer on the way run."""
        milliseconds = f"{round(seconds * 1000)}ms"
        self._do(f"advance {milliseconds}", "advance", time=milliseconds)

    def step(self, name, argument=""):
        """Calls a step of the phonelet's own."""
        self._do(f"{name} {argument}".rstrip(), name, argument=argument)

    def incoming(self, argument=""):
        """A call comes in: the step of this name, which the phonelet must have."""
        self.step("incoming", argument)

    # What is on the glass

    @property
    def screen(self):
        """The screen, once it keeps still."""
        return Screen(self.ask("text")["text"])

    @property
    def text(self):
        return self.screen.text

    def shot(self, file=None, scale=4):
        """The picture of the screen, once it keeps still; `file` gets it as it looks on the desk."""
        options = {} if file is None else {"file": str(pathlib.Path(file).absolute()), "scale": scale}
        return Picture(self.ask("pixels", **options)["rows"])

    def tree(self):
        """The widgets on the glass, the lowest first, as the control channel gives them."""
        return self.ask("tree")["widgets"]

    def widgets_at(self, x, y):
        """The widgets at a pixel, from the outermost to the innermost."""
        return self.ask("tree", at=[x, y])["widgets"]

    def commands(self, since=0):
        """The commands that were delivered to the phonelet: number, command, type and screen of each."""
        return self.ask("commands", since=since)["commands"]

    # The program

    @property
    def is_running(self):
        return self._process is not None and self._process.poll() is None

    @property
    def pid(self):
        return self._process.pid

    @property
    def log(self):
        """What the program has written to standard output and error."""
        return self._log.read_text(encoding="utf-8", errors="replace") if self._log.exists() else ""

    def ask(self, command, **fields):
        """Sends a command of the control channel and gives its answer. PhoneError when that is none or a refusal."""
        patience = float(fields.get("timeout", self.timeout)) + max(self.timeout, 1.0) + 10.0
        line = json.dumps({"do": command, **fields}) + "\n"
        try:
            connection = self._connected()
            connection.settimeout(patience)
            connection.sendall(line.encode())
            answer = json.loads(self._line(connection))
        except (OSError, ValueError) as error:
            raise PhoneError(self._end_or(f"{self.program} gives no answer to {command}: {error}")) from error
        if not answer.get("ok"):
            raise PhoneError(answer.get("reason", "refused"), answer)
        return answer

    def close(self):
        """Ends the program; a second time does nothing."""
        if self._connection is not None:
            try:
                self._connection.sendall(b'{"do": "quit"}\n')
            except OSError:
                pass  # it has ended already
            self._connection.close()
            self._connection = None
        if self._process is not None:
            self._process.stdin.close()
            try:
                self._process.wait(max(self.timeout, 2.0) + 2.0)
            except subprocess.TimeoutExpired:
                self._process.kill()
                self._process.wait()
        shutil.rmtree(self._folder, ignore_errors=True)

    def _do(self, script_step, command, **fields):
        self.history.append(script_step)
        self.ask(command, **fields)

    def _connected(self):
        deadline = time.monotonic() + self.timeout + 20.0
        while self._connection is None:
            connection = socket.socket(socket.AF_UNIX)
            try:
                connection.connect(str(self._folder / "socket"))
                self._connection = connection
            except OSError as error:
                connection.close()
                if not self.is_running or time.monotonic() > deadline:
                    raise PhoneError(self._end_or(f"{self.program} opens no control channel: {error}")) from error
                time.sleep(0.005)
        return self._connection

    def _line(self, connection):
        while b"\n" not in self._received:
            piece = connection.recv(65536)
            if not piece:
                raise OSError("the connection has been closed")
            self._received += piece
        line, _, self._received = self._received.partition(b"\n")
        return line

    def _end_or(self, reason):
        """The reason, or how the program has ended if it has."""
        try:
            code = self._process.wait(0.5)
        except subprocess.TimeoutExpired:
            return reason
        return f"{self.program} has ended with {code}: {self.log.strip() or 'it has written nothing'}"
