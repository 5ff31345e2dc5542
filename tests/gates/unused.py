#!/usr/bin/python3
"""Finds own functions that the program has no use for; the linker keeps them, as the unwind tables name them all.

Two kinds are found: functions that nothing reachable from the program's start refers to, by the relocations of the
object files (each function has a section of its own), and names of functions that occur only once in the sources, so
that they are declared without a body or have a body in a header and no caller. What stays in spite of that is a row of
unused.txt with its reason.

A function that the compiler has built into all its callers looks as if nothing referred to it; so one whose name occurs
twice in its own source file counts as used, and so do operators, destructors and what shares its name with a neighbour.

Of the libraries, those count that the program is linked with; what others call is used, too.

usage: unused.py BUILD_FOLDER CHECKOUT    the folder of a 32-bit Windows build with the link map of the program
"""

import re
import subprocess
import sys
from collections import Counter, defaultdict
from pathlib import Path

MAP = "src/ui/vexa.map"
WITHOUT_NAME = re.compile(r"operator|\bstd::|~")
OTHER_SYSTEM = "/platform/host/"  # has all functions of the platform once more
ALLOWED = Path(__file__).parent / "unused.txt"
TOOLS = "i686-w64-mingw32-"
START = {"_WinMain@16"}
START_SECTION = re.compile(r"^\.(ctors|CRT)")
LIBRARY_HOOKS = "library_failures.cpp"  # defines functions of the C++ library, which calls them
UNWINDING = re.compile(r"^\.(eh_frame|gcc_except_table|debug)")

FILE = re.compile(r"^(\S.*):\s+file format ")
SYMBOL = re.compile(r"^\[ *\d+\]\(sec +(-?\d+)\).*\(scl +(\d+)\) \(nx \d+\) 0x[0-9a-f]+ (\S+)")
SECTION = re.compile(r"^RELOCATION RECORDS FOR \[(.+)\]:")
RELOCATION = re.compile(r"^[0-9a-f]{8} \S+ +(\S+?)(?:[+-]0x[0-9a-f]+)?$")
PUBLIC = "2"

WORD = re.compile(r"[A-Za-z_]\w*")
NOT_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|#include[^\n]*|"(?:\\.|[^"\\\n])*"', re.S)
DECLARED = re.compile(r"^\s*(?:[\w:<>,*&\[\]]+ +[*&]?)+(\w+)\((?!\*)", re.M)
NOT_DECLARED = re.compile(r"^\s*(?:(?:return|else|throw|new|delete|case)\b|const [\w:<>, ]+$)")
CALLED_FROM_OUTSIDE = re.compile(r"__|WinMain$")
LINKED = re.compile(r"^LOAD (src/\S+\.(?:obj|a))$", re.M)


def objdump(objects):
    command = [TOOLS + "objdump", "-rt", *map(str, objects)]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def demangle(names):
    command = [TOOLS + "c++filt", "--strip-underscore"]
    done = subprocess.run(command, check=True, capture_output=True, text=True, input="\n".join(names))
    return dict(zip(names, done.stdout.splitlines()))


class Graph:
    """Sections as (object, section) and what each refers to."""

    def __init__(self, dump):
        self.public = defaultdict(list)  # symbol: sections that define it, several for one in a header
        self.local = {}  # (object, symbol): section
        self.refers = defaultdict(set)  # section: (object, symbol)
        self.sections = set()
        for file in re.split(r"^(?=\S.*:\s+file format )", dump, flags=re.M):
            if header := FILE.match(file):
                self._read(header[1], file.splitlines())

    def _read(self, name, lines):
        symbols = [found.groups() for line in lines if (found := SYMBOL.match(line))]
        by_number = {number: (name, symbol) for number, _, symbol in symbols if symbol.startswith(".")}
        self.sections.update(by_number.values())
        for number, storage, symbol in symbols:
            if number in by_number:
                self.local[name, symbol] = by_number[number]
                if storage == PUBLIC:
                    self.public[symbol].append(by_number[number])
        section = None
        for line in lines:
            if found := SECTION.match(line):
                section = (name, found[1])
            elif section and (found := RELOCATION.match(line)):
                self.refers[section].add((name, found[1]))

    def targets(self, name, symbol):
        if (name, symbol) in self.local:
            return [self.local[name, symbol]]
        return self.public.get(symbol, [])

    def roots(self):
        found = {s for s in self.sections if START_SECTION.match(s[1]) or LIBRARY_HOOKS in s[0]}
        return found | {section for symbol in START for section in self.public.get(symbol, [])}

    def reachable(self):
        reached, waiting = set(), list(self.roots())
        while waiting:
            section = waiting.pop()
            if section in reached or UNWINDING.match(section[1]):
                continue
            reached.add(section)
            for name, symbol in self.refers[section]:
                waiting.extend(self.targets(name, symbol))
        return reached

    def unreached_functions(self):
        """Pairs of object and symbol."""
        reached = self.reachable()
        for symbol, sections in sorted(self.public.items()):
            if "4vexa" in symbol and all(s[1].startswith(".text") and s not in reached for s in sections):
                yield sections[0][0], symbol


