#!/usr/bin/python3
"""Shows that a small manual becomes a help file, the same each time, and that each kind of fault is told with its
line."""

import random
import shutil
import struct
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[2] / "tools/help"))

import compile_help  # noqa: E402
import make_html  # noqa: E402
from btree import HEADER_SIZE, BTree  # noqa: E402
from context_hash import context_hash  # noqa: E402
from packing import long, pack_lz77, pack_runs  # noqa: E402
from PIL import Image  # noqa: E402

PROJECT = {
    "src/shell/commands.def": 'VEXA_MENU(Bar, "&Help")\n'
                              'VEXA_COMMAND(Find, 306, "&Find...\\tAlt+S", "Alt+S, F5", "Search", Silent, Document)\n'
                              'VEXA_COMMAND(HelpOnKeys, 702, "&Keys", "F5", "Show the keys", Silent, Nothing)\n'
                              'VEXA_COMMAND(LineEnd, 904, "", "End", "Go to the end", Silent, Document)\n',
    "src/ui/resources/dialogs.rc": "IDD_FIND DIALOG 0, 0, 9, 9\n",
    "src/ui/resources/dialog_controls.h": "#define IDD_FIND 1100\n",
    "docs/keys.md": "| Key | What it does |\n|---|---|\n| Left | Go left |\n",
    "manual/contents.md": "# Sample\n\n- [Finding](find.md)\n- [Words](glossary.md)\n",
    "manual/find.md": "# Finding\n"
                      "<!-- keywords: a, b; find; search | commands: Find, HelpOnKeys, LineEnd | dialogs: IDD_FIND -->\n\n"
                      "**Bold** `code` and a [word](glossary.md#word), [below](#more-about-it).\n\n"
                      "1. one\n   - two\n\n     still two\n\n"
                      "<!-- table: commands -->\n\n<!-- table: keys -->\n\n<!-- table: editing keys -->\n\n"
                      "### More about it\n\n![A picture](pictures/a.png)\n\n```c\nint a;\n```\n",
    "manual/glossary.md": "# Words\n\n## Word\n<!-- keywords: Search -->\n\nWhat one is.\n",
}


