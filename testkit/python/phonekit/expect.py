"""Expectations that wait: each operation returns when it holds, and fails the test when it does not come to hold."""

from .phone import PhoneError


def expect(phone, timeout=None):
    """What is expected of a telephone, within `timeout` seconds or the telephone's own."""
    return Expectation(phone, timeout)


class Expectation:
    def __init__(self, phone, timeout):
        self._phone = phone
        self._timeout = phone.timeout if timeout is None else timeout

    def to_show(self, text):
        """A line of the screen text is `text`, whole or behind its key; `*` stands for any characters."""
        self._phone.history.append(f"expect {text}")
        self._ask("expect", text=text)

    def not_to_show(self, text):
        self._phone.history.append(f"expect-not {text}")
        self._ask("expect", **{"not": text})

    def to_show_exactly(self, text):
        """The whole screen text is `text`, to the byte."""
        self._phone.history.append("expect-screen " + " | ".join(line for line in text.split("\n") if line))
        try:
            self._phone.ask("expect", screen=text, timeout=self._timeout)
        except PhoneError as error:
            if "text" not in error.answer:
                raise
            assert error.answer["text"] == text, str(error)  # pytest shows what differs
            raise

    def to_deliver(self, command, since=0):
        """A command was delivered to the phonelet, by its text or its type, such as "Select"."""
        return self._ask("commands", wait=command, since=since)["commands"]

    def to_match_golden(self, name):
        """Screen text and picture are those kept under this name beside the test. They change by --phone-update."""
        __tracebackhide__ = True
        self._phone.goldens.check(self._phone, name)

    def _ask(self, command, **fields):
        __tracebackhide__ = True
        try:
            return self._phone.ask(command, timeout=self._timeout, **fields)
        except PhoneError as error:
            if error.answer.get("error") not in ("not-shown", "not-delivered"):
                raise
            message = str(error)
            if error.answer.get("text"):
                message += "\nThe screen has:\n" + error.answer["text"]
            for entry in error.answer.get("commands", []):
                message += f"\ndelivered: {entry['command'] or entry['type']} of {entry['screen'] or 'no screen'}"
        raise AssertionError(message)
