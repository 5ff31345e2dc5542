#!/usr/bin/python3
"""Shows that the gate of pages finds each kind of name that nothing has, and takes those that something has."""

import tempfile
import unittest
from pathlib import Path

import pages_gate

FILES = {
    "README.md": "`src/base`\n",
    "src/base/text.h": "",
    "tests/base/text_test.cpp": "TEST(Text, IsCut) {}\n",
    "tests/fuzz/text_fuzz.cpp": "",
}


class PagesGateTest(unittest.TestCase):
    def faults(self, line):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for path, contents in {**FILES, "docs/security.md": line + "\n"}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(contents)
            return len(list(pages_gate.faults(root)))

    def test_names_of_what_is_there(self):
        self.assertEqual(self.faults("| `src/base/` `src/*/text.h` | `text_fuzz`, `Text.*`, `All/Text.IsCut` |"), 0)
        self.assertEqual(self.faults("`Text.Length` and `other_fuzz` outside of a promise"), 0)

    def test_each_fault_is_found(self):
        for span in ["src/text", "tests/base/*.txt", "other_fuzz", "Other.*", "Text.IsJoined"]:
            self.assertEqual(self.faults(f"| a promise | `{span}` |"), 1, span)


if __name__ == "__main__":
    unittest.main()
