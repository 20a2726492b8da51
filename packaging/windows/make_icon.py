"""Puts pictures into one icon for Windows, as they are.

    python3 make_icon.py ICON.ico PICTURE.png...

An icon is a head, an entry of 16 bytes for each picture (its width and height, where 0 stands for 256; colours, planes, bits,
length, place), and then the pictures. Fails when a file is no PNG or is wider or higher than 256.
"""

import struct
import sys


def entry_of(picture, place):
    if picture[:8] != b"\x89PNG\r\n\x1a\n":
        sys.exit("make_icon: not a PNG")
    width, height = struct.unpack(">II", picture[16:24])
    if not (0 < width <= 256 and 0 < height <= 256):
        sys.exit(f"make_icon: {width} x {height} is no size of an icon")
    return struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(picture), place)


def main():
    icon, *names = sys.argv[1:]
    pictures = [open(name, "rb").read() for name in names]
    head = struct.pack("<HHH", 0, 1, len(pictures))
    place = len(head) + 16 * len(pictures)
    entries = b""
    for picture in pictures:
        entries += entry_of(picture, place)
        place += len(picture)
    with open(icon, "wb") as file:
        file.write(head + entries + b"".join(pictures))


main()
