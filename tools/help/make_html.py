#!/usr/bin/python3
"""Makes an HTML page of each chapter of a manual, with pandoc.

usage: make_html.py ROOT MANUAL FOLDER    the project's folder, that of the chapters, and that of the pages
"""

import re
import shutil
import subprocess
import sys
from pathlib import Path

from generated_tables import generated_table
from loading import load_manual
from manual import Faults
from program_tables import read_program_tables

HERE = Path(__file__).parent
STYLE = "manual.css"
GENERATED = re.compile(r"^<!-- table: ([\w ]+) -->$", re.MULTILINE)


def page_of(chapter, tables, manual):
    source = GENERATED.sub(lambda found: generated_table(found[1], tables, manual),
                           chapter.path.read_text(encoding="utf-8"))
    options = ["--from=gfm", "--to=html5", "--standalone", f"--css={STYLE}", f"--lua-filter={HERE / 'links.lua'}",
               f"--include-before-body={HERE / 'page_head.html'}", f"--metadata=pagetitle:{chapter.topics[0].title}",
               "--metadata=lang:en"]
    return subprocess.run(["pandoc", *options], input=source, text=True, encoding="utf-8", stdout=subprocess.PIPE,
                          check=True).stdout


def check_anchors(chapter, page, faults):
    for slug, position in (heading for topic in chapter.topics for heading in topic.headings()):
        if f'id="{slug}"' not in page:
            faults.add(position, f'the page has no anchor "{slug}"')


def make_pages(root, folder, output):
    faults = Faults()
    tables = read_program_tables(root)
    manual = load_manual(folder, tables, faults)
    if faults.found:
        return faults.found
    output.mkdir(parents=True, exist_ok=True)
    for chapter in manual.chapters:
        page = page_of(chapter, tables, manual)
        check_anchors(chapter, page, faults)
        (output / f"{chapter.name}.html").write_text(page, encoding="utf-8")
    shutil.copytree(folder / "pictures", output / "pictures", dirs_exist_ok=True)
    shutil.copy(HERE / STYLE, output)
    return faults.found


def main():
    faults = make_pages(*map(Path, sys.argv[1:4]))
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
