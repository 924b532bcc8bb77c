"""The screen text as objects."""

from dataclasses import dataclass, field


@dataclass
class Block:
    """A screen or, in `rows` of one, a row: its name and its fields, a list of key and value in their order."""

    name: str = ""
    fields: list = field(default_factory=list)
    rows: list = field(default_factory=list)

    def __getitem__(self, key):
        """The value of the first field of this key, without blanks around it. KeyError without such a field."""
        for name, value in self.fields:
            if name == key:
                return value.strip()
        raise KeyError(f"{self.name} has no {key}; it has {', '.join(name for name, _ in self.fields) or 'no fields'}")

    def get(self, key, other=None):
        try:
            return self[key]
        except KeyError:
            return other

    @property
    def values(self):
        """The values of all fields, and of the rows behind them, without blanks around them."""
        own = [value.strip() for _, value in self.fields]
        return own + [value for row in self.rows for value in row.values]


class Screen:
    """What the glass shows: `text` as it is, and `blocks`, one for each screen, the lowest first."""

    def __init__(self, text):
        self.text = text
        self.blocks = []
        target = None
        for line in text.splitlines():
            key, _, value = line.partition(":")
            if key == "object":
                target = Block()
                self.blocks.append(target)
            elif key == "subitem":
                target = Block()
                self.blocks[-1].rows.append(target)
            elif key == "endsubitem":
                target = self.blocks[-1]
            elif key == "name" and target is not None and not target.name:
                target.name = value
            elif key != "end" and target is not None:
                target.fields.append((key, value))

    @property
    def top(self):
        """The topmost block; an empty one if there is none."""
        return self.blocks[-1] if self.blocks else Block()

    def block(self, name):
        """The topmost block of this name. KeyError without one."""
        for block in reversed(self.blocks):
            if block.name == name:
                return block
        raise KeyError(f"no {name} is shown, but {', '.join(block.name for block in self.blocks) or 'nothing'}")

    def __contains__(self, value):
        return any(value in block.values for block in self.blocks)

    def __eq__(self, other):
        return isinstance(other, Screen) and self.text == other.text

    def __str__(self):
        return self.text
