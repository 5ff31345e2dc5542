"""The fonts of a help file, numbered in the order in which its texts first need them."""

from manual import Style
from packing import ushort

BODY, TITLE, SUB_HEADING = "body", "title", "sub heading"
HALF_POINTS = {BODY: 20, TITLE: 28, SUB_HEADING: 22}
BOLD, ITALIC = 1, 2
MODERN, SWISS = 1, 3
FACES = ["Arial", "Courier New"]
FACE_SIZE = 20
WINDOW_COLOUR = bytes([1, 1, 0])  # stands for the text colour of the window


class Fonts:
    def __init__(self):
        self.numbers = {}
        self.number(Style(), BODY)

    def number(self, style, size=BODY):
        return self.numbers.setdefault((style, size), len(self.numbers))

    def descriptor(self, style, size):
        is_bold = style.bold or size != BODY
        attributes = (BOLD if is_bold else 0) | (ITALIC if style.italic else 0)
        family = MODERN if style.code else SWISS
        return (bytes([attributes, HALF_POINTS[size], family]) + ushort(1 if style.code else 0) + WINDOW_COLOUR +
                bytes(3))

    def content(self):
        faces = b"".join(face.encode().ljust(FACE_SIZE, b"\0") for face in FACES)
        descriptors = b"".join(self.descriptor(*font) for font in self.numbers)
        return (ushort(len(FACES)) + ushort(len(self.numbers)) + ushort(8) + ushort(8 + len(faces)) + faces +
                descriptors)
