"""A manual as it is compiled: its chapters read, its generated tables filled in, and all of it checked."""

from generated_tables import generated_table
from manual import GeneratedTable, Manual
from manual_checks import check
from markdown_reader import ChapterReader, parse, read_chapters


def filled(block, chapter, tables, manual, faults):
    text = isinstance(block, GeneratedTable) and generated_table(block.kind, tables, manual)
    if not text:
        return block
    return ChapterReader(chapter.path, faults).table_of(parse(text).children[0])


def load_manual(folder, tables, faults):
    manual = Manual(read_chapters(folder, faults))
    for chapter in manual.chapters:
        for topic in chapter.topics:
            topic.blocks = [filled(block, chapter, tables, manual, faults) for block in topic.blocks]
    check(manual, tables, faults)
    return manual
