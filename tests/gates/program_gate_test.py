#!/usr/bin/python3
"""Shows that the program gate finds each kind of fault, by spoiling copies of a program that passes it.

usage: program_gate_test.py VEXA.EXE
"""

import sys
import unittest
from pathlib import Path

import pefile

import program_gate

PROGRAM = b""


def spoiled(change):
    """The program after a change of its parsed headers."""
    program = pefile.PE(data=PROGRAM)
    change(program)
    return bytes(program.write())


def without_directory(name):
    def change(program):
        entry = program.OPTIONAL_HEADER.DATA_DIRECTORY[pefile.DIRECTORY_ENTRY[name]]
        entry.VirtualAddress = entry.Size = 0

    return change


def setting(**values):
    def change(program):
        for name, value in values.items():
            setattr(program.OPTIONAL_HEADER, name, value)

    return change


class ProgramGateTest(unittest.TestCase):
    def assert_fault(self, data, text):
        found = list(program_gate.faults(data))
        self.assertTrue(any(text in fault for fault in found), f"{text}: {found}")

    def is_x86(self):
        return pefile.PE(data=PROGRAM).FILE_HEADER.Machine == program_gate.X86

    def renamed(self, old, new):
        self.assertTrue(old in PROGRAM, f"{old} is not in the program")
        return PROGRAM.replace(old, new)

    def test_the_program_itself_passes(self):
        self.assertEqual(list(program_gate.faults(PROGRAM)), [])

    def test_imports(self):
        self.assert_fault(self.renamed(b"msvcrt.dll\0", b"ucrt00.dll\0"), "ucrt00.dll")
        if self.is_x86():
            newer = self.renamed(b"SetFilePointer\0", b"GetFileSizeEx_\0")
            self.assert_fault(newer, "GetFileSizeEx_")

    def test_headers(self):
        self.assert_fault(spoiled(setting(Subsystem=3)), "windows")
        self.assert_fault(spoiled(setting(DllCharacteristics=0x0100)), "ASLR")
        self.assert_fault(spoiled(setting(DllCharacteristics=0x0040)), "NX")
        self.assert_fault(spoiled(without_directory("IMAGE_DIRECTORY_ENTRY_BASERELOC")), "relocations")
        if self.is_x86():
            self.assert_fault(spoiled(setting(MajorSubsystemVersion=5)), "5.0")

    def test_resources_and_size(self):
        bare = spoiled(without_directory("IMAGE_DIRECTORY_ENTRY_RESOURCE"))
        for kind in program_gate.NEEDED_RESOURCES:
            self.assert_fault(bare, kind)
        self.assert_fault(PROGRAM + bytes(program_gate.LARGEST_PROGRAM), "bytes")


if __name__ == "__main__":
    PROGRAM = Path(sys.argv.pop()).read_bytes()
    unittest.main()
