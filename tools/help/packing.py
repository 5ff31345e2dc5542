"""Numbers, texts and compressed bytes as help files hold them."""

import struct
from collections import defaultdict

ENCODING = "cp1252"  # the code page of help files
SHORTEST_COPY = 3
LONGEST_COPY = 18
WINDOW = 4096
LONGEST_RUN = 127
SHORTEST_RUN = 3
NEWEST_TRIED = 32  # earlier occurrences of three bytes; trying more gains little


def short(value):
    return struct.pack("<h", value)


def ushort(value):
    return struct.pack("<H", value)


def long(value):
    return struct.pack("<i", value)


def text(value):
    return value.encode(ENCODING) + b"\0"


# Packed numbers: the lowest bit tells the small form from the large one.


def packed_ushort(value):
    return bytes([value << 1]) if value < 0x80 else ushort(value << 1 | 1)


def packed_short(value):
    return bytes([value + 64 << 1]) if -64 <= value < 64 else ushort(value + 0x4000 << 1 | 1)


def packed_ulong(value):
    return ushort(value << 1) if value < 0x8000 else struct.pack("<I", value << 1 | 1)


def packed_long(value):
    return ushort(value + 0x4000 << 1) if -0x4000 <= value < 0x4000 else struct.pack("<I", value + 0x40000000 << 1 | 1)


def run_length(data, start):
    end = start
    while end < len(data) and end - start < LONGEST_RUN and data[end] == data[start]:
        end += 1
    return end - start


def pack_runs(data):
    """A count below 128 and a byte to repeat, or a count with the highest bit and as many bytes."""
    out, literal, position = bytearray(), bytearray(), 0

    def flush():
        for start in range(0, len(literal), LONGEST_RUN):
            part = literal[start:start + LONGEST_RUN]
            out.append(0x80 | len(part))
            out.extend(part)
        literal.clear()

    while position < len(data):
        length = run_length(data, position)
        if length >= SHORTEST_RUN:
            flush()
            out += bytes([length, data[position]])
        else:
            literal += data[position:position + length]
        position += length
    flush()
    return bytes(out)


class Matches:
    """The earlier occurrences of three bytes, the newest last."""

    def __init__(self, data):
        self.data = data
        self.starts = defaultdict(list)

    def add(self, start):
        self.starts[self.data[start:start + SHORTEST_COPY]].append(start)

    def best(self, position):
        """Length and start of the longest occurrence, at most as long as a copy may be."""
        found = (0, 0)
        for start in reversed(self.starts[self.data[position:position + SHORTEST_COPY]][-NEWEST_TRIED:]):
            if position - start > WINDOW or found[0] == LONGEST_COPY:
                break
            found = max(found, (self.common(start, position), start))
        return found

    def common(self, start, position):
        length = 0
        longest = min(LONGEST_COPY, len(self.data) - position)
        while length < longest and self.data[start + length] == self.data[position + length]:
            length += 1
        return length


def pack_lz77(data):
    """Groups of eight, each a byte or a copy of 3 to 18 bytes from at most 4096 bytes before."""
    matches, items, position = Matches(data), [], 0
    while position < len(data):
        length, start = matches.best(position)
        is_copy = length >= SHORTEST_COPY
        length = length if is_copy else 1
        copy = ushort((length - SHORTEST_COPY) << 12 | position - start - 1) if is_copy else None
        items.append(copy or data[position:position + 1])
        for passed in range(position, position + length):
            matches.add(passed)
        position += length
    groups = [items[start:start + 8] for start in range(0, len(items), 8)]
    return b"".join(bytes([sum(1 << i for i, item in enumerate(group) if len(item) == 2)]) + b"".join(group)
                    for group in groups)
