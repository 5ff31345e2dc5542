"""What a manual consists of, as its chapters say it and as the help file and the checks need it."""

from dataclasses import dataclass, field
from pathlib import Path

CONTENTS = "contents"
GLOSSARY = "glossary"
BULLET = "\N{BULLET}"


@dataclass(frozen=True)
class Position:
    """Where something is written; lines count from 1."""

    path: Path
    line: int

    def __str__(self):
        return f"{self.path}:{self.line}"


class Faults:
    """What is wrong with a manual, each with its position."""

    def __init__(self):
        self.found = []

    def add(self, position, text):
        self.found.append(f"{position}: {text}")


@dataclass(frozen=True)
class Style:
    bold: bool = False
    italic: bool = False
    code: bool = False


@dataclass(frozen=True)
class Link:
    """Leads to a heading; without a slug to the first topic of the chapter."""

    chapter: str
    slug: str
    position: Position

    @property
    def is_pop_up(self):
        return self.chapter == GLOSSARY and bool(self.slug)


@dataclass(frozen=True)
class Run:
    """Characters of one style that belong to one link or to none."""

    text: str
    style: Style = Style()
    link: Link | None = None


def text_of(runs):
    return "".join(run.text for run in runs)


@dataclass
class Paragraph:
    runs: list
    indent: int = 0  # depth of the list around the paragraph
    marker: str = ""  # before the first paragraph of a list item
    ends_list: bool = False


@dataclass
class SubHeading:
    runs: list
    slug: str
    position: Position


@dataclass
class Code:
    lines: list
    indent: int = 0
    ends_list: bool = False


@dataclass
class Table:
    """Rows of cells, each a list of runs; the first row is the heading."""

    rows: list


@dataclass
class Picture:
    path: Path
    position: Position
    indent: int = 0
    ends_list: bool = False


@dataclass
class GeneratedTable:
    kind: str
    position: Position


@dataclass
class Topic:
    chapter: str
    slug: str
    title: str
    position: Position
    is_first: bool  # of its chapter
    keywords: list = field(default_factory=list)
    commands: list = field(default_factory=list)
    dialogs: list = field(default_factory=list)
    blocks: list = field(default_factory=list)

    @property
    def is_pop_up(self):
        return self.chapter == GLOSSARY and not self.is_first

    def link(self):
        return Link(self.chapter, self.slug, self.position)

    def context(self, slug=None):
        """The name under which the help file knows this topic or a heading in it."""
        return f"{self.chapter}#{slug or self.slug}"

    def headings(self):
        """The slug and position of the topic and of each heading in it."""
        yield self.slug, self.position
        yield from ((block.slug, block.position) for block in self.blocks if isinstance(block, SubHeading))


@dataclass
class Chapter:
    name: str
    path: Path
    topics: list = field(default_factory=list)


@dataclass
class Manual:
    chapters: list

    def topics(self):
        return [topic for chapter in self.chapters for topic in chapter.topics]


def runs_of(block):
    """All runs of a block, whatever it is made of."""
    if isinstance(block, Table):
        return [run for row in block.rows for cell in row for run in cell]
    return getattr(block, "runs", [])
