"""Pictures as help files hold them: bitmaps with a palette, packed."""

from PIL import Image

from packing import long, pack_lz77, pack_runs, packed_ulong, packed_ushort, ushort

MAGIC = 0x706C
FIRST_FORM = 8  # where the only form of the picture begins
BITMAP = 6
RUNS_THEN_LZ77 = 3
DPI = 96
MOST_COLOURS = 256


def colours_of(image):
    """Sorted, so that the same picture gives the same bytes; none when there are too many."""
    counted = image.getcolors(MOST_COLOURS)
    return sorted(colour for _, colour in counted) if counted else None


def pixel_rows(image, colours):
    numbers = {colour: number for number, colour in enumerate(colours)}
    pixels = [numbers[colour] for colour in image.getdata()]
    return [pixels[start:start + image.width] for start in range(0, len(pixels), image.width)]


def packed_row(row, bits):
    """The highest bits first, filled up to 32 bits."""
    in_a_byte = 8 // bits
    out = bytearray()
    for start in range(0, len(row), in_a_byte):
        part = row[start:start + in_a_byte] + [0] * (in_a_byte - len(row[start:start + in_a_byte]))
        value = 0
        for number in part:
            value = value << bits | number
        out.append(value)
    return bytes(out) + bytes(-len(out) % 4)


def depth(colours):
    return next(bits for bits in (1, 4, 8) if len(colours) <= 1 << bits)


def picture_bytes(path):
    """The internal file of a picture. A ValueError says why it cannot be made."""
    try:
        with Image.open(path) as opened:
            image = opened.convert("RGB")
    except OSError as error:
        raise ValueError("cannot be read") from error
    colours = colours_of(image)
    if not colours:
        raise ValueError(f"has more than {MOST_COLOURS} colours")
    bits = depth(colours)
    rows = pixel_rows(image, colours)
    data = pack_lz77(pack_runs(b"".join(packed_row(row, bits) for row in reversed(rows))))
    palette = b"".join(bytes([blue, green, red, 0]) for red, green, blue in colours)
    head = (bytes([BITMAP, RUNS_THEN_LZ77]) + packed_ulong(DPI) + packed_ulong(DPI) + packed_ushort(1) +
            packed_ushort(bits) + packed_ulong(image.width) + packed_ulong(image.height) +
            packed_ulong(len(colours)) + packed_ulong(0) + packed_ulong(len(data)) + packed_ulong(0))
    head += long(len(head) + 8 + len(palette)) + long(0)
    return ushort(MAGIC) + ushort(1) + long(FIRST_FORM) + head + palette + data
