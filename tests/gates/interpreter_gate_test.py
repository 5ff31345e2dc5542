#!/usr/bin/python3
"""Shows that the interpreter's gate finds each kind of fault, by spoiling copies of a program that passes it.

usage: interpreter_gate_test.py VexaDOS.PIF
"""

import sys
import unittest
from pathlib import Path

import pefile

import interpreter_gate

PROGRAM = b""


class InterpreterGateTest(unittest.TestCase):
    def assert_fault(self, data, text):
        found = list(interpreter_gate.faults(data))
        self.assertTrue(any(text in fault for fault in found), f"{text}: {found}")

    def test_the_program_itself_passes(self):
        self.assertEqual(list(interpreter_gate.faults(PROGRAM)), [])

    def test_faults(self):
        self.assertIn(b"KERNEL32.dll\0", PROGRAM)
        self.assert_fault(PROGRAM.replace(b"KERNEL32.dll\0", b"ADVAPI32.dll\0"), "besides kernel32.dll")
        self.assert_fault(PROGRAM + bytes(interpreter_gate.LARGEST), "bytes")
        windowed = pefile.PE(data=PROGRAM)
        windowed.OPTIONAL_HEADER.Subsystem = pefile.SUBSYSTEM_TYPE["IMAGE_SUBSYSTEM_WINDOWS_GUI"]
        self.assert_fault(bytes(windowed.write()), "console")


if __name__ == "__main__":
    PROGRAM = Path(sys.argv.pop()).read_bytes()
    unittest.main()
