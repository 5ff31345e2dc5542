"""The tables of a manual that are made from the program's own: as Markdown, for the help file and for HTML alike."""

import re


def escaped(text):
    return re.sub(r"([\\`*_\[\]<>|#])", r"\\\1", text)


def readable(key):
    return key.replace("Keypad", "keypad ")


def link_to(topic, text):
    return f"[{escaped(text)}]({topic.chapter}.md#{topic.slug})" if topic else escaped(text)


def name_of(command):
    """The command as the menus show it, or the words of its name where no menu does."""
    return command.text or re.sub(r"(?<=[a-z])(?=[A-Z0-9])", " ", command.name).capitalize()


def table(heading, rows):
    lines = [heading, ["---"] * len(heading), *rows]
    return "".join("| " + " | ".join(cells) + " |\n" for cells in lines)


def command_table(tables, topic_of):
    rows = []
    for command in tables.commands.values():
        if command.text or command.status:
            keys = ", ".join(readable(key) for key in command.keys)
            rows.append([link_to(topic_of(command.name), name_of(command)), escaped(keys), escaped(command.status)])
    return table(["Command", "Keys", "What it does"], rows)


def key_table(tables, topic_of):
    """A key that stands twice belongs to the first command listed with it."""
    rows = {}
    for command in tables.commands.values():
        for key in command.keys:
            what = escaped(command.status or "Run an installed tool")
            rows.setdefault(key, [escaped(readable(key)), link_to(topic_of(command.name), name_of(command)), what])
    return table(["Key", "Command", "What it does"], rows.values())


def editing_key_table(tables, _topic_of):
    return table(["Key", "What it does"], [[escaped(key), escaped(what)] for key, what in tables.editing_keys])


KINDS = {"commands": command_table, "keys": key_table, "editing keys": editing_key_table}


def generated_table(kind, tables, manual):
    """The table of a kind in Markdown, or none for an unknown kind."""
    topics = {name: topic for topic in manual.topics() for name in topic.commands}
    return KINDS[kind](tables, topics.get) if kind in KINDS else None
