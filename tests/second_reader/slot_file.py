"""What the readers of the saved files share: the wrapper, slots, magics and texts, as docs/formats.md tells them."""

import json
import struct
import sys
import zlib

CODE_PAGE = "cp1252"


class NotWhole(Exception):
    """The file breaks the format; the text says how."""


def demand(condition, reason):
    if not condition:
        raise NotWhole(reason)


def content_of(data, longest):
    """The slot file in `data`: itself when it is bare, else what its wrapper holds, `longest` bytes at most."""
    if data[2:6] == b"DRVK":
        return data
    demand(len(data) > 6, "too short for a wrapper")
    (length,) = struct.unpack_from("<i", data)
    demand(0 < length <= longest, f"the wrapper claims {length} bytes")
    demand(data[4:6] == b"\x78\xda", "the stream does not begin as one of level 9")
    stream = zlib.decompressobj()
    try:
        content = stream.decompress(data[4:], longest + 1)
    except zlib.error as error:
        raise NotWhole(f"the stream is damaged: {error}") from error
    demand(stream.eof, "the stream has no end")
    demand(not stream.unused_data, "something stands behind the stream")
    demand(len(content) == length, f"the wrapper claims {length} bytes and holds {len(content)}")
    return content


def magic(text):
    return struct.pack("<h", len(text)) + text


def text(field):
    return field.decode(CODE_PAGE, "replace").strip(" \0")


def word(data, at):
    return struct.unpack_from("<h", data, at)[0]


def print_file(path, read, indent):
    """Prints what `read` makes of the file's bytes, as JSON. The exit code is 0, 1 for a bad file, 2 for none."""
    try:
        with open(path, "rb") as file:
            data = file.read()
    except OSError as error:
        print(f"{path}: {error.strerror}", file=sys.stderr)
        return 2
    try:
        result = read(data)
    except NotWhole as reason:
        print(f"{path}: {reason}", file=sys.stderr)
        return 1
    json.dump(result, sys.stdout, indent=indent)
    print()
    return 0
