#!/usr/bin/python3
"""Shows that the source gate finds each kind of fault, and none in sources that are right."""

import tempfile
import unittest
from pathlib import Path

import source_gate


class SourceGateTest(unittest.TestCase):
    def faults(self, name, text):
        """The faults of a project that holds the named file beside one header a layer."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            files = {f"src/{layer}/face.h": "#pragma once\n" for layer in source_gate.LAYERS}
            files[name] = text
            for path, contents in files.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(contents)
            return list(source_gate.faults(root))

    def test_right_sources(self):
        for name, text in [
            ("src/document/text/a.cpp", '#include "document/text/face.h"\n#include "language/face.h"\n#include <vector>\n'),
            ("src/ui/help/a.cpp", '#include "quickhelp/topics/face.h"\n'),
            ("src/ui/a.cpp", '#include <windows.h>\n#include "framework/face.h"\n#include "base/face.h"\n'),
            ("src/base/platform/win32/a.cpp", '#include <windows.h>\n#include "base/face.h"\n'),
            ("src/base/platform/host/a.cpp", "#include <sys/stat.h>\n#include <filesystem>\n"),
            ("src/base/a.cpp", "// text\n" * source_gate.LONGEST_FILE),
        ]:
            self.assertEqual(self.faults(name, text), [], name)

    def test_each_fault_is_found(self):
        for name, text in [
            ("src/base/a.h", '#include "document/text/face.h"\n'),  # upward
            ("src/document/text/a.h", '#include "document/view/face.h"\n'),
            ("src/search/a.h", '#include "quickhelp/face.h"\n'),  # sideways
            ("src/quickhelp/topics/a.h", '#include "quickhelp/face.h"\n'),  # out of a room of its own
            ("src/framework/a.h", '#include "base/face.h"\n'),
            ("src/shell/a.h", '#include "ui/face.h"\n'),
            ("src/language/a.h", '#include "face.h"\n'),  # not written from src/
            ("src/language/a.h", '#  include  "../ui/face.h"\n'),
            ("src/document/a.cpp", ""),
            ("src/language/a.cpp", "#include <windows.h>\n"),
            ("src/shell/a.cpp", "#include <CommCtrl.h>\n"),
            ("src/base/platform/host/a.cpp", "#include <windows.h>\n"),
            ("src/base/a.cpp", "#include <unistd.h>\n"),
            ("src/ui/a.cpp", "#include <iostream>\n"),
            ("src/base/platform/win32/a.cpp", "#include <filesystem>\n"),
            ("src/extra/a.cpp", ""),  # a folder without a layer
            ("src/a.cpp", ""),
            ("src/base/a.cpp", "// text\n" * (source_gate.LONGEST_FILE + 1)),
            ("tests/base/a.cpp", "// text\n" * (source_gate.LONGEST_FILE + 1)),
        ]:
            self.assertEqual(len(self.faults(name, text)), 1, f"{name}: {text[:60]}")


if __name__ == "__main__":
    unittest.main()
