#!/usr/bin/env python3
"""Holds docs/formats.md against itself and against the records of the program.

    formats_page_test.py SOURCE_FOLDER [unittest options]
"""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1))
PAGE = (ROOT / "docs" / "formats.md").read_text(encoding="utf-8")
HEADERS = "".join(path.read_text(encoding="utf-8") for path in sorted((ROOT / "src" / "league").glob("*.h")))
RECORDS = "League Division Team FarmTeam Player Goalie Coach Prospect ScheduleRow RosterChange FreeAgentOffer Lines".split()


def rows(section):
    lines = [line for line in section.splitlines() if re.match(r"\| \d+ \|", line)]
    return [[cell.strip().strip("`") for cell in line.strip("|").split("|")] for line in lines]


def layouts():
    """Of each record: its length and its fields as (name, offset, width)."""
    found = {}
    for name, length, section in re.findall(r"^### `(\w+)`, (\d+) bytes\n(.*?)(?=^##)", PAGE, re.S | re.M):
        found[name] = int(length), [(row[3], int(row[0]), int(row[1])) for row in rows(section)]
    lines = re.search(r"^## Line-ups\n(.*?)(?=^## )", PAGE, re.S | re.M).group(1)
    found["Lines"] = 152, [(row[2], int(row[0]), 2 * int(row[1])) for row in rows(lines)]
    return found


class FormatsPageTest(unittest.TestCase):
    def test_every_record_is_on_the_page(self):
        self.assertEqual(sorted(layouts()), sorted(RECORDS))

    def test_the_fields_of_a_record_leave_no_gap_and_fill_its_length(self):
        for record, (length, fields) in layouts().items():
            end = 0
            for name, offset, width in fields:
                self.assertEqual(offset, end, f"{record}.{name}")
                end = offset + width
            self.assertEqual(end, length, record)

    def test_the_offsets_are_those_that_the_program_is_built_on(self):
        for record, (length, fields) in layouts().items():
            self.assertIn(f"static_assert(sizeof({record}) == {length} && alignof({record}) == 1);", HEADERS)
            held = re.findall(rf"offsetof\({record}, (\w+)\) == (\d+)", HEADERS)
            told = [(name, str(offset)) for name, offset, _ in fields]
            if record == "Prospect":  # one field, nothing to hold
                self.assertEqual(told, [("Name", "0")])
            else:
                self.assertEqual(held, told)

    def test_the_records_of_a_file_follow_each_other_to_its_length(self):
        for heading, count, last in (("The client file", 16903, 38), ("The lines file", 11005, 39)):
            section = re.search(rf"^## {heading}\n(.*?)(?=^## )", PAGE, re.S | re.M).group(1)
            expected = 1
            for cells in re.findall(r"^\| (\d+)(?: to (\d+))? \| (\d+) \|", section, re.M):
                self.assertEqual(int(cells[0]), expected)
                self.assertEqual(int(cells[1] or cells[0]) - expected + 1, int(cells[2]))
                expected = int(cells[1] or cells[0]) + 1
            self.assertEqual(expected - 1, count)
            self.assertIn(f"{count} slots: {(count - 1) * 3470 + last} bytes", section)
            self.assertIn(f"{count * 3470} when", section)

    def test_the_records_of_the_draft_file_fill_its_slots(self):
        section = re.search(r"^## The draft file\n(.*?)(?=^## )", PAGE, re.S | re.M).group(1)
        slot = 2 + len("DRVKFDFV1S")
        expected = 1
        for first, last, count in re.findall(r"^\| (\d+)(?: to (\d+))? \| (\d+) \|", section, re.M):
            self.assertEqual(int(first), expected)
            self.assertEqual(int(last or first) - expected + 1, int(count))
            expected = int(last or first) + 1
        self.assertEqual(expected - 1, 1005)
        self.assertIn(f"slots are {slot} bytes long", section)
        self.assertIn(f"1005 slots: {1005 * slot} bytes", section)

    def test_the_slots_of_the_offer_file_are_as_long_as_an_offer(self):
        section = re.search(r"^## The offer file\n(.*?)(?=^## )", PAGE, re.S | re.M).group(1)
        length, _ = layouts()["FreeAgentOffer"]
        self.assertIn(f"slots are {length} bytes long", section)
        self.assertIn(f"(3 + n) x {length} bytes", section)

    def test_the_tables_of_the_journal_are_as_long_as_their_rows(self):
        section = re.search(r"^## The journal\n(.*?)(?=^## )", PAGE, re.S | re.M).group(1)
        found = re.findall(r"^\| (\d+) \| `(\w+)`[^|]*\| (?:one|(\d+) to (\d+)) \| (\d+) \|", section, re.M)
        self.assertEqual([int(number) for number, *_ in found], list(range(1, 11)))
        for number, record, first, last, length in found:
            rows_of_it = int(last) - int(first) + 1 if last else 1
            self.assertEqual(int(length), rows_of_it * layouts()[record][0], number)
        team = dict((name, (offset, width)) for name, offset, width in layouts()["Team"][1])
        self.assertEqual(team["Password"], (247, 32))


if __name__ == "__main__":
    unittest.main()
