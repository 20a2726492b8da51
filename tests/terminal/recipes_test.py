#!/usr/bin/env python3
"""The recipes of docs/terminal.md: every command runs, and gives what stands there.

    recipes_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import os
import pathlib
import re
import struct
import subprocess
import unittest

from harness import PATIENCE, PROGRAM, TerminalTest, player_record, record, team_record, unwrapped, write_wrapped

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "terminal.md"


def recipes():
    """Of each recipe its number and its commands, each with the lines that it should give."""
    for text in re.split(r"\n(?=\*\*\d+\. )", PAGE.read_text(encoding="utf-8"))[1:]:
        commands = []
        for line in text.splitlines():
            if line.startswith("    $ "):
                commands.append((line[6:], []))
            elif line.startswith("    "):
                commands[-1][1].append(line[4:])
        yield int(re.match(r"\*\*(\d+)\.", text).group(1)), commands


def fits(lines, wanted):
    if not wanted:
        return not lines
    if wanted[0] == "...":
        return any(fits(lines[at:], wanted[1:]) for at in range(len(lines) + 1))
    return bool(lines) and lines[0] == wanted[0] and fits(lines[1:], wanted[1:])


def evening_before(league):
    """The slots of a league a day before: of team 7 one was healthy, one was hurt, one was with team 12, and there was less money."""
    slots = bytearray(league)
    team, condition, cash, date = 44, 112, 319, 501  # offsets in the records
    own = [player_record(index) for index in range(1, 10001)
           if slots[player_record(index):player_record(index) + 2] == b"\xff\xff"
           and struct.unpack_from("<h", slots, player_record(index) + team)[0] == 7]
    healthy = [at for at in own if slots[at + condition] >= 95]
    hurt = next(at for at in own if slots[at + condition] < 95)
    slots[hurt + condition] = 100
    slots[healthy[0] + condition] = 60
    struct.pack_into("<h", slots, healthy[1] + team, 12)
    for at, form, step in ((team_record(7) + cash, "<i", -250000), (record(2) + date, "<d", -1)):
        struct.pack_into(form, slots, at, struct.unpack_from(form, slots, at)[0] + step)
    return bytes(slots)


class RecipesTest(TerminalTest):
    def setUp(self):
        super().setUp()
        self.league()
        self.league("Monday.dvs", "--seed", "2")
        self.league("Tuesday.dvs", "--seed", "3")
        self.league("Friday.dvs", "--seed", "4")
        self.league("Summer.dvs", "--off-season")
        write_wrapped(self.folder / "Yesterday.dvs", evening_before(unwrapped(self.folder / "League.dvs")))
        (self.folder / self.passwords()).rename(self.folder / "secret.txt")
        (self.folder / "incoming").mkdir()
        self.run_it("make", "League.dvs", "--team", 1, "--out", "incoming/01.dvl")
        whole = (self.folder / "incoming" / "01.dvl").read_bytes()
        for number in range(2, 31):
            name = self.folder / "incoming" / f"{number:02}.dvl"
            name.write_bytes(whole[:-1] + b"?" if number in (8, 21) else whole)

    def run_page(self, commands):
        environment = dict(os.environ, PATH=f"{PROGRAM.parent}:{os.environ['PATH']}", LC_ALL="C")
        for command, wanted in commands:
            ended = subprocess.run(["sh", "-c", command], cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, encoding="utf-8",
                                   timeout=PATIENCE, check=False)
            yield command, ended.stdout.replace("\r", "").splitlines(), wanted

    def test_all_recipes_give_what_the_page_says(self):
        numbers = []
        for number, commands in recipes():
            numbers.append(number)
            for command, lines, wanted in self.run_page(commands):
                self.assertTrue(fits(lines, wanted), f"recipe {number}: {command}\n" + "\n".join(lines))
        self.assertEqual(numbers, list(range(1, 11)))


if __name__ == "__main__":
    unittest.main()
