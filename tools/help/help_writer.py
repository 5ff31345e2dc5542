"""Makes a help file of a manual: minor version 21 of the format, which viewers since Windows 3.1 read."""

from collections import defaultdict

from btree import BTree
from container import help_file
from context_hash import context_hash
from fonts import Fonts
from manual import BULLET, Paragraph, Picture, Run, Style, SubHeading, runs_of
from packing import long, short, text, ushort
from paragraphs import ParagraphWriter
from pictures import picture_bytes
from program_tables import KEYS_COMMAND, KEYS_TOPIC
from topic_file import TopicFile, placed_topic

SYSTEM_MAGIC = 0x036C
MINOR, MAJOR = 21, 1
TITLE, COPYRIGHT, CONTENTS, CONFIG, WINDOW = 1, 2, 3, 4, 6
PAGE_SIZE = 2048

# Which fields of a window's description count.
WINDOW_NAME, WINDOW_CAPTION, FIXED_COLOUR = 2, 4, 0x200
FIXED_BACKGROUND = bytes([0xE0, 0xE0, 0xE0, 0])


def system_record(kind, data):
    return ushort(kind) + ushort(len(data)) + data


def main_window(caption):
    flags = WINDOW_NAME | WINDOW_CAPTION | FIXED_COLOUR
    return (ushort(flags) + bytes(10) + b"main".ljust(9, b"\0") + text(caption).ljust(51, b"\0") + short(0) * 5 +
            bytes(4) + FIXED_BACKGROUND)


def system_file(title, copyright_text, contents):
    """The date stays 0, so that equal manuals give equal files."""
    return (ushort(SYSTEM_MAGIC) + ushort(MINOR) + ushort(MAJOR) + long(0) + ushort(0) +
            system_record(TITLE, text(title)) + system_record(COPYRIGHT, text(copyright_text)) +
            system_record(CONTENTS, long(contents)) + system_record(CONFIG, text("BrowseButtons()")) +
            system_record(WINDOW, main_window(title)))


def keyword_order(keyword):
    """Letter case does not count; punctuation stands before digits, digits before letters."""
    return [(2 if c.isalpha() else 1 if c.isdigit() else 0, c) for c in keyword.lower()], keyword


class HelpWriter:
    """faults receives each picture that cannot be converted."""

    def __init__(self, manual, tables, faults):
        self.manual = manual
        self.tables = tables
        self.fonts = Fonts()
        self.picture_files = {}
        numbers = self.read_pictures(faults)
        self.first_slugs = {chapter.name: chapter.topics[0].slug for chapter in manual.chapters}
        self.writer = ParagraphWriter(self.fonts, self.context_of, numbers)
        self.placed = {topic.context(): self.written(topic) for topic in manual.topics()}
        self.topic_file = TopicFile([[self.placed[topic.context()] for topic in chapter.topics]
                                     for chapter in manual.chapters])

    def read_pictures(self, faults):
        numbers = {}
        for block in (block for topic in self.manual.topics() for block in topic.blocks):
            if not isinstance(block, Picture) or block.path in numbers:
                continue
            number = numbers[block.path] = len(numbers)
            try:
                self.picture_files[f"|bm{number}"] = picture_bytes(block.path)
            except ValueError as error:
                faults.add(block.position, f'the picture "{block.path.name}" {error}')
        return numbers

    def context_of(self, link):
        return f"{link.chapter}#{link.slug or self.first_slugs[link.chapter]}"

    def written(self, topic):
        """A title stays when its topic is scrolled, except in a pop-up, which is shown whole."""
        records, marks = [self.writer.title(topic)], {}
        for block in topic.blocks + self.list_of_chapter(topic):
            if isinstance(block, SubHeading):
                marks[block.slug] = len(records)
            records += self.writer.block(block)
        placed = placed_topic(text(topic.title)[:-1], records, 0 if topic.is_pop_up else 1, not topic.is_pop_up)
        placed.marks = {slug: placed.records[number] for slug, number in marks.items()}
        return placed

    def list_of_chapter(self, topic):
        """Leads from the first topic of a chapter to the others, which a viewer shows one at a time; nothing where the
        topic's own links do so."""
        chapter = next(chapter for chapter in self.manual.chapters if chapter.name == topic.chapter)
        reached = {run.link.slug for block in topic.blocks for run in runs_of(block)
                   if run.link and run.link.chapter == topic.chapter}
        others = [other for other in chapter.topics[1:] if topic.is_first]
        if reached.issuperset(other.slug for other in others):
            return []
        heading = Paragraph([Run("In this chapter", Style(bold=True))])
        return [heading, *(Paragraph([Run(other.title, link=other.link())], 1, BULLET) for other in others)]

    def offset_of(self, topic):
        return self.placed[topic.context()].header.offset

    # ---- internal files ----

    def contexts(self):
        entries = {}
        for topic in self.manual.topics():
            entries[context_hash(topic.context())] = self.offset_of(topic)
            for slug, entry in self.placed[topic.context()].marks.items():
                entries[context_hash(topic.context(slug))] = entry.offset
        return BTree([(long(name), long(entries[name])) for name in sorted(entries)], "L4", PAGE_SIZE).bytes

    def numbers(self):
        numbers = {self.tables.context_number(name): self.offset_of(topic)
                   for topic in self.manual.topics() for name in topic.commands + topic.dialogs}
        if KEYS_COMMAND in self.tables.commands:
            numbers[KEYS_TOPIC] = numbers[self.tables.context_number(KEYS_COMMAND)]
        return ushort(len(numbers)) + b"".join(long(number) + long(numbers[number]) for number in sorted(numbers))

    def titles(self):
        entries = [(long(self.offset_of(topic)), text(topic.title)) for topic in self.manual.topics()]
        entries.append((long(self.topic_file.end.offset), text("")))
        return BTree(entries, "Lz", PAGE_SIZE).bytes

    def keywords(self):
        """The topics of each keyword, in the order of the index; spellings that differ in letter case are one."""
        spellings, topics = {}, defaultdict(list)
        for topic in self.manual.topics():
            for keyword in topic.keywords:
                spelling = spellings.setdefault(keyword.lower(), keyword)
                if topic not in topics[spelling]:
                    topics[spelling].append(topic)
        return [(spelling, topics[spelling]) for spelling in sorted(topics, key=keyword_order)]

    def keyword_files(self):
        entries, data = [], b""
        for keyword, topics in self.keywords():
            entries.append((text(keyword), ushort(len(topics)) + long(len(data))))
            data += b"".join(long(self.offset_of(topic)) for topic in topics)
        tree = BTree(entries, "F24", PAGE_SIZE)
        starts, first = b"", 0
        for number, leaf in enumerate(tree.leaves):
            starts += long(first) + ushort(number)
            first += len(leaf)
        return {"|KWBTREE": tree.bytes, "|KWDATA": data, "|KWMAP": ushort(len(tree.leaves)) + starts}

    def content(self, title, copyright_text):
        contents = self.offset_of(self.manual.topics()[0])
        return help_file({
            "|SYSTEM": system_file(title, copyright_text, contents), "|FONT": self.fonts.content(),
            "|TOPIC": self.topic_file.content(), "|CONTEXT": self.contexts(), "|CTXOMAP": self.numbers(),
            "|TTLBTREE": self.titles(), **self.keyword_files(), **self.picture_files,
        })
