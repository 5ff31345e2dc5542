"""The topics of a help file: their records in a chain that is cut into blocks."""

from dataclasses import dataclass, field

from packing import long

BLOCK_SIZE = 4096
BLOCK_HEADER = 12
BLOCK_DATA = BLOCK_SIZE - BLOCK_HEADER
RECORD_HEADER = 21
HEADER_FORMAT = 28
TOPIC = 2  # the kind of the records that begin a topic
NONE = -1


@dataclass
class Entry:
    """A record and, after place(), its address and offset."""

    kind: int
    format: bytes
    text: bytes
    length: int = 0
    address: int = 0  # of the data of all blocks in a row
    offset: int = 0  # by which indexes and links name the record

    @property
    def size(self):
        return RECORD_HEADER + len(self.format) + len(self.text)

    @property
    def block(self):
        return self.address // BLOCK_DATA

    @property
    def position(self):
        return (self.block << 14) + self.address % BLOCK_DATA + BLOCK_HEADER


@dataclass
class PlacedTopic:
    """The first records of a topic are fixed: they stay when the others are scrolled."""

    header: Entry
    records: list
    fixed: int
    is_browsed: bool
    marks: dict = field(default_factory=dict)  # the record of each heading inside, by slug

    def first_scrolling(self):
        return self.records[self.fixed].position if self.fixed < len(self.records) else NONE


def placed_topic(title, records, fixed, is_browsed):
    entries = [Entry(record.kind, record.format, record.text, record.length) for record in records]
    return PlacedTopic(Entry(TOPIC, bytes(HEADER_FORMAT), title), entries, fixed, is_browsed)


class TopicFile:
    """Gives each topic its address and offset when made. The browsed topics of a group follow each other."""

    def __init__(self, groups):
        self.groups = groups
        self.topics = [topic for group in groups for topic in group]
        self.end = Entry(TOPIC, bytes(HEADER_FORMAT), b"")
        self.entries = [entry for topic in self.topics for entry in (topic.header, *topic.records)] + [self.end]
        self.place()
        self.fill_headers()

    def place(self):
        address, block, characters = 0, NONE, 0
        for entry in self.entries:
            # A block never ends inside the header of a record, nor inside the format of a topic header.
            whole = RECORD_HEADER + (HEADER_FORMAT if entry.kind == TOPIC else 0)
            if BLOCK_DATA - address % BLOCK_DATA < whole:
                address += BLOCK_DATA - address % BLOCK_DATA
            entry.address = address
            characters = characters if entry.block == block else 0
            block = entry.block
            entry.offset = block * 0x8000 + characters
            characters += entry.length
            address += entry.size

    def fill_headers(self):
        ends = [topic.header.position for topic in self.topics[1:]] + [self.end.position]
        browsed = self.browse_sequence()
        for number, (topic, end) in enumerate(zip(self.topics, ends)):
            size = topic.header.size + sum(record.size for record in topic.records)
            back, forward = browsed.get(id(topic), (NONE, NONE))
            fixed = topic.records[0].position if topic.fixed else NONE
            topic.header.format = b"".join(
                map(long, (size, back, forward, number, fixed, topic.first_scrolling(), end)))
        self.end.format = b"".join(map(long, (0, NONE, NONE, len(self.topics), NONE, NONE, NONE)))

    def browse_sequence(self):
        neighbours = {}
        for group in self.groups:
            topics = [topic for topic in group if topic.is_browsed]
            offsets = [NONE, *(topic.header.offset for topic in topics), NONE]
            neighbours |= {id(topic): (offsets[i], offsets[i + 2]) for i, topic in enumerate(topics)}
        return neighbours

    def record_header(self, number):
        entry = self.entries[number]
        previous = self.entries[number - 1].position if number > 0 else NONE
        following = self.entries[number + 1].position if number + 1 < len(self.entries) else NONE
        head = (entry.size, len(entry.text), previous, following, RECORD_HEADER + len(entry.format))
        return b"".join(map(long, head)) + bytes([entry.kind])

    def content(self):
        last = self.entries[-1]
        data = bytearray(last.address + last.size)
        for number, entry in enumerate(self.entries):
            whole = self.record_header(number) + entry.format + entry.text
            data[entry.address:entry.address + len(whole)] = whole
        blocks = range(0, len(data), BLOCK_DATA)
        return b"".join(self.block_header(start) + data[start:start + BLOCK_DATA] for start in blocks)

    def block_header(self, start):
        before = [entry for entry in self.entries if entry.address < start]
        first = next(entry for entry in self.entries if entry.address >= start)
        last_topic = [entry.position for entry in before if entry.kind == TOPIC][-1:] or [NONE]
        last = before[-1].position if before else NONE
        return long(last) + long(first.position) + long(last_topic[0])
