#!/usr/bin/python3
"""Checks the dialogs that a person uses by keyboard: in each, every control that can be worked has a mnemonic, no
two share a mnemonic or a place, all lie inside, one button is the default, one leaves, every field has its label just before
it, and texts have room.

usage: dialog_gate.py DIALOGS.RC
"""

import re
import sys
from pathlib import Path

HEADER = re.compile(r"^(IDD_\w+) DIALOG(?:EX)? \d+, \d+, (\d+), (\d+)$")
# A text, a number, a place, and styles; CONTROL has a class and a style behind the number.
CONTROL = re.compile(r'^\s+(\w+) (?:"((?:[^"]|"")*)", )?(-?\w+)((?:, [^,]+)*)$')
FIELDS = {"EDITTEXT", "COMBOBOX", "LISTBOX"}
LABELS = {"LTEXT", "RTEXT", "GROUPBOX"}
BUTTONS = {"DEFPUSHBUTTON", "PUSHBUTTON"}
WORKED = FIELDS | BUTTONS | {"AUTOCHECKBOX", "AUTORADIOBUTTON"}
# What a control shows beside its text, in dialog units: a button's frame, a box and the blank after it.
BESIDE_TEXT = {"LTEXT": 0, "RTEXT": 0, "DEFPUSHBUTTON": 6, "PUSHBUTTON": 6, "AUTOCHECKBOX": 12, "AUTORADIOBUTTON": 12}
# A dialog unit is a quarter of the mean width of a letter; texts of the usual letters take a little less than four.
CHARACTER = 3.5


class Control:
    def __init__(self, kind, text, number, rest):
        numbers = [word.strip() for word in rest.split(",") if word.strip()]
        if kind == "CONTROL":
            numbers = numbers[2:]
        self.kind, self.text, self.number = kind, text or "", number
        self.left, self.top, self.width, self.height = (int(word) for word in numbers[:4])
        self.styles = " ".join(numbers[4:])
        self.is_drop_down = kind == "COMBOBOX"

    @property
    def right(self):
        return self.left + self.width

    @property
    def bottom(self):
        # The height of a combo box counts its list, which is not open.
        return self.top + (12 if self.is_drop_down else self.height)

    @property
    def mnemonic(self):
        found = re.search(r"&([^&])", self.text.replace("&&", ""))
        return found.group(1).lower() if found else None

    def overlaps(self, other):
        return (self.left < other.right and other.left < self.right and self.top < other.bottom
                and other.top < self.bottom)

    def __str__(self):
        return f'{self.kind} "{self.text}" ({self.number})'


def read_dialogs(text):
    dialogs = []
    for line in text.splitlines():
        header = HEADER.match(line)
        control = CONTROL.match(line)
        if header:
            dialogs.append((header.group(1), int(header.group(2)), int(header.group(3)), []))
        elif control and dialogs:
            dialogs[-1][3].append(Control(*control.groups()))
    return dialogs


def shared_mnemonics(controls):
    seen = {}
    for control in controls:
        if control.mnemonic is None:
            continue
        if control.mnemonic in seen:
            yield f'{control} and {seen[control.mnemonic]} both answer to Alt+{control.mnemonic.upper()}'
        seen[control.mnemonic] = control


def misplaced(controls, width, height):
    solid = [control for control in controls if control.kind != "GROUPBOX"]
    for i, control in enumerate(solid):
        if control.left < 0 or control.top < 0 or control.right > width or control.bottom > height:
            yield f"{control} does not lie inside the dialog"
        for other in solid[:i]:
            if control.overlaps(other):
                yield f"{control} lies on {other}"


def clipped(controls):
    for control in controls:
        characters = len(re.sub("&(.)", r"\1", control.text))
        if control.kind in BESIDE_TEXT and control.width - BESIDE_TEXT[control.kind] < CHARACTER * characters:
            yield f"{control} has no room for its text"


def missing_labels(controls):
    for before, control in zip([None] + controls, controls):
        if control.kind in FIELDS and (before is None or before.kind not in LABELS | {"AUTOCHECKBOX"}):
            yield f"{control} has no label before it"


# A field is reached by the mnemonic of its label.
def missing_mnemonics(controls):
    for before, control in zip([None] + controls, controls):
        named = before if control.kind in FIELDS else control
        if control.kind in WORKED and named is not None and named.mnemonic is None:
            yield f"{control} cannot be reached by a mnemonic"


def missing_buttons(controls):
    buttons = {control.number: control.kind for control in controls if control.kind in BUTTONS}
    if sum(kind == "DEFPUSHBUTTON" for kind in buttons.values()) != 1:
        yield "has not one default button"
    if "IDCANCEL" not in buttons:
        yield "has no button that Esc presses"


def faults(text):
    for name, width, height, controls in read_dialogs(text):
        for find in (shared_mnemonics, clipped, missing_labels, missing_mnemonics, missing_buttons):
            yield from (f"{name}: {fault}" for fault in find(controls))
        yield from (f"{name}: {fault}" for fault in misplaced(controls, width, height))


def main():
    text = Path(sys.argv[1]).read_text()
    found = list(faults(text))
    print("\n".join(found) or f"{len(read_dialogs(text))} dialogs are right.")
    return 1 if found or not read_dialogs(text) else 0


if __name__ == "__main__":
    sys.exit(main())
