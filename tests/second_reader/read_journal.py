#!/usr/bin/env python3
"""Reads a journal (.journal) and prints it as JSON: its head, what was done, and what is left to be brought back.

    read_journal.py FILE

It is written from docs/formats.md alone and shares nothing with the client, so that what both of them read is what the
page says. What stands behind the last whole entry is passed over.

Exit codes: 0 read, 1 no journal (the reason is on standard error), 2 no such file or wrong usage.
"""

import struct
import sys

from slot_file import NotWhole, demand, magic, print_file

MAGIC = magic(b"DRVKJNFV1S")
TABLES = (565, 347000, 1550155, 142142, 32500, 12000, 90000, 50000, 5000, 11154000, 2002)
TEAM, PASSWORD, PASSWORD_LENGTH = 3470, 247, 32
HEAD = 57
ENTRY = 13
BEHIND_LAST_DAY = 2958466
REPEAT = 16


def seal(before, data):
    number = 0xCBF29CE484222325
    for byte in struct.pack("<Q", before) + data:
        number = (number ^ byte) * 0x100000001B3 & 0xFFFFFFFFFFFFFFFF
    return number


LAYOUT = seal(0, struct.pack("<14i", *TABLES, TEAM, PASSWORD, PASSWORD_LENGTH))


class Bytes:
    """Takes values from the front of some bytes."""

    def __init__(self, data):
        self.data, self.at = data, 0

    def take(self, count):
        demand(0 <= count <= len(self.data) - self.at, "an entry is too short")
        self.at += count
        return self.data[self.at - count : self.at]

    def number(self, form):
        return struct.unpack("<" + form, self.take(struct.calcsize(form)))[0]

    def text(self):
        return self.take(self.number("h")).decode("cp1252", "replace")

    def sevens(self):
        number = shift = 0
        while True:
            byte = self.number("B")
            number |= (byte & 127) << shift
            if byte < 128:
                return number
            shift += 7
            demand(shift < 28, "a number is too long")

    def half(self, number):
        return number if number < 15 else 15 + self.sevens()

    def flag(self):
        number = self.number("B")
        demand(number <= 1, "a flag is neither 0 nor 1")
        return number == 1

    def rest(self):
        return self.take(len(self.data) - self.at)

    def end(self):
        demand(self.at == len(self.data), "an entry is too long")


def difference(data):
    """The bytes that differ: (table, offset) to (before, after)."""
    changed, source, last_table = {}, Bytes(data), 0
    while source.at < len(data):
        table = source.number("B")
        demand(last_table < table <= len(TABLES), "the tables are out of order")
        last_table, end, length, skipped = table, 0, 0, 0
        while head := source.number("B"):
            count = 1
            if head == REPEAT:
                demand(length, "a repeat in front of a run")
                count = source.sevens()
                demand(count > 1, "a repeat of too few")
            else:
                skipped, length = source.half(head >> 4), source.half(head & 15)
            demand(length, "a run of nothing")
            for _ in range(count):
                start = end + skipped
                before, after = source.take(length), source.take(length)
                end = start + length
                demand(end <= TABLES[table - 1], "a run behind its table")
                for place, values in enumerate(zip(before, after), start):
                    demand(values[0] != values[1], "a byte that does not differ")
                    demand(table != 2 or not 0 <= place % TEAM - PASSWORD < PASSWORD_LENGTH, "a password")
                    changed[table, place] = values
        demand(length, "a table without a run")
    return changed


def then(first, second):
    """What comes of one difference and then another."""
    both = dict(first)
    for place, (before, after) in second.items():
        before = both[place][0] if place in both else before
        both[place] = (before, after)
        if before == after:
            del both[place]
    return both


