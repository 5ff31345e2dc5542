#!/usr/bin/python3
"""Prints what each folder of src/ and each library adds to the program, and fails when the program has grown by more than
a twentieth over the size that weight.txt keeps. Who means to make it larger writes the new size there.

usage: weight.py VEXA.EXE    its link map, vexa.map, lies beside it
"""

import re
import sys
from collections import Counter
from pathlib import Path

KEPT = Path(__file__).parent / "weight.txt"
MOST_GROWTH = 0.05
PLACED = re.compile(r"^ (?:(\.\S+)\s+)?\s*0x[0-9a-f]+\s+0x([0-9a-f]+) (\S.*)$")
SECTION_ALONE = re.compile(r"^ (\.\S+)$")
LOADED = re.compile(r"^\.(text|rdata|data|eh_frame|rsrc|idata|CRT|tls|reloc)\b")
OWN = re.compile(r"(?:^|/)src/(\w+)/")
LIBRARY = re.compile(r"(lib[\w+-]+)\.a\(")


def origin(name):
    """The folder of src/ that an object file belongs to, else the library; all else is the compiler's start-up code."""
    if name.endswith(".res") or "/rsrc" in name:
        return "resources"
    if "__/framework/" in name:
        return "src/framework"
    if found := OWN.search(name):
        return f"src/{found[1]}"
    found = LIBRARY.search(name)
    return found[1] if found else "start-up"


def weights(map_text):
    """Bytes by origin. What the linker has left out stands before the memory map, and at address 0 in it."""
    sums = Counter()
    section = None
    for line in map_text.partition("Linker script and memory map")[2].splitlines():
        if found := SECTION_ALONE.match(line):
            section = found[1]
        elif found := PLACED.match(line):
            section = found[1] or section
            if section and LOADED.match(section):
                sums[origin(found[3])] += int(found[2], 16)
            section = None
    return sums


def growth_fault(size, kept):
    if size <= kept * (1 + MOST_GROWTH):
        return None
    return f"the program has {size} bytes, more than a twentieth above the {kept} that weight.txt keeps"


def main():
    program = Path(sys.argv[1])
    for name, size in weights(program.with_suffix(".map").read_text()).most_common():
        print(f"{size:9,}  {name}")
    size = program.stat().st_size
    print(f"{size:9,}  {program.name}")
    if fault := growth_fault(size, int(KEPT.read_text())):
        sys.exit(fault)


if __name__ == "__main__":
    main()
