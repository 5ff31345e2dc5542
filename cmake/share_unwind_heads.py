#!/usr/bin/python3
"""Makes the unwind table of a linked 32-bit program smaller. The table has a record for each function, and each record
refers to a head, which says how its numbers are written. The compiler writes a head for each inline function and each
object file, and the linker keeps them all: here equal heads become one, and records follow each other without filling.
The section keeps its address and its size in memory; only the file becomes shorter. What stands before the address from which
the start-up code registers the table, the records of that code itself, stays as it is.

usage: share_unwind_heads.py PROGRAM.EXE
"""

import struct
import sys
from pathlib import Path

SECTION = b".eh_fram"  # as much of ".eh_frame" as a row of the section table holds
FILE_ALIGNMENT = 512
RELATIVE = 0x1B  # the encoding of a pointer that is a distance of four bytes, as GCC writes all of them
INDIRECT = 0x80


def u32(data, position):
    return struct.unpack_from("<I", data, position)[0]


def target(data, position):
    """What the pointer at this position of the table points to, counted from the table's beginning; None for no pointer."""
    distance = struct.unpack_from("<i", data, position)[0]
    return position + distance if distance else None


def pointer(goal, position):
    return struct.pack("<i", goal - position if goal is not None else 0)


class Head:
    """What records share: text without pointers, and the function that handles exceptions, if there is one."""

    def __init__(self, data, start, end):
        letters_end = data.index(0, start + 9)
        letters = data[start + 9 : letters_end].decode()
        position = letters_end + 5  # four numbers of a byte each: alignments, return address, length of what follows
        self.handler_offset = None
        for letter in letters[1:]:
            if data[position] & ~INDIRECT != RELATIVE or letter not in "PLR":
                sys.exit(f"an unwind table with pointers of the kind {letter}{data[position]:02x}")
            if letter == "P":
                self.handler_offset = position + 1 - start
            position += 5 if letter == "P" else 1
        self.has_handler_data = "L" in letters
        self.text = bytearray(data[start:end])
        self.handler = None
        if self.handler_offset:
            self.handler = target(data, start + self.handler_offset)
            self.text[self.handler_offset : self.handler_offset + 4] = bytes(4)

    def key(self):
        return bytes(self.text), self.handler

    def placed(self, start):
        text = bytearray(self.text)
        if self.handler_offset:
            text[self.handler_offset : self.handler_offset + 4] = pointer(self.handler, start + self.handler_offset)
        return text


def without_filling(rest):
    """One of the zeros at the end stays: it may belong to the last instruction, whose numbers end in no more than one."""
    return rest.rstrip(b"\0") + rest[-1:] * (rest[-1] == 0)


def records_of(table):
    """The records in their order: head, function, its length, data for the handler, and the rest without a pointer."""
    heads, position = {}, 0
    while length := u32(table, position):
        end = position + 4 + length
        if u32(table, position + 4) == 0:
            heads[position] = Head(table, position, end)
        else:
            head = heads[position + 4 - u32(table, position + 4)]
            rest = bytearray(without_filling(table[position + 16 : end]))  # its first byte: the length of data that follows
            handler_data = None
            if head.has_handler_data:
                handler_data = target(table, position + 17)
                rest[1:5] = bytes(4)
            yield head, target(table, position + 8), u32(table, position + 12), handler_data, bytes(rest)
        position = end


def packed(records):
    table, starts = bytearray(), {}
    for head, function, length, handler_data, rest in records:
        if head.key() not in starts:
            starts[head.key()] = len(table)
            table += head.placed(len(table))
        start = len(table)
        if head.has_handler_data:
            rest = rest[:1] + pointer(handler_data, start + 17) + rest[5:]
        table += struct.pack("<II", 12 + len(rest), start + 4 - starts[head.key()])
        table += pointer(function, start + 8) + struct.pack("<I", length) + rest
    return bytes(table + bytes(4))


def meaning(table):
    return [(head.key(), *rest) for head, *rest in records_of(table)]


def checksum(image, field):
    """The sum that the header keeps at `field`, itself taken as 0."""
    image = image[:field] + bytes(4) + image[field + 4 :] + bytes(len(image) % 2)
    total = sum(struct.unpack(f"<{len(image) // 2}H", image))
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    return total + len(image)


def section_rows(image, header):
    """Where the rows of the section table begin."""
    count, optional_size = struct.unpack_from("<2xH12xH", image, header + 4)
    first = header + 24 + optional_size
    return range(first, first + 40 * count, 40)


def with_table(image, row, table):
    """The program with another, shorter table in the section of that row; the sections after it move up in the file."""
    file_size, file_start = struct.unpack_from("<II", image, row + 16)
    table += bytes(-len(table) % FILE_ALIGNMENT)
    saved = file_size - len(table)
    image = bytearray(image[:file_start] + table + image[file_start + file_size :])
    header = u32(image, 0x3C)
    struct.pack_into("<I", image, row + 16, len(table))
    for other in section_rows(image, header):
        if u32(image, other + 20) > file_start:
            struct.pack_into("<I", image, other + 20, u32(image, other + 20) - saved)
    struct.pack_into("<I", image, header + 88, checksum(image, header + 88))
    return image


def relocations(image, rows):
    """The file positions of all addresses in the program."""
    row = next(row for row in rows if image[row : row + 8] == b".reloc\0\0")
    size, _, _, position = struct.unpack_from("<4I", image, row + 8)
    end = position + size
    while position < end and (block_size := u32(image, position + 4)):
        page = u32(image, position)
        for entry in struct.unpack_from(f"<{(block_size - 8) // 2}H", image, position + 8):
            if entry >> 12:
                yield file_position(image, rows, page + (entry & 0xFFF))
        position += block_size


def file_position(image, rows, address):
    for row in rows:
        _, start, file_size, file_start = struct.unpack_from("<4I", image, row + 8)
        if start <= address < start + file_size:
            return file_start + address - start
    sys.exit(f"no section has the address {address:x}")


def registered_start(image, rows, row):
    """Where in the table's section the one address lies that the program refers to."""
    size, start = struct.unpack_from("<2I", image, row + 8)
    start += u32(image, u32(image, 0x3C) + 52)  # where the program is loaded
    found = {u32(image, position) - start for position in relocations(image, rows)}
    inside = {offset for offset in found if 0 <= offset < size}
    if len(inside) != 1:
        sys.exit(f"the program refers to {len(inside)} addresses of its unwind table")
    return inside.pop()


def shared(image):
    header = u32(image, 0x3C)
    if u32(image, header + 12):
        sys.exit("the program has symbols, which would have to move, too: link it with -s")
    rows = section_rows(image, header)
    row = next(row for row in rows if image[row : row + 8] == SECTION)
    size, _, file_size, file_start = struct.unpack_from("<4I", image, row + 8)
    table_start = file_start + registered_start(image, rows, row)
    table = image[table_start : file_start + min(size, file_size)] + bytes(4)
    result = packed(records_of(table))
    if meaning(result) != meaning(table):
        sys.exit("the unwind table would no longer say the same")
    return with_table(image, row, image[file_start:table_start] + result)


def main():
    program = Path(sys.argv[1])
    program.write_bytes(shared(program.read_bytes()))


if __name__ == "__main__":
    main()
