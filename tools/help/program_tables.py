"""The program's commands, keys and dialogs, as its sources list them."""

import re
from dataclasses import dataclass

from manual import Position

TEXT = r'"((?:[^"\\]|\\.)*)"'
COMMAND = re.compile(rf"^VEXA_COMMAND\((\w+), (\d+), {TEXT}, {TEXT}, {TEXT}, ")
DIALOG = re.compile(r"^(IDD_\w+) DIALOG(?:EX)? ")
NUMBER = re.compile(r"^#define (IDD_\w+) (\d+)$")
KEY_ROW = re.compile(r"^\| (.+?) \| (.+?) \|$")

# What a program asks the viewer for. A command's topic has the command's number.
FIRST_DIALOG = 10000
KEYS_TOPIC = 49153
KEYS_COMMAND = "HelpOnKeys"


@dataclass(frozen=True)
class Command:
    name: str
    number: int
    text: str  # as the menu shows it, without mnemonic and key
    keys: tuple
    status: str
    position: Position


@dataclass(frozen=True)
class Dialog:
    name: str
    number: int
    position: Position


@dataclass(frozen=True)
class ProgramTables:
    commands: dict
    dialogs: dict
    editing_keys: list  # pairs of a key and what it does

    def context_number(self, name):
        """The number of the topic of a command or a dialog."""
        if name in self.commands:
            return self.commands[name].number
        return FIRST_DIALOG + self.dialogs[name].number


def numbered_lines(path):
    return enumerate(path.read_text(encoding="utf-8").splitlines(), 1)


def read_commands(path):
    commands = {}
    for line, text in numbered_lines(path):
        if found := COMMAND.match(text):
            name, number, menu, keys, status = found.groups()
            shown = menu.split(r"\t")[0].replace("&", "").strip()
            split_keys = tuple(keys.split(", ")) if keys else ()
            commands[name] = Command(name, int(number), shown, split_keys, status, Position(path, line))
    return commands


def read_dialogs(script, header):
    numbers = dict(found.groups() for _, text in numbered_lines(header) if (found := NUMBER.match(text)))
    dialogs = {}
    for line, text in numbered_lines(script):
        if found := DIALOG.match(text):
            dialogs[found[1]] = Dialog(found[1], int(numbers[found[1]]), Position(script, line))
    return dialogs


def read_editing_keys(path):
    """The rows of two columns of the page about the keys, less the heading."""
    if not path.is_file():
        return []
    rows = [found.groups() for _, text in numbered_lines(path) if (found := KEY_ROW.match(text))]
    return [row for row in rows if row[0] != "Key" and " | " not in row[1]]


def read_program_tables(root):
    """From the folder that holds src and docs."""
    resources = root / "src/ui/resources"
    return ProgramTables(read_commands(root / "src/shell/commands.def"),
                         read_dialogs(resources / "dialogs.rc", resources / "dialog_controls.h"),
                         read_editing_keys(root / "docs/keys.md"))
