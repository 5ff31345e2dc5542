"""The outer form of a help file: internal files and their directory."""

from btree import BTree
from packing import long, text

MAGIC = 0x00035F3F
HEADER_SIZE = 16
DIRECTORY_FLAGS = 0x0402
DIRECTORY_PAGE = 1024
DIRECTORY_MARK = 4


def internal_file(content, mark=0):
    return long(len(content) + 9) + long(len(content)) + bytes([mark]) + content


def help_file(files):
    """The bytes of a help file with these internal files, a dict from name to content."""
    body, entries = b"", []
    for name in sorted(files, key=str.encode):
        entries.append((text(name), long(HEADER_SIZE + len(body))))
        body += internal_file(files[name])
    directory = BTree(entries, "z4", DIRECTORY_PAGE, DIRECTORY_FLAGS)
    start = HEADER_SIZE + len(body)
    body += internal_file(directory.bytes, DIRECTORY_MARK)
    return long(MAGIC) + long(start) + long(-1) + long(HEADER_SIZE + len(body)) + body
