#!/usr/bin/python3
"""Shows that the weight gate counts each part of a program where it belongs, and finds growth."""

import unittest

import weight

MAP = """Discarded input sections
 .text          0x00000000      0x100 src/base/libvexa_base.a(file.cpp.obj)
Linker script and memory map
LOAD src/base/libvexa_base.a
 *(.text)
 .text          0x00401000       0x10 src/base/libvexa_base.a(file.cpp.obj)
 .text$_ZN4vexa4File5closeEv
                0x00401010       0x20 src/base/libvexa_base.a(file.cpp.obj)
 .rdata         0x00402000       0x08 src/ui/CMakeFiles/vexa.dir/main.cpp.obj
 .eh_frame      0x00403000       0x04 /usr/lib/gcc/12-win32/libstdc++.a(new_op.o)
 .rsrc          0x00404000       0x40 src/ui/CMakeFiles/vexa.dir/vexa.rc.res
 .debug_info    0x00405000     0x1000 src/ui/CMakeFiles/vexa.dir/main.cpp.obj
"""


class WeightTest(unittest.TestCase):
    def test_each_part_counts_where_it_comes_from(self):
        expected = {"src/base": 0x30, "src/ui": 8, "libstdc++": 4, "resources": 0x40}
        self.assertEqual(dict(weight.weights(MAP)), expected)

    def test_growth(self):
        self.assertIsNone(weight.growth_fault(105_000, 100_000))
        self.assertIn("105001", weight.growth_fault(105_001, 100_000))


if __name__ == "__main__":
    unittest.main()
