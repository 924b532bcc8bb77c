"""Pictures of the glass, exact to the pixel, and their PNG files."""

import pathlib
import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"


class Picture:
    """One-bit pixels: `rows` holds a text of `#` (dark) and `.` for each row."""

    def __init__(self, rows):
        self.rows = list(rows)
        self.width = len(self.rows[0]) if self.rows else 0
        self.height = len(self.rows)

    def pixel(self, x, y):
        return self.rows[y][x] == "#"

    def __eq__(self, other):
        return isinstance(other, Picture) and self.rows == other.rows

    def __str__(self):
        return "\n".join(self.rows)

    def save(self, file):
        """Writes a PNG file of one bit a pixel."""
        lines = []
        for row in self.rows:
            bits = row.replace("#", "0").replace(".", "1").ljust((self.width + 7) // 8 * 8, "0")
            lines.append(b"\0" + int(bits, 2).to_bytes(len(bits) // 8, "big"))
        _write(file, self.width, self.height, 1, 0, b"".join(lines))

    @classmethod
    def load(cls, file):
        """Reads a file that save() has written. ValueError for another one."""
        data = pathlib.Path(file).read_bytes()
        if not data.startswith(SIGNATURE):
            raise ValueError(f"{file} is no PNG picture")
        chunks = {}
        place = len(SIGNATURE)
        while place + 8 <= len(data):
            size, kind = struct.unpack_from(">I4s", data, place)
            chunks[kind] = chunks.get(kind, b"") + data[place + 8 : place + 8 + size]
            place += size + 12
        width, height, *form = struct.unpack(">IIBBBBB", chunks[b"IHDR"])
        pixels = zlib.decompress(chunks[b"IDAT"])
        stride = (width + 7) // 8 + 1
        if form != [1, 0, 0, 0, 0] or len(pixels) != stride * height or any(pixels[::stride]):
            raise ValueError(f"{file} was not written by this kit; write it anew")
        rows = []
        for y in range(height):
            line = pixels[y * stride + 1 : (y + 1) * stride]
            bits = bin(int.from_bytes(b"\1" + line, "big"))[3 : 3 + width]
            rows.append(bits.replace("0", "#").replace("1", "."))
        return cls(rows)

    def save_difference(self, expected, file, scale=4):
        """Writes what differs: red is dark here alone, blue is dark in `expected` alone, grey is dark in both."""
        width, height = max(self.width, expected.width), max(self.height, expected.height)
        colours = {(0, 0): b"\xf4\xf6\xf0", (1, 1): b"\x90\x90\x90", (1, 0): b"\xd0\x20\x20", (0, 1): b"\x20\x40\xd0"}
        lines = []
        for y in range(height):
            line = b"".join(colours[self._at(x, y), expected._at(x, y)] * scale for x in range(width))
            lines.append((b"\0" + line) * scale)
        _write(file, width * scale, height * scale, 8, 2, b"".join(lines))

    def _at(self, x, y):
        return int(y < self.height and x < self.width and self.pixel(x, y))


def _write(file, width, height, depth, colour, lines):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", width, height, depth, colour, 0, 0, 0)
    pathlib.Path(file).write_bytes(
        SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b"")
    )
