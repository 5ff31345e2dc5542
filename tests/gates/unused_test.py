#!/usr/bin/python3
"""Shows that the gate of unused functions finds what nothing reachable uses, and nothing else."""

import unittest

import unused

HEAD = "[  0](sec {0})(fl 0x00)(ty    0)(scl   3) (nx 1) 0x00000000 .text${1}\n"
PUBLIC = "[  0](sec {0})(fl 0x00)(ty   20)(scl   2) (nx 0) 0x00000000 {1}\n"
REFERS = "RELOCATION RECORDS FOR [{0}]:\nOFFSET   TYPE              VALUE\n00000004 DISP32            {1}\n\n"


def object_file(name, functions, refers):
    symbols = "".join(HEAD.format(n, f) + PUBLIC.format(n, f) for n, f in enumerate(functions, 1))
    return f"{name}:     file format pe-i386\n\n{symbols}\n" + "".join(REFERS.format(*pair) for pair in refers)


class UnusedTest(unittest.TestCase):
    def test_what_only_the_unused_and_the_unwinding_refer_to_is_unused(self):
        dump = object_file("main.obj", ["_WinMain@16"], [(".text$_WinMain@16", "__ZN4vexa4UsedEv")])
        dump += object_file(
            "a.obj",
            ["__ZN4vexa4UsedEv", "__ZN4vexa6UnusedEv", "__ZN4vexa5InnerEv"],
            [(".text$__ZN4vexa6UnusedEv", "__ZN4vexa5InnerEv"), (".eh_frame", "__ZN4vexa6UnusedEv")],
        )
        found = [symbol for _, symbol in unused.Graph(dump).unreached_functions()]
        self.assertEqual(found, ["__ZN4vexa5InnerEv", "__ZN4vexa6UnusedEv"])

    def test_declared_and_named_nowhere_else(self):
        texts = ['class A {\n    int gone(int n);  // gone\n    int used() const { return 1; }\n};\n', "int n = a.used();"]
        self.assertEqual(unused.named_once(texts), {"gone"})
        self.assertEqual(unused.named_once(["void f() {\n    const Pause drawing(window);\n    f();\n}\n"]), set())

    def test_names(self):
        self.assertEqual(unused.plain_name("vexa::Foo<int>::bar(std::string) const"), "bar")
        self.assertEqual(unused.plain_name("vexa::(anonymous namespace)::Drives[abi:cxx11]()"), "Drives")
        self.assertIsNone(unused.plain_name("vexa::Foo::~Foo()"))

    def test_rows_allow_what_is_there(self):
        found = list(unused.faults({"a": "a()", "b": "b()"}, {"a", "used", "gone"}, {"a", "b", "used"}))
        self.assertEqual(found, ["nothing uses b()", "unused.txt allows gone, which is gone"])


if __name__ == "__main__":
    unittest.main()
