#!/usr/bin/env python3
"""Reads a draft file (.dvd) and prints it as JSON: the league, the team and whom it wants, in order.

    read_draft.py FILE

It is written from docs/formats.md alone and shares nothing with the client, so that what both of them read is what the
page says. Everything that the page fixes is demanded.

Exit codes: 0 read, 1 not a whole draft file (the reason is on standard error), 2 no such file or wrong usage.
"""

import sys

from slot_file import content_of, demand, magic, print_file, text, word

SLOT = 12
START = b"DRVKFDFV1S"
END = b"DRVKFDFV1E"
RANKS = 1001
RECORDS = 3 + RANKS + 1

# The ids of each kind of player: the first one, how many there are, and what is added to an index.
KINDS = {"skater": (1, 10000, 0), "goalie": (10001, 1000, 10000), "prospect": (20001, 300, 20000)}


def choice(number):
    for kind, (first, count, added) in KINDS.items():
        if first <= number < first + count:
            return [kind, number - added]
    demand(False, f"there is no player {number}")


def read(data):
    content = content_of(data, RECORDS * SLOT)
    demand(len(content) == RECORDS * SLOT, f"{len(content)} bytes are no whole draft file")
    demand(content[:SLOT] == magic(START), "the start magic is wrong")
    demand(content[-SLOT:] == magic(END), "the end magic is wrong")
    team = word(content, 2 * SLOT)
    demand(1 <= team <= 100, f"there is no team {team}")
    ids = [word(content, (3 + rank) * SLOT) for rank in range(RANKS)]
    ranked = ids[: ids.index(0)] if 0 in ids else ids
    demand(not any(ids[len(ranked) :]), "somebody stands behind the end of the list")
    return {
        "wrapped": content is not data,
        "league": text(content[SLOT : SLOT + 5]),
        "team": team,
        "choices": [choice(number) for number in ranked],
    }


def main(arguments):
    if len(arguments) != 1 or arguments[0].startswith("-"):
        print(__doc__, file=sys.stderr)
        return 2
    return print_file(arguments[0], read, None)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
