"""B-trees, in which help files keep their directory and indexes."""

from packing import long, short, ushort

MAGIC = 0x293B
HEADER_SIZE = 38
NONE = -1


def split_pages(entries, page_size, head_size):
    """Cuts entries, each (key, bytes), into lists that fit a page."""
    pages, room = [[]], page_size - head_size
    for key, content in entries:
        if len(content) > room and pages[-1]:
            pages.append([])
            room = page_size - head_size
        pages[-1].append((key, content))
        room -= len(content)
    return pages


def page(head, entries, page_size):
    content = b"".join(entry for _, entry in entries)
    unused = page_size - 4 - len(head) - len(content)
    return ushort(unused) + short(len(entries)) + head + content + bytes(unused)


def leaf_pages(groups, page_size):
    last = len(groups) - 1
    return [page(short(number - 1) + short(number + 1 if number < last else NONE), group, page_size)
            for number, group in enumerate(groups)]


def index_level(children, first_number, page_size):
    """The index pages above children, each (first key, number), and the first key and number of each index page."""
    groups = split_pages([(key, key + short(number)) for key, number in children], page_size, 6)
    pages = [page(group[0][1][-2:], group[1:], page_size) for group in groups]
    return pages, [(group[0][0], number) for number, group in enumerate(groups, first_number)]


class BTree:
    """Made of entries (key, rest), both as bytes, which are in order already."""

    def __init__(self, entries, structure, page_size, flags=2):
        groups = split_pages([(key, key + rest) for key, rest in entries], page_size, 8) if entries else []
        self.leaves = groups
        pages = leaf_pages(groups, page_size)
        level = [(group[0][0], number) for number, group in enumerate(groups)]
        levels = 1 if groups else 0
        while len(level) > 1:
            above, level = index_level(level, len(pages), page_size)
            pages += above
            levels += 1
        root = level[0][1] if level else 0
        header = (ushort(MAGIC) + ushort(flags) + ushort(page_size) + structure.encode().ljust(16, b"\0") + short(0) +
                  short(0) + short(root) + short(NONE) + short(len(pages)) + short(levels) + long(len(entries)))
        self.bytes = header + b"".join(pages)
