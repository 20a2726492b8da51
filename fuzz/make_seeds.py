#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets: small valid files, and scripts that call every routine once.

    make_seeds.py FOLDER     one folder for each target below FOLDER
"""

import struct
import sys
import zlib
from pathlib import Path

SLOT = 3470
OFFER_SLOT = 1014
DRAFT_SLOT = 12
CLIENT_START = b"DRVK Client Files Version 1.12 - Start"
CLIENT_END = b"DRVK Client Files Version 1.12 - End"
LINES_START = b"DRVK Lineups Files Version 1.01 - Start"
LINES_END = b"DRVK Lineups Files Version 1.01 - End"
OFFERS_START = b"DRVK Free Agents Files Version 1 - Start"
DRAFT_START = b"DRVKFDFV1S"
DRAFT_END = b"DRVKFDFV1E"
LEAGUE_CODE = b"FUZZ!"
FILE_DATE = 501  # offset within the record of the league


def magic(text):
    return struct.pack("<H", len(text)) + text


def pieces(*parts):
    """Parts are (slot from 0, offset, bytes), in order."""
    out, last = b"", 0
    for slot, offset, content in parts:
        out += struct.pack("<HHB", slot - last, offset, len(content)) + content
        last = slot
    return out


def slots(*parts):
    """The same parts as the bytes of the slot file itself."""
    out = bytearray()
    for slot, offset, content in parts:
        at = slot * SLOT + offset
        out.extend(bytes(at - len(out)))
        out += content
    return bytes(out)


def wrapper(content, level=9):
    return struct.pack("<i", len(content)) + zlib.compress(content, level)


def literals_alone(content):
    """Codes of its own, and no repeats: the code of distances is there all the same."""
    stream = zlib.compressobj(9, strategy=zlib.Z_HUFFMAN_ONLY)
    return struct.pack("<i", len(content)) + stream.compress(content) + stream.flush()


def in_blocks(*contents):
    """Every one in a block of its own, empty ones between them."""
    stream = zlib.compressobj(9)
    blocks = [stream.compress(content) + stream.flush(zlib.Z_SYNC_FLUSH) for content in contents]
    return struct.pack("<i", sum(map(len, contents))) + b"".join(blocks) + stream.flush()


SOUND = 255  # instead of the number of what is wrong with a code


def own_codes(literals, distances):
    """The last block of a script: two codes, what is wrong with each and with which symbol, and the symbols of the block."""
    def code(second, splits, damage):
        wrong = [damage] if damage == SOUND else [damage, 4]
        return [second, len(splits)] + [byte for split in splits for byte in split] + wrong
    last_one_with_own_codes = 6
    symbols = [20] + [0, 1] * 10
    return bytes([last_one_with_own_codes] + code(40, [(0, 128), (1, 41), (2, 130)], literals)
                 + code(3, [(0, 5)], distances) + [0] + symbols)


def script(last_block, head=b""):
    """A stored block and one with the fixed codes come before. The stream's head is the usual one unless told."""
    return bytes([102, 240 if head else 0]) + head + bytes([0, 60, 65, 1]) + bytes([1, 4, 65, 66, 210, 0, 200]) + last_block


def client(end=16902):
    date = struct.pack("<d", 45000.5)
    player = struct.pack("<hh", -1, 1) + b"Ward Tilton".ljust(40)
    return [(0, 0, magic(CLIENT_START)), (1, FILE_DATE, date), (2, 0, b"A Prospect".ljust(40)),
            (302, 0, struct.pack("<hh", -1, 1) + b"Team".ljust(40)), (402, 0, player), (end, 0, magic(CLIENT_END))]


def lines(end=11004):
    team = struct.pack("<hh", -1, 1) + b"New York".ljust(40)
    change = struct.pack("<Bhh", 1, -1, 0)
    return [(0, 0, magic(LINES_START)), (1, 0, LEAGUE_CODE), (2, 0, struct.pack("<h", 1)), (3, 0, team),
            (4, 0, change), (5, 0, change), (10004, 0, change), (end, 0, magic(LINES_END))]


def records(slot, *contents):
    """One record a slot; the last one is not filled up."""
    return b"".join(content.ljust(slot, b"\0") for content in contents[:-1]) + contents[-1]


def offers(*numbers):
    made = [struct.pack("<hhihi", number, 1, 750000, 3, 1000) + b"Come".ljust(1000) for number in numbers]
    return records(OFFER_SLOT, magic(OFFERS_START), LEAGUE_CODE, struct.pack("<h", 1), *made)


def draft(*numbers):
    ranks = [struct.pack("<h", number) for number in numbers] + [bytes(2)] * (1001 - len(numbers))
    return records(DRAFT_SLOT, magic(DRAFT_START), LEAGUE_CODE, struct.pack("<h", 1), *ranks, magic(DRAFT_END))


def head(parts, count):
    return parts[:count]


def text(words):
    return struct.pack("<h", len(words)) + words