class ManualTest(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        for name, text in PROJECT.items():
            self.write(name, text)
        picture = self.root / "manual/pictures/a.png"
        picture.parent.mkdir()
        Image.effect_noise((21, 9), 50).save(picture)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def compiled(self):
        return compile_help.compile_manual(self.root, self.root / "manual")

    def test_a_right_manual_gives_the_same_file_each_time(self):
        content, faults = self.compiled()
        self.assertEqual(faults, [])
        self.assertEqual(content, self.compiled()[0])
        self.assertEqual(content.count(b"In this chapter"), 1)  # that of the glossary has no links of its own
        for text in [b"Sample\0", b"What one is.", b"find\0", b"search\0", b"a, b\0", b"Go left", b"Line end", b"|bm0\0"]:
            self.assertIn(text, content)
        self.assertNotIn(b"Search\0\1", content)  # the index has one spelling of it

    def test_each_fault_is_told_with_its_line(self):
        for name, old, new, fault in [
            ("find.md", "glossary.md#word", "glossary.md#world", 'find.md:4: a link leads to "world"'),
            ("find.md", "glossary.md#word", "words.md#word", 'find.md:4: a link leads to the chapter "words"'),
            ("find.md", "glossary.md#word", "../README", 'find.md:4: a link leads to "../README"'),
            ("find.md", "**Bold**", "**Bold**\n\u2192", 'find.md:5: "\u2192" is no character of the help file'),
            ("find.md", "**Bold**", "<b>Bold</b>", "find.md:4: html_inline is not part"),
            ("find.md", "**Bold**", "> Bold", "find.md:4: blockquote is not part"),
            ("find.md", "**Bold**", "![a](pictures/a.png)", "find.md:4: image is not part"),
            ("find.md", "     still", "     - three\n\n     still", "find.md:9: a list stands inside"),
            ("find.md", "### More", "#### More", "find.md:17: a heading of this level (h4)"),
            ("find.md", "pictures/a.png", "pictures/b.png", 'find.md:19: the picture "b.png" does not exist'),
            ("find.md", "pictures/a.png", "contents.md", 'find.md:19: the picture "contents.md" cannot be read'),
            ("find.md", "table: keys", "table: places", 'find.md:13: "places" is no table'),
            ("find.md", "keywords:", "words:", 'find.md:2: "words" says nothing about a topic'),
            ("find.md", "find; search", "f" * 80, "find.md:2: the keyword"),
            ("find.md", "Find, ", "", 'commands.def:2: no topic describes the command "Find"'),
            ("find.md", "Find, ", "Find, Lose, ", 'find.md:1: "Lose" is no command'),
            ("find.md", " | dialogs: IDD_FIND", "", 'dialogs.rc:1: no topic describes the dialog "IDD_FIND"'),
            ("find.md", "# Finding\n", "Text\n\n# Finding\n", "find.md:1: stands before the first heading"),
            ("glossary.md", "Search", "Search | commands: Find", 'glossary.md:3: the command "Find" has another topic'),
            ("glossary.md", "## Word", "## Words", 'glossary.md:3: "words" is the id of another heading'),
            ("glossary.md", "What one is.", "<!-- keywords: a -->", "glossary.md:6: describes a topic, but"),
            ("glossary.md", "# Words\n\n## Word", "Word", "glossary.md:1: the chapter has no topic"),
            ("contents.md", "- [Words](glossary.md)", "", "glossary.md:1: the contents do not lead to"),
        ]:
            with self.subTest(fault):
                text = PROJECT[f"manual/{name}"]
                self.assertIn(old, text)
                self.write(f"manual/{name}", text.replace(old, new, 1))
                content, faults = self.compiled()
                self.assertIsNone(content)
                self.assertTrue(any(fault in told for told in faults), faults)
                self.write(f"manual/{name}", text)

    def test_a_chapter_that_is_no_text_is_told(self):
        (self.root / "manual/find.md").write_bytes(b"# Finding\n\n\xff\n")
        self.assertIn("find.md:3: is no text in UTF-8", self.compiled()[1][0])

    def test_names_of_one_hash_are_told(self):
        self.assertEqual(context_hash("contents"), 0x25F4558A)
        self.write("manual/glossary.md", "# Words\n\n## Word\n\n## Ax\n\n## B-\n")
        self.assertIn('glossary.md:7: "glossary#b-" has the hash of "glossary#ax"', self.compiled()[1][0])

    @unittest.skipUnless(shutil.which("pandoc"), "makes HTML")
    def test_the_pages_have_the_anchors_that_links_lead_to(self):
        faults = make_html.make_pages(self.root, self.root / "manual", self.root / "html")
        self.assertEqual(faults, [])
        page = (self.root / "html/find.html").read_text()
        for text in ['href="glossary.html#word"', 'id="more-about-it"', 'href="find.html#finding">Find', "Go left"]:
            self.assertIn(text, page)
        self.assertTrue((self.root / "html/pictures/a.png").is_file())


def unpacked_runs(data):
    out, position = b"", 0
    while position < len(data):
        count = data[position]
        literal = count & 0x80
        out += data[position + 1:position + 1 + (count & 0x7F)] if literal else data[position + 1:position + 2] * count
        position += 1 + (count & 0x7F if literal else 1)
    return out


def unpacked_lz77(data):
    out, position = bytearray(), 0
    while position < len(data):
        flags, position = data[position], position + 1
        for bit in range(8):
            if position >= len(data):
                break
            if flags >> bit & 1:
                word, = struct.unpack_from("<H", data, position)
                for _ in range((word >> 12) + 3):
                    out.append(out[-(word & 0xFFF) - 1])
            else:
                out.append(data[position])
            position += 1 + (flags >> bit & 1)
    return bytes(out)


class FormTest(unittest.TestCase):
    def test_packed_bytes_come_back(self):
        chance = random.Random(1)
        for size in [0, 1, 2, 3, 17, 128, 5000, 12000]:
            for most in [1, 3, 255]:
                data = bytes(chance.randrange(most) for _ in range(size))
                self.assertEqual(unpacked_runs(pack_runs(data)), data, (size, most))
                self.assertEqual(unpacked_lz77(pack_lz77(data)), data, (size, most))

    def test_every_key_of_a_deep_tree_is_found(self):
        keys = [b"%05d\0" % number for number in range(2000)]
        tree = BTree([(key, long(number)) for number, key in enumerate(keys)], "z4", 128).bytes
        root, _, pages, levels, count = struct.unpack_from("<hhhhi", tree, 26)
        self.assertEqual((len(tree), count), (HEADER_SIZE + 128 * pages, 2000))
        self.assertGreater(levels, 2)
        for number, key in enumerate(keys):
            page = root
            for _ in range(levels - 1):
                _, entries, child = struct.unpack_from("<hhh", tree, HEADER_SIZE + 128 * page)
                start = HEADER_SIZE + 128 * page + 6
                for entry in range(entries):
                    at = start + entry * (len(key) + 2)
                    if tree[at:at + len(key)] <= key:
                        child, = struct.unpack_from("<h", tree, at + len(key))
                page = child
            leaf = tree[HEADER_SIZE + 128 * page:HEADER_SIZE + 128 * (page + 1)]
            self.assertIn(key + long(number), leaf)


if __name__ == "__main__":
    unittest.main()
