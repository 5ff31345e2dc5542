#!/usr/bin/python3
"""Checks the built program: that old and new Windows can start it, that it needs nothing but the system, and that the
system can protect it.

usage: program_gate.py VEXA.EXE
"""

import sys
from pathlib import Path

import pefile

HERE = Path(__file__).parent
LARGEST_PROGRAM = 1_000_000  # bytes
X86 = pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_I386"]
NEEDED_RESOURCES = ["RT_GROUP_ICON", "RT_MANIFEST", "RT_VERSION"]
KINDS = {"IMAGE_SUBSYSTEM_WINDOWS_GUI": "with windows", "IMAGE_SUBSYSTEM_WINDOWS_CUI": "for the console"}
NEEDED_FLAGS = {
    "IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE": "a random address (ASLR)",
    "IMAGE_DLLCHARACTERISTICS_NX_COMPAT": "data that is not executable (NX)",
}


def read_allowed(path):
    """DLL (lower case) to the names that may be imported from it."""
    allowed = {}
    for line in path.read_text().splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        if not line.startswith(" "):
            is_stubs = line.startswith("stubs ")
            names = allowed.setdefault(line.removeprefix("stubs ").rstrip(":").lower(), set())
        else:
            names.update(line.split()[:1] if is_stubs else line.split())
    return allowed


ALLOWED = read_allowed(HERE / "win98_imports.txt")


def import_faults(program):
    is_x86 = program.FILE_HEADER.Machine == X86
    for dll in getattr(program, "DIRECTORY_ENTRY_IMPORT", []):
        dll_name = dll.dll.decode().lower()
        if dll_name not in ALLOWED:
            yield f"imports {dll_name}, which is not one of the system's DLLs that we use"
            continue
        for function in dll.imports if is_x86 else []:
            name = function.name.decode() if function.name else f"number {function.ordinal}"
            if name not in ALLOWED[dll_name]:
                yield f"imports {name} from {dll_name}, which Windows 98 does not have"


def header_faults(program, subsystem="IMAGE_SUBSYSTEM_WINDOWS_GUI", relocates=True):
    header = program.OPTIONAL_HEADER
    if header.Subsystem != pefile.SUBSYSTEM_TYPE[subsystem]:
        yield f"is no program {KINDS[subsystem]}"
    version = (header.MajorSubsystemVersion, header.MinorSubsystemVersion)
    if program.FILE_HEADER.Machine == X86 and version != (4, 0):
        yield f"asks for version {version[0]}.{version[1]} of the system instead of 4.0"
    for flag, what in NEEDED_FLAGS.items():
        if not getattr(header, flag):
            yield f"does not allow {what}"
    has_none = relocates and not getattr(program, "DIRECTORY_ENTRY_BASERELOC", None)
    if program.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED or has_none:
        yield "has no relocations, so that it cannot be loaded at a random address"


def resource_faults(program):
    found = {entry.id for entry in getattr(getattr(program, "DIRECTORY_ENTRY_RESOURCE", None), "entries", [])}
    for kind in NEEDED_RESOURCES:
        if pefile.RESOURCE_TYPE[kind] not in found:
            yield f"has no resource of the kind {kind}"


def faults(data):
    program = pefile.PE(data=data)
    yield from import_faults(program)
    yield from header_faults(program)
    yield from resource_faults(program)
    if len(data) >= LARGEST_PROGRAM:
        yield f"has {len(data)} bytes, and must have fewer than {LARGEST_PROGRAM}"


def judge(faults_of):
    """Prints the faults of the program that the command line names; ends with 1 when there are any."""
    data = Path(sys.argv[1]).read_bytes()
    found = list(faults_of(data))
    print("\n".join(found) if found else f"{len(data)} bytes")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    judge(faults)
