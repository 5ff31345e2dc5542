"""Reads the chapters of a manual, which are written in a subset of Markdown. What is outside the subset is a fault."""

import re
from pathlib import Path

from markdown_it import MarkdownIt
from markdown_it.tree import SyntaxTreeNode

from manual import (BULLET, CONTENTS, Chapter, Code, GeneratedTable, Link, Paragraph, Picture, Position, Run, Style,
                    SubHeading, Table, Topic)
from packing import ENCODING

DEEPEST_LIST = 2
LONGEST_KEYWORD = 79  # characters that an index of Quick Help keeps
PARTS = {"keywords": ";", "commands": ",", "dialogs": ","}  # what a comment says of a topic, and what separates it
DESCRIPTIONS = tuple(f"{part}:" for part in PARTS)
COMMENT = re.compile(r"<!--(.*?)-->", re.DOTALL)
GENERATED = re.compile(r"table:\s*([\w ]+)$")
STYLES = {"strong": {"bold": True}, "em": {"italic": True}, "code_inline": {"code": True}}


def parse(text):
    return SyntaxTreeNode(MarkdownIt("commonmark").enable("table").parse(text))


def slug_of(title):
    """The anchor that source hosts and pandoc give a heading."""
    return re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")


def plain_text(node):
    return "".join(child.content or plain_text(child) for child in node.children)


def split_list(text, separator):
    return [entry.strip() for entry in text.split(separator) if entry.strip()]


class InlineReader:
    """Turns the inside of a paragraph, heading or cell into runs."""

    def __init__(self, chapter, faults):
        self.chapter = chapter
        self.faults = faults

    def read(self, node, line):
        self.line = line
        self.runs = []
        for inline in node.children:
            self.read_children(inline, Style(), None)
        return self.runs

    def position(self):
        return Position(self.chapter.path, self.line)

    def read_children(self, node, style, link):
        for child in node.children:
            self.read_one(child, style, link)

    def read_one(self, node, style, link):
        if node.type == "text":
            self.add(node.content, style, link)
        elif node.type == "softbreak":
            self.add(" ", style, link)
            self.line += 1
        elif node.type == "code_inline":
            self.add(node.content, Style(style.bold, style.italic, True), link)
        elif node.type in STYLES:
            self.read_children(node, Style(**{**vars(style), **STYLES[node.type]}), link)
        elif node.type == "link":
            self.read_link(node, style)
        else:
            self.faults.add(self.position(), f"{node.type} is not part of the manual's Markdown")

    def read_link(self, node, style):
        target = node.attrs["href"]
        if re.match("https?:", target):
            self.read_children(node, style, None)
            if plain_text(node) != target:
                self.add(f" ({target})", style, None)
            return
        found = re.fullmatch(r"(?:([\w-]+)\.md)?(?:#([\w-]+))?", target)
        if not found or not target:
            self.faults.add(self.position(), f'a link leads to "{target}", which is no chapter of the manual')
            return
        link = Link(found[1] or self.chapter.name, found[2] or "", self.position())
        self.read_children(node, style, link)

    def add(self, text, style, link):
        try:
            text.encode(ENCODING)
        except UnicodeEncodeError as error:
            self.faults.add(self.position(), f'"{text[error.start]}" is no character of the help file')
        self.runs.append(Run(text, style, link))