class Work:
    """What the entries come to."""

    def __init__(self):
        self.beginning, self.steps, self.done, self.saved, self.kept = {}, [], 0, [], []

    def label(self, source):
        words, where = source.text(), source.text()
        return {"words": words, "where": where, "team": source.number("i"), "drag": source.number("Q")}

    def last(self):
        demand(self.done > 0, "no step is done")
        return self.steps[self.done - 1]

    def more(self, source, label):
        step, gone, more = self.last(), source.flag(), difference(source.rest())
        demand(label is None or label["team"] == step["team"], "the drag of another team")
        both = then(step["change"], more)
        demand(not (gone and both), "a step that is gone is not")
        step.update(label or {}, change=both)
        if gone:
            self.done -= 1
            del self.steps[self.done]

    def closed(self, source):
        label = self.label(source)
        change = difference(source.rest())
        if self.steps and self.steps[0]["team"] != label["team"]:
            self.end()
        self.steps[self.done :] = [dict(label, change=change)]
        self.done += 1

    def merged(self, source):
        self.more(source, self.label(source))

    def folded(self, source):
        self.more(source, None)

    def folded_into_beginning(self, source):
        change = difference(source.rest())
        if self.done:
            self.end()
        self.beginning = then(self.beginning, change)

    def undone(self, source):
        source.end()
        self.last()
        self.done -= 1

    def redone(self, source):
        source.end()
        demand(self.done < len(self.steps), "no step is undone")
        self.done += 1

    def ended(self, source):
        source.end()
        self.end()

    def end(self):
        for step in self.steps[: self.done]:
            self.beginning = then(self.beginning, step["change"])
        self.steps, self.done = [], 0

    @staticmethod
    def file(source, first):
        kind, team = source.number("B"), source.number("i")
        source.end()
        demand(first <= kind <= 3, "no such file")
        return [("lines", "offers", "draft")[kind - 1], team]

    def file_saved(self, source):
        self.saved.append(self.file(source, 1))

    def market_kept(self, source):
        self.kept.append(self.file(source, 2))

    def brought_back(self, source):
        source.end()
        self.done -= sum(not step["change"] for step in self.steps[: self.done])
        self.steps = [step for step in self.steps if step["change"]]

    def take(self, kind, told):
        kinds = (self.closed, self.merged, self.folded, self.folded_into_beginning, self.undone, self.redone,
                 self.ended, self.file_saved, self.brought_back, self.market_kept)
        demand(1 <= kind <= len(kinds), "no such kind")
        kinds[kind - 1](Bytes(told))


def told(change):
    return [[table, place, before, after] for (table, place), (before, after) in sorted(change.items())]


def read(data):
    demand(data[: len(MAGIC)] == MAGIC, "it is no journal")
    demand(len(data) >= HEAD + 8, "the head is not whole")
    sealed = seal(0, data[:HEAD])
    demand(struct.unpack_from("<Q", data, HEAD)[0] == sealed, "the seal of the head is wrong")
    demand(struct.unpack_from("<Q", data, 12)[0] == LAYOUT, "the tables lie otherwise")
    file_date, begun = struct.unpack_from("<2d", data, 41)
    work, entries, at = Work(), 0, HEAD + 8
    while len(data) - at >= ENTRY + 8:
        length, kind, time = struct.unpack_from("<iBd", data, at)
        if not 0 <= length <= len(data) - at - ENTRY - 8 or not 0 <= time < BEHIND_LAST_DAY:
            break
        end = at + ENTRY + length
        over = seal(sealed, data[at:end])
        if struct.unpack_from("<Q", data, end)[0] != over:
            break
        try:
            work.take(kind, data[at + ENTRY : end])
        except NotWhole:
            break
        sealed, at, entries = over, end + 8, entries + 1
    return {
        "league": data[20:25].decode("cp1252", "replace"),
        "digest": data[25:41].hex(),
        "file_date": file_date,
        "begun": begun,
        "entries": entries,
        "whole": at,
        "done": work.done,
        "saved": work.saved,
        "kept": work.kept,
        "beginning": told(work.beginning),
        "steps": [dict(step, change=told(step["change"])) for step in work.steps],
    }


def main(arguments):
    if len(arguments) != 1 or arguments[0].startswith("-"):
        print(__doc__, file=sys.stderr)
        return 2
    return print_file(arguments[0], read, None)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
