#!/usr/bin/python3
"""Checks the shape of the sources: includes go down the layers only, headers of the operating system stay in their
places, and no file grows too long.

usage: source_gate.py ROOT    the project's folder, with src/ in it
"""

import fnmatch
import re
import sys
from pathlib import Path

HERE = Path(__file__).parent
LONGEST_FILE = 600  # lines
CODE = {".cpp", ".h", ".def", ".rc"}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def table(path, separator):
    """The rows of a data file: a word, then a list of words."""
    rows = []
    for line in path.read_text().splitlines():
        if line.strip() and not line.startswith("#"):
            first, _, rest = line.partition(separator)
            rows.append((first.strip(), rest.split()))
    return rows


LAYERS = dict(table(HERE / "layers.txt", ":"))
HEADERS = table(HERE / "headers.txt", " ")


def code_files(folder):
    return sorted(p for p in folder.rglob("*") if p.suffix in CODE) if folder.is_dir() else []


def is_inside(name, folder):
    return name.startswith(folder + "/")


def layer_of(name):
    """The layer of a file: the longest folder of the table that it is in; None when it is in no layer."""
    return max((layer for layer in LAYERS if is_inside(name, layer)), key=len, default=None)


def may_include(layer, header):
    """A layer named in a row stands for all folders below it."""
    below = layer_of(header)
    return below == layer or any(is_inside(f"{below}/", allowed) for allowed in LAYERS[layer])


def include_faults(name, header, is_quoted, src):
    """What is wrong with one include in the file called name (relative to src)."""
    layer = layer_of(name)
    if is_quoted and name.endswith(".rc"):
        return
    if is_quoted and not (src / header).is_file():
        yield f'includes "{header}", which is no file of src/'
    elif is_quoted:
        if not may_include(layer, header):
            yield f'includes "{header}", which is not below {layer}/'
    else:
        for pattern, allowed in HEADERS:
            if fnmatch.fnmatchcase(header.lower(), pattern):
                if not any(is_inside(name, folder) for folder in allowed):
                    yield f"includes <{header}>, which has no place here"
                return


def file_faults(path, src):
    name = path.relative_to(src).as_posix()
    if layer_of(name) is None:
        yield f"{name}: is in no layer"
        return
    for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
        if found := INCLUDE.match(line):
            for fault in include_faults(name, found[2], found[1] == '"', src):
                yield f"{name}:{number}: {fault}"


def faults(root):
    src = root / "src"
    for path in code_files(src):
        yield from file_faults(path, src)
    for path in code_files(src) + code_files(root / "tests") + code_files(root / "bench"):
        length = len(path.read_text(errors="replace").splitlines())
        if length > LONGEST_FILE:
            yield f"{path.relative_to(root)}: has {length} lines, more than {LONGEST_FILE}"


def main():
    root = Path(sys.argv[1])
    if not code_files(root / "src"):
        sys.exit(f"no sources in {root}/src")
    found = list(faults(root))
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
