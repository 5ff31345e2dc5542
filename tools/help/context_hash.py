"""The hash under which a help file knows the name of a context."""

SPECIAL = {"!": 11, "[": 11, "\\": 12, "]": 13, "^": 14, "0": 10, ".": 12, "_": 13}


def value_of(character):
    if character in SPECIAL:
        return SPECIAL[character]
    if "A" <= character <= "Z":
        return ord(character) - ord("A") + 17
    return ord(character) - (0x50 if 0x60 <= ord(character) <= 0x7F else 0x30)


def context_hash(name):
    """Signed, 32 bits. Letter case does not matter; the name is ASCII."""
    value = 0
    for character in name.upper():
        value = (value * 43 + value_of(character)) & 0xFFFFFFFF
    return value - (1 << 32) if value >= 1 << 31 else value