class ChapterReader:
    """Reads one chapter; its faults are added to those found before."""

    def __init__(self, path, faults):
        self.faults = faults
        self.chapter = Chapter(path.stem, path)
        self.inline = InlineReader(self.chapter, faults)
        self.topic = None
        self.may_describe = False  # right below a topic's heading

    def text(self):
        try:
            return self.chapter.path.read_text(encoding="utf-8")
        except UnicodeDecodeError as error:
            line = error.object.count(b"\n", 0, error.start) + 1
            self.faults.add(Position(self.chapter.path, line), "is no text in UTF-8")
            return ""

    def read(self):
        for node in parse(self.text()).children:
            self.read_block(node, 0)
            self.may_describe = node.type == "heading"
        if not self.chapter.topics:
            self.faults.add(Position(self.chapter.path, 1), "the chapter has no topic")
        return self.chapter

    def position(self, node):
        return Position(self.chapter.path, node.map[0] + 1)

    def runs(self, node):
        return self.inline.read(node, node.map[0] + 1)

    def add(self, node, block):
        if self.topic:
            self.topic.blocks.append(block)
        else:
            self.faults.add(self.position(node), "stands before the first heading")

    def read_block(self, node, indent, marker=""):
        reader = getattr(self, f"read_{node.type}", None)
        if reader:
            reader(node, indent, marker)
        else:
            self.faults.add(self.position(node), f"{node.type} is not part of the manual's Markdown")

    # ---- blocks, by the names that the parser gives them ----

    def read_heading(self, node, _indent, _marker):
        runs = self.runs(node)
        title = plain_text(node.children[0])
        if node.tag == "h3":
            self.add(node, SubHeading(runs, slug_of(title), self.position(node)))
        elif node.tag == ("h2" if self.chapter.topics else "h1"):
            self.topic = Topic(self.chapter.name, slug_of(title), title, self.position(node), not self.chapter.topics)
            self.chapter.topics.append(self.topic)
        else:
            self.faults.add(self.position(node), f"a heading of this level ({node.tag}) has no meaning here")

    def read_paragraph(self, node, indent, marker):
        children = node.children[0].children
        if len(children) == 1 and children[0].type == "image":
            path = self.chapter.path.parent / children[0].attrs["src"]
            self.add(node, Picture(path, self.position(node), indent))
        else:
            self.add(node, Paragraph(self.runs(node), indent, marker))

    def read_fence(self, node, indent, _marker):
        for number, line in enumerate(node.content.splitlines()):
            self.inline.line = node.map[0] + 2 + number
            self.inline.runs = []
            self.inline.add(line, Style(code=True), None)
        self.add(node, Code([line.expandtabs(4) for line in node.content.splitlines()], indent))

    def read_bullet_list(self, node, indent, _marker):
        self.read_items([(item, BULLET) for item in node.children], indent + 1)

    def read_ordered_list(self, node, indent, _marker):
        numbers = enumerate(node.children, node.attrs.get("start", 1))
        self.read_items([(item, f"{number}.") for number, item in numbers], indent + 1)

    def read_items(self, items, indent):
        for item, marker in items:
            self.read_item(item, indent, marker)
        for block in self.topic.blocks[-1:] if self.topic and indent == 1 else []:
            block.ends_list = True

    def read_item(self, item, indent, marker):
        if indent > DEEPEST_LIST:
            self.faults.add(self.position(item), "a list stands inside a list that stands inside a list")
        for child in item.children:
            self.read_block(child, indent, marker)
            marker = ""

    def table_of(self, node):
        rows = [row for part in node.children for row in part.children]
        return Table([[self.inline.read(cell, row.map[0] + 1) for cell in row.children] for row in rows])

    def read_table(self, node, _indent, _marker):
        self.add(node, self.table_of(node))

    def read_html_block(self, node, _indent, _marker):
        comment = COMMENT.fullmatch(node.content.strip())
        if not comment:
            self.faults.add(self.position(node), "HTML is not part of the manual's Markdown")
            return
        text = comment[1].strip()
        generated = GENERATED.match(text)
        if generated:
            self.add(node, GeneratedTable(generated[1], self.position(node)))
        elif text.startswith(DESCRIPTIONS) or self.may_describe and re.match(r"\w+:", text):
            self.describe(node, text)

    def describe(self, node, text):
        """Takes over what the comment below a heading says about the topic."""
        if not (self.may_describe and self.topic):
            self.faults.add(self.position(node), "describes a topic, but does not stand right below its heading")
            return
        for part in text.split("|"):
            name, _, entries = part.strip().partition(":")
            if name in PARTS:
                getattr(self.topic, name).extend(split_list(entries, PARTS[name]))
            else:
                self.faults.add(self.position(node), f'"{name}" says nothing about a topic')
        for keyword in self.topic.keywords:
            if len(keyword) > LONGEST_KEYWORD:
                self.faults.add(self.position(node), f'the keyword "{keyword}" is too long')


def chapter_order(contents):
    """The chapters in the order in which the contents lead to them."""
    names = [CONTENTS]
    for topic in contents.topics:
        for run in (run for block in topic.blocks for run in getattr(block, "runs", [])):
            if run.link and run.link.chapter not in names:
                names.append(run.link.chapter)
    return names


def read_chapters(folder, faults):
    """The chapters of a folder in their order. A file that the contents do not lead to is a fault."""
    contents = Path(folder) / f"{CONTENTS}.md"
    if not contents.is_file():
        faults.add(Position(contents, 1), "the manual has no contents")
        return []
    chapters = [ChapterReader(contents, faults).read()]
    names = chapter_order(chapters[0])
    paths = {path.stem: path for path in sorted(Path(folder).glob("*.md"))}
    for name in sorted(set(paths) - set(names)):
        faults.add(Position(paths[name], 1), "the contents do not lead to this chapter")
    chapters += [ChapterReader(paths[name], faults).read() for name in names[1:] if name in paths]
    return chapters
