"""What must hold for a manual as a whole: every link leads somewhere, nothing has one name twice, and every command and
dialog of the program has its topic."""

from collections import defaultdict

from context_hash import context_hash
from manual import GeneratedTable, Picture, runs_of


def headings(manual):
    """Position of each heading by chapter and slug; a chapter alone stands for its first topic."""
    return {(topic.chapter, slug): position for topic in manual.topics() for slug, position in topic.headings()}


def check_names(manual, faults):
    seen, hashes = {}, {}
    for topic in manual.topics():
        for slug, position in topic.headings():
            name = topic.context(slug)
            other = hashes.setdefault(context_hash(name), name)
            if name in seen:
                faults.add(position, f'"{slug}" is the id of another heading, too ({seen[name]})')
            elif other != name:
                faults.add(position, f'"{name}" has the hash of "{other}" in the help file: change the heading')
            seen[name] = position


def check_links(manual, faults):
    known = headings(manual)
    chapters = {chapter.name for chapter in manual.chapters}
    for run in (run for topic in manual.topics() for block in topic.blocks for run in runs_of(block)):
        link = run.link
        if not link:
            continue
        if link.chapter not in chapters:
            faults.add(link.position, f'a link leads to the chapter "{link.chapter}", which does not exist')
        elif link.slug and (link.chapter, link.slug) not in known:
            faults.add(link.position, f'a link leads to "{link.slug}", which does not exist in "{link.chapter}"')


def check_pictures(manual, faults):
    for block in (block for topic in manual.topics() for block in topic.blocks):
        if isinstance(block, Picture) and not block.path.is_file():
            faults.add(block.position, f'the picture "{block.path.name}" does not exist')


def check_generated(manual, faults):
    for block in (block for topic in manual.topics() for block in topic.blocks):
        if isinstance(block, GeneratedTable):
            faults.add(block.position, f'"{block.kind}" is no table that can be made')


def check_described(manual, rows, named_by, what, faults):
    """Each row of a table of the program is described by one topic, and no topic describes what does not exist."""
    topics = defaultdict(list)
    for topic in manual.topics():
        for name in named_by(topic):
            if name in rows:
                topics[name].append(topic)
            else:
                faults.add(topic.position, f'"{name}" is no {what} of the program')
    for name, row in rows.items():
        if not topics[name]:
            faults.add(row.position, f'no topic describes the {what} "{name}"')
        for topic in topics[name][1:]:
            faults.add(topic.position, f'the {what} "{name}" has another topic, too ({topics[name][0].position})')


def check_numbers(tables, faults):
    """Commands and dialogs share the numbers by which the program asks for topics."""
    rows = {}
    for name, row in {**tables.commands, **tables.dialogs}.items():
        other = rows.setdefault(tables.context_number(name), name)
        if other != name:
            faults.add(row.position, f'"{name}" has the number of "{other}"')


def check(manual, tables, faults):
    check_names(manual, faults)
    check_links(manual, faults)
    check_pictures(manual, faults)
    check_generated(manual, faults)
    check_described(manual, tables.commands, lambda topic: topic.commands, "command", faults)
    check_described(manual, tables.dialogs, lambda topic: topic.dialogs, "dialog", faults)
    check_numbers(tables, faults)