def plain_name(demangled):
    """The name alone of a function: "bar" of "vexa::Foo<int>::bar(int) const". None for what callers do not name."""
    name = demangled.replace("(anonymous namespace)", "_").replace("[abi:cxx11]", "").split("(")[0]
    if WITHOUT_NAME.search(name):
        return None
    while (shorter := re.sub(r"<[^<>]*>", "", name)) != name:
        name = shorter
    return name.split("::")[-1].split()[-1]


def linked_objects(map_text, build):
    for name in LINKED.findall(map_text):
        path = build / name
        if path.suffix == ".obj":
            yield path
        else:
            yield from sorted((path.parent / "CMakeFiles" / (path.stem[3:] + ".dir")).rglob("*.obj"))


def source_of(object_path, build, checkout):
    parts = []
    for part in Path(object_path).relative_to(build).with_suffix("").parts:
        if part == "__":
            parts.pop()
        elif part != "CMakeFiles" and not part.endswith(".dir"):
            parts.append(part)
    return checkout.joinpath(*parts)


def words(text):
    return Counter(WORD.findall(NOT_CODE.sub(" ", text)))


def named_once(texts):
    """Names of functions that occur once in all the texts."""
    codes = [NOT_CODE.sub(" ", text) for text in texts]
    total = Counter(word for code in codes for word in WORD.findall(code))
    found = set()
    for code in codes:
        for declaration in DECLARED.finditer(code):
            name, before = declaration[1], declaration[0][: declaration.start(1) - declaration.start()]
            if total[name] == 1 and not NOT_DECLARED.match(before) and not CALLED_FROM_OUTSIDE.match(name):
                found.add(name)
    return found


def unreferred(build, checkout):
    """Pairs of name and readable name."""
    linked = linked_objects((build / MAP).read_text(), build)
    # A folder of builds keeps the object files of sources that have gone.
    objects = [path for path in linked if source_of(path, build, checkout).exists()]
    sources = {source_of(path, build, checkout) for path in objects}
    others = [path for path in checkout.glob("src/**/*.cpp") if path not in sources and OTHER_SYSTEM not in str(path)]
    used_elsewhere = set().union(*(words(path.read_text()) for path in others))
    functions = list(Graph(objdump(objects)).unreached_functions())
    readable = demangle([symbol for _, symbol in functions])
    for path, symbol in functions:
        name = plain_name(readable[symbol])
        if name and name not in used_elsewhere and words(source_of(path, build, checkout).read_text())[name] < 2:
            yield name, readable[symbol]


def allowed(text):
    return {line.split()[0] for line in text.splitlines() if line and not line.startswith("#")}


def faults(unused, allowed_names, known_names):
    """Unused functions by name without those that may be so, and rows for what is gone."""
    for name in sorted(unused.keys() - allowed_names):
        yield f"nothing uses {unused[name]}"
    for name in sorted(allowed_names - known_names):
        yield f"unused.txt allows {name}, which is gone"


def main():
    build, checkout = Path(sys.argv[1]), Path(sys.argv[2])
    texts = [path.read_text() for kind in ("h", "cpp", "def") for path in sorted(checkout.glob(f"src/**/*.{kind}"))]
    unused = {name: name for name in named_once(texts)} | dict(unreferred(build, checkout))
    found = list(faults(unused, allowed(ALLOWED.read_text()), set().union(*map(words, texts))))
    sys.exit("\n".join(found) if found else 0)


if __name__ == "__main__":
    main()
