#!/usr/bin/python3
"""Makes a help file of the chapters of a manual. What is wrong with them is told with file and line, and then no file
is made.

usage: compile_help.py ROOT MANUAL OUTPUT    the project's folder, that of the chapters, and the help file
"""

import sys
from pathlib import Path

from help_writer import HelpWriter
from loading import load_manual
from manual import Faults
from program_tables import read_program_tables

TITLE = "Vexa Help"
COPYRIGHT = "Copyright \N{COPYRIGHT SIGN} Vexa contributors"


def compile_manual(root, folder):
    """The bytes of the help file, none when there are faults; and the faults."""
    faults = Faults()
    tables = read_program_tables(root)
    manual = load_manual(folder, tables, faults)
    content = None if faults.found else HelpWriter(manual, tables, faults).content(TITLE, COPYRIGHT)
    return None if faults.found else content, faults.found


def main():
    root, folder, output = map(Path, sys.argv[1:4])
    content, faults = compile_manual(root, folder)
    for fault in faults:
        print(fault, file=sys.stderr)
    if content is None:
        return 1
    output.write_bytes(content)
    return 0


if __name__ == "__main__":
    sys.exit(main())
