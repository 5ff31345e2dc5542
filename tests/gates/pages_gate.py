#!/usr/bin/python3
"""Checks that what the developers' pages name is there: files and folders of the project, and the tests that keep the
promises of docs/security.md.

usage: pages_gate.py ROOT    the project's folder
"""

import re
import sys
from pathlib import Path

FOLDERS = ("bench", "cmake", "data", "docs", "interpreter", "src", "tests", "tools")
SPAN = re.compile(r"`([^`\n]+)`")
PATH = re.compile(rf"(?:{'|'.join(FOLDERS)})/[\w.*/-]*")
TEST = re.compile(r"(?:\w+/)?([A-Z]\w+)\.(\*|[A-Z]\w+)")
FUZZ_TARGET = re.compile(r"\w+_fuzz")


def declared_tests(root):
    """Each suite with the text of the files that declare it."""
    suites = {}
    for path in sorted((root / "tests").rglob("*.cpp")):
        text = path.read_text(errors="replace")
        for suite in set(re.findall(r"\b(?:TEST|TEST_F|TEST_P|VEXA_CASES|VEXA_SCRIPTS)\((\w+)", text)):
            suites[suite] = suites.get(suite, "") + text
    return suites


def is_there(span, root, suites, is_promise):
    if PATH.fullmatch(span):
        return any(root.glob(span.rstrip("/")))
    if is_promise and FUZZ_TARGET.fullmatch(span):
        return (root / f"tests/fuzz/{span}.cpp").is_file()
    if is_promise and (test := TEST.fullmatch(span)):
        return test[1] in suites and (test[2] == "*" or re.search(rf"\b{test[2]}\b", suites[test[1]]))
    return True


def faults(root):
    suites = declared_tests(root)
    for page in [root / "README.md", *sorted((root / "docs").glob("*.md"))]:
        for number, line in enumerate(page.read_text().splitlines(), 1):
            is_promise = page.name == "security.md" and line.startswith("|")
            for span in SPAN.findall(line):
                if not is_there(span, root, suites, is_promise):
                    yield f"{page.relative_to(root)}:{number}: names {span}, which is not there"


def main():
    found = list(faults(Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
