#!/usr/bin/env python3
"""Reads an offer file (.dvf) and prints it as JSON: the league, the team and every offer.

    read_offers.py FILE

It is written from docs/formats.md alone and shares nothing with the client, so that what both of them read is what the
page says. Everything that the page fixes is demanded.

Exit codes: 0 read, 1 not a whole offer file (the reason is on standard error), 2 no such file or wrong usage.
"""

import struct
import sys

from slot_file import content_of, demand, magic, print_file, text, word

SLOT = 1014
START = b"DRVK Free Agents Files Version 1 - Start"
HEAD = 3
MOST = 996
SKATERS = 10000
GOALIES = 1000


def offer(record, team):
    player, maker, salary, years, bonus = struct.unpack_from("<hhihi", record)
    demand(1 <= player <= SKATERS + GOALIES, f"there is no player {player}")
    demand(maker == team, f"the offer to player {player} is of team {maker}")
    demand(1 <= years <= 9, f"the offer to player {player} is for {years} years")
    comment = record[14:SLOT]
    return {
        "id": player,
        "salary": salary,
        "years": years,
        "bonus": bonus,
        "comment": text(comment),
        "edited": any(comment),
    }


def read(data):
    content = content_of(data, (HEAD + MOST) * SLOT)
    demand(content[: 2 + len(START)] == magic(START), "the start magic is wrong")
    demand(len(content) % SLOT == 0 and HEAD < len(content) // SLOT, f"{len(content)} bytes are no whole offer file")
    demand(len(content) // SLOT <= HEAD + MOST, "there are too many offers")
    team = word(content, 2 * SLOT)
    demand(1 <= team <= 100, f"there is no team {team}")
    offers = [offer(content[at : at + SLOT], team) for at in range(HEAD * SLOT, len(content), SLOT)]
    order = [made["id"] for made in offers]
    demand(order == sorted(set(order)), "the offers are out of order")
    return {
        "wrapped": content is not data,
        "league": text(content[SLOT : SLOT + 5]),
        "team": team,
        "offers": offers,
    }


def main(arguments):
    if len(arguments) != 1 or arguments[0].startswith("-"):
        print(__doc__, file=sys.stderr)
        return 2
    return print_file(arguments[0], read, 2)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
