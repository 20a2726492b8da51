#!/usr/bin/env python3
"""Reads a lines file (.dvl) and prints it as JSON.

    read_lines.py FILE          team, league, the line-ups of the next game and counts
    read_lines.py --all FILE    every line-up of all ten days, and the word on every player besides

It is written from docs/formats.md alone and shares nothing with the client, so that what both of them read is what the
page says. Everything that the page fixes is demanded.

Exit codes: 0 read, 1 not a whole lines file (the reason is on standard error), 2 no such file or wrong usage.
"""

import struct
import sys

from slot_file import content_of, demand, magic, print_file, text, word

SLOT = 3470
START = b"DRVK Lineups Files Version 1.01 - Start"
END = b"DRVK Lineups Files Version 1.01 - End"
SKATERS = 10000
GOALIES = 1000
RECORDS = 4 + SKATERS + GOALIES + 1
DAYS = 10

TEAM_PRO_LINES = 343
TEAM_FARM = 1863
FARM_LINES = TEAM_FARM + 47
LINES_LENGTH = 152

# Name, offset, numbers (lines or units), places. Without places the words are a plain row.
LINE_FIELDS = [
    ("NormalForward", 0, 4, 3),
    ("NormalDefense", 24, 4, 2),
    ("PPForward", 40, 2, 3),
    ("PPDefense", 52, 2, 2),
    ("PKForward", 60, 2, 2),
    ("PKDefense", 68, 2, 2),
    ("FourVsFourForward", 76, 2, 2),
    ("FourVsFourDefense", 84, 2, 2),
    ("PK3Reserved", 92, 2, None),
    ("PK3Forward", 96, 2, None),
    ("PK3Defense", 100, 2, 2),
    ("StartGoalie", 108, 1, None),
    ("BackupGoalie", 110, 1, None),
    ("ExtraForward", 112, 5, None),
    ("ExtraDefense", 122, 5, None),
    ("PenaltyShot", 132, 5, None),
    ("Strategy", 142, 3, None),
    ("PullGoalerMinGoal", 148, 1, None),
    ("PullGoalerMinPct", 150, 1, None),
]


def record(content, number, length):
    at = (number - 1) * SLOT
    return content[at : at + length]


def line_up(data):
    """The fields of one line-up: a table as a list of its numbers, each a list of its places."""
    fields = {}
    for name, offset, numbers, places in LINE_FIELDS:
        if places is not None:
            value = [[word(data, offset + 2 * (n + p * numbers)) for p in range(places)] for n in range(numbers)]
        elif numbers > 1:
            value = [word(data, offset + 2 * n) for n in range(numbers)]
        else:
            value = word(data, offset)
        fields[name] = value
    return fields


def line_ups(team, offset):
    return [line_up(team[offset + day * LINES_LENGTH :]) for day in range(DAYS)]


def filled(lines):
    """How many places of a line-up hold somebody."""
    people = [name for name, *_ in LINE_FIELDS if name != "Strategy" and not name.startswith("PullGoaler")]
    count = 0
    for name in people:
        value = lines[name]
        row = value if isinstance(value, list) else [value]
        for element in row:
            count += sum(1 for index in (element if isinstance(element, list) else [element]) if index != 0)
    return count


def roster_words(content, first, count):
    """Of each player: status, protected and offered for trade; the last two as the words they are."""
    return [list(struct.unpack("<Bhh", record(content, first + i, 5))) for i in range(count)]


def read(data, everything):
    content = content_of(data, RECORDS * SLOT)
    shortest = (RECORDS - 1) * SLOT + len(magic(END))
    demand(len(content) in (shortest, RECORDS * SLOT), f"{len(content)} bytes are no whole lines file")
    demand(record(content, 1, len(magic(START))) == magic(START), "the start magic is wrong")
    demand(record(content, RECORDS, len(magic(END))) == magic(END), "the end magic is wrong")

    code = record(content, 2, 5)
    number = word(record(content, 3, 2), 0)
    demand(1 <= number <= 100, f"there is no team {number}")
    team = record(content, 4, SLOT)
    pro = line_ups(team, TEAM_PRO_LINES)
    farm = line_ups(team, FARM_LINES)
    skaters = roster_words(content, 5, SKATERS)
    goalies = roster_words(content, 5 + SKATERS, GOALIES)

    result = {
        "wrapped": content is not data,
        "league": text(code),
        "team": number,
        "name": text(team[4:44]),
        "abbreviation": text(team[44:47]),
        "farm": text(team[TEAM_FARM : TEAM_FARM + 40]),
        "password": text(team[247:279]),
        "counts": {
            "pro": sum(1 for status, _, _ in skaters + goalies if status == 2),
            "scratched": sum(1 for status, _, _ in skaters + goalies if status == 1),
            "farm": sum(1 for status, _, _ in skaters + goalies if status == 0),
            "protected": sum(1 for _, protected, _ in skaters + goalies if protected == -1),
            "offered": sum(1 for _, _, offered in skaters + goalies if offered == -1),
            "filled": {"pro": [filled(day) for day in pro], "farm": [filled(day) for day in farm]},
        },
    }
    if everything:
        result.update({"pro": pro, "farm_lines": farm, "skaters": skaters, "goalies": goalies})
    else:
        result.update({"pro": pro[0], "farm_lines": farm[0]})
    return result


def main(arguments):
    everything = "--all" in arguments
    paths = [argument for argument in arguments if argument != "--all"]
    if len(paths) != 1 or paths[0].startswith("-"):
        print(__doc__, file=sys.stderr)
        return 2
    return print_file(paths[0], lambda data: read(data, everything), None if everything else 2)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
