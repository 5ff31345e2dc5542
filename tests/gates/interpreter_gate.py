#!/usr/bin/python3
"""Checks the built starter of the command interpreter: that it is small, needs the system's kernel alone, and is as safe to
load as the program is.

usage: interpreter_gate.py VexaDOS.PIF
"""

import pefile

import program_gate

LARGEST = 16 * 1024  # bytes


def faults(data):
    program = pefile.PE(data=data)
    yield from program_gate.import_faults(program)
    # 64-bit code addresses relative to itself, so a program as small as this has nothing to relocate there.
    relocates = program.FILE_HEADER.Machine == program_gate.X86
    yield from program_gate.header_faults(program, "IMAGE_SUBSYSTEM_WINDOWS_CUI", relocates)
    for dll in getattr(program, "DIRECTORY_ENTRY_IMPORT", []):
        if dll.dll.decode().lower() != "kernel32.dll":
            yield f"imports {dll.dll.decode()} besides kernel32.dll"
    if len(data) >= LARGEST:
        yield f"has {len(data)} bytes, and must have fewer than {LARGEST}"


if __name__ == "__main__":
    program_gate.judge(faults)