def label(words, drag=0):
    return text(words) + text(b"Team") + struct.pack("<iQ", 1, drag)


def entry(kind, told=b""):
    return bytes([kind]) + struct.pack("<H", len(told)) + told


def change(table, before, after, offset=0):
    """One byte in the first fourteen of a table."""
    return bytes([table, offset << 4 | 1, before, after, 0])


def journals():
    """Entries of a journal over a league in which nothing stands at the beginning of the calendar."""
    calendar, kept = 7, b"\0"
    one, two = change(calendar, 0, 5), change(calendar, 5, 9)
    step = entry(1, label(b"One") + one)
    yield "step", step
    yield "beginning", entry(4, change(calendar, 0, 1, 3)) + step
    yield "drag", entry(1, label(b"One", 7) + one) + entry(2, label(b"Two", 7) + kept + two)
    yield "gone", entry(1, label(b"One", 7) + one) + entry(2, label(b"Two", 7) + b"\1" + change(calendar, 5, 0))
    yield "folded", step + entry(3, kept + two)
    yield "undone", step + entry(5) + entry(6) + entry(1, label(b"Two") + two) + entry(5)
    yield "ended", step + entry(7) + entry(1, label(b"Two") + two)
    yield "saved", step + b"".join(entry(8, struct.pack("<Bi", file, 1)) for file in (1, 2, 3)) + entry(9)
    yield "password", entry(1, label(b"Password")) + step + entry(9)
    yield "offer", entry(1, label(b"Offer") + change(10, 0, 5, 4)) + entry(1, label(b"Rank") + change(11, 0, 5))
    yield "misfit", entry(1, label(b"One") + two)


def seeds():
    for name, entries in journals():
        yield "journal", name, b"\0" + entries
    yield "client_plain", "whole", pieces(*client())
    yield "client_plain", "head", pieces(*head(client(), 4))
    yield "client_plain", "wrong_end", pieces(*client(16901))
    yield "lines_plain", "whole", pieces(*lines())
    yield "lines_plain", "head", pieces(*head(lines(), 5))
    yield "lines_plain", "wrong_end", pieces(*lines(11003))
    yield "client_wrapped", "head", wrapper(slots(*head(client(), 3)))
    yield "client_wrapped", "stored", wrapper(slots(*head(client(), 1)), 0)
    yield "lines_wrapped", "head", wrapper(slots(*head(lines(), 6)))
    yield "lines_wrapped", "stored", wrapper(slots(*head(lines(), 3)), 0)
    for name, content, kind in (("offers", offers(1, 40, 60, 10003), 0), ("draft", draft(60, 40, 10003, 20001), 1)):
        yield "market_files", f"{name}_plain", bytes([kind + 2]) + content
        yield "market_files", f"{name}_wrapped", bytes([kind]) + wrapper(content)
    text = b"Lines of ten days, one after the other, one after the other. " * 4
    yield "wrapper", "out", bytes([40]) + wrapper(text)
    yield "wrapper", "out_stored", bytes([4]) + wrapper(text, 0)
    numbers = b" ".join(b"%d" % (number * number) for number in range(120))
    yield "wrapper", "out_own_codes", bytes([4]) + wrapper(numbers)
    yield "wrapper", "out_literals", bytes([88]) + literals_alone(numbers)
    yield "wrapper", "out_blocks", bytes([252]) + in_blocks(numbers + bytes(70000), numbers, numbers)
    yield "wrapper", "in", bytes([41]) + text
    yield "wrapper", "in_zeros", bytes([255]) + bytes(300)
    damages = ("lost", "longer", "shorter", "single", "none", "many", "too_many")
    for damage, name in enumerate(damages):
        yield "wrapper", f"script_{name}_literal", script(own_codes(damage, SOUND))
        yield "wrapper", f"script_{name}_distance", script(own_codes(SOUND, damage))
    yield "wrapper", "script_sound", script(own_codes(SOUND, SOUND))
    yield "wrapper", "script_wrong_head", script(own_codes(SOUND, SOUND), b"\x78\x00")
    yield "wrapper", "script_dictionary", script(own_codes(SOUND, SOUND), b"\x78\x20")
    for target, count in (("judges", 14), ("makers", 6)):
        for routine in range(count):
            # Everything that the flags choose, on day 1; first on the league as it is, then with a hurt skater.
            call = bytes([64 + routine, 0, 0, 7, 1, 0])
            hurt = bytes([3, 1, 1]) + struct.pack("<HB", 112, 1) + bytes([50])
            yield target, f"routine_{routine:02}", call + hurt + call
    for target in ("judges", "makers"):
        yield target, "clones", bytes([1, 1, 40, 2, 3, 10, 64, 0, 0, 0, 0, 0, 66, 0, 0, 0, 0, 0])
    yield "makers", "crowd", bytes([5, 25, 64, 0, 0, 0, 0, 0, 67, 0, 0, 0, 0, 0])


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    for target, name, content in seeds():
        folder = Path(sys.argv[1]) / target
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(content)


main()
