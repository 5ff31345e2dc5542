"""Turns the blocks of a topic into the records in which a help file keeps its paragraphs and the rows of its tables.
Measures are half points."""

from dataclasses import dataclass

from context_hash import context_hash
from fonts import BODY, SUB_HEADING, TITLE
from manual import Code, Paragraph, Picture, Run, Style, SubHeading, Table
from packing import ENCODING, long, packed_long, packed_short, packed_ushort, short, ushort

TEXT, ROW = 0x20, 0x23  # kinds of records

SET_FONT, BREAK_LINE, END_PARAGRAPH, TAB, PICTURE, END_LINK, END = 0x80, 0x81, 0x82, 0x83, 0x86, 0x89, 0xFF
POP_UP, JUMP = 0xE2, 0xE3
PICTURE_BY_NUMBER = 0x22

ABOVE, BELOW, LEFT, FIRST_LINE = 0x0002, 0x0004, 0x0010, 0x0040  # in the order of their operands
TABS, NO_WRAP = 0x0200, 0x1000
MEASURES = (ABOVE, BELOW, LEFT, FIRST_LINE)

SPACE = 12
SMALL_SPACE = 6
LIST_INDENT = 40
MARKER_WIDTH = 32
CODE_INDENT = 24

TABLE_WIDTH = 32767  # stands for that of the window
LEAST_TABLE_WIDTH = 800
GAP = 700
WIDEST_COLUMN = 40  # characters that a column may ask for
PROPORTIONAL = 0


@dataclass
class Record:
    kind: int
    format: bytes
    text: bytes
    length: int  # characters and pictures, by which positions in a topic are counted


class Group:
    """Texts and commands take turns, a text first; FF is the last command."""

    def __init__(self, fonts):
        self.fonts = fonts
        self.texts = [b""]
        self.commands = b""
        self.pictures = 0
        self.font = None

    def command(self, code, operands=b""):
        self.commands += bytes([code]) + operands
        self.texts.append(b"")

    def add_text(self, text, style=Style(), size=BODY):
        font = self.fonts.number(style, size)
        if font != self.font:
            self.command(SET_FONT, ushort(font))
            self.font = font
        self.texts[-1] += text.encode(ENCODING)

    def add_runs(self, runs, contexts, size=BODY):
        link = None
        for run in runs:
            if run.link != link:
                if link:
                    self.command(END_LINK)
                if run.link:
                    self.start_link(run, contexts, size)
                link = run.link
            self.add_text(run.text, run.style, size)
        if link:
            self.command(END_LINK)

    def start_link(self, run, contexts, size):
        self.add_text("", run.style, size)
        code = POP_UP if run.link.is_pop_up else JUMP
        self.command(code, long(context_hash(contexts(run.link))))

    def add_picture(self, number):
        data = short(0) + short(number)
        self.command(PICTURE, bytes([PICTURE_BY_NUMBER]) + packed_long(len(data)) + packed_ushort(1) + data)
        self.pictures += 1

    def content(self):
        return b"".join(text + b"\0" for text in self.texts)


def paragraph_info(measures=None, tabs=(), bits=0):
    """The bytes before the commands; measures are a dict by their bits."""
    measures = {bit: value for bit, value in (measures or {}).items() if value}
    operands = b"".join(packed_short(measures[bit]) for bit in MEASURES if bit in measures)
    if tabs:
        operands += packed_short(len(tabs)) + b"".join(packed_ushort(tab) for tab in tabs)
    return packed_long(0) + ushort(0) + ushort(sum(measures) | (TABS if tabs else 0) | bits) + operands


def record(kind, format_bytes, texts, pictures=0):
    length = len(texts) + pictures
    head = packed_ushort(length)
    return Record(kind, packed_long(len(format_bytes)) + head + format_bytes, texts, length)


def column_widths(rows):
    """Shares of the text's width, by the words and texts of the columns."""
    texts = [["".join(run.text for run in cell) for cell in column] for column in zip(*rows)]
    wishes = [max(max(map(len, text.split()), default=0) for text in column) for column in texts]
    wishes = [max(wish, min(max(map(len, column)), WIDEST_COLUMN)) + 2 for wish, column in zip(wishes, texts)]
    room = TABLE_WIDTH - GAP * len(wishes)
    return [room * wish // sum(wishes) for wish in wishes]


class ParagraphWriter:
    """contexts gives the name of the topic a link leads to, pictures the number of a file."""

    def __init__(self, fonts, contexts, pictures):
        self.fonts = fonts
        self.contexts = contexts
        self.pictures = pictures

    def group(self):
        return Group(self.fonts)

    def ended(self, info, group):
        group.command(END_PARAGRAPH)
        return record(TEXT, info + group.commands + bytes([END]), group.content(), group.pictures)

    def heading(self, runs, size, above):
        group = self.group()
        group.add_runs(runs, self.contexts, size)
        return self.ended(paragraph_info({ABOVE: above, BELOW: SMALL_SPACE}), group)

    def title(self, topic):
        return self.heading([Run(topic.title)], SUB_HEADING if topic.is_pop_up else TITLE, SMALL_SPACE)

    def block(self, block):
        """The records of a block."""
        return self.WRITERS[type(block)](self, block)

    def write_sub_heading(self, block):
        return [self.heading(block.runs, SUB_HEADING, SMALL_SPACE)]

    def write_paragraph(self, block):
        group = self.group()
        left = LIST_INDENT * block.indent
        measures = {BELOW: SMALL_SPACE if block.indent and not block.ends_list else SPACE, LEFT: left}
        if block.marker:
            measures[FIRST_LINE] = -MARKER_WIDTH
            group.add_text(block.marker)
            group.command(TAB)
        group.add_runs(block.runs, self.contexts)
        return [self.ended(paragraph_info(measures, [left] if block.marker else ()), group)]

    def write_code(self, block):
        group = self.group()
        for number, line in enumerate(block.lines):
            if number > 0:
                group.command(BREAK_LINE)
            group.add_text(line, Style(code=True))
        measures = {BELOW: SPACE, LEFT: LIST_INDENT * block.indent + CODE_INDENT}
        return [self.ended(paragraph_info(measures, bits=NO_WRAP), group)]

    def write_picture(self, block):
        group = self.group()
        group.add_text("")
        group.add_picture(self.pictures[block.path])
        return [self.ended(paragraph_info({BELOW: SPACE, LEFT: LIST_INDENT * block.indent}), group)]

    def write_table(self, block):
        widths = column_widths(block.rows)
        rows = [[[Run(run.text, Style(True, run.style.italic, run.style.code), run.link) for run in cell]
                 for cell in block.rows[0]], *block.rows[1:]]
        last = len(rows) - 1
        return [self.row(widths, row, SPACE if number == last else SMALL_SPACE) for number, row in enumerate(rows)]

    def row(self, widths, cells, below):
        head = bytes([len(cells), PROPORTIONAL]) + short(LEAST_TABLE_WIDTH)
        head += b"".join(short(width) + short(GAP if number else 0) for number, width in enumerate(widths))
        texts = b""
        for number, runs in enumerate(cells):
            group = self.group()
            group.add_text("")
            group.add_runs(runs, self.contexts)
            group.command(END_PARAGRAPH)
            cell = paragraph_info({BELOW: below}) + group.commands + bytes([END])
            head += short(number) + b"\1" + packed_long(len(cell)) + cell
            texts += group.content()
        return record(ROW, head + short(-1), texts)

    WRITERS = {Paragraph: write_paragraph, SubHeading: write_sub_heading, Code: write_code, Picture: write_picture,
               Table: write_table}
