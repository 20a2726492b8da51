#!/usr/bin/env python3
"""`dravik show`: leagues, teams, people, lines and games, and what stays hidden.

    show_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import csv
import io
import struct
import unittest

from harness import (SLOT, TerminalTest, goalie_record, player_record, record, sample_league, team_record, unwrapped,
                     write_wrapped)

PRIVATE = ("status", "protected", "trade available", "no trade")
LEAGUE = bytes(unwrapped(sample_league()))
SHOW_OVERALL, SHOW_ALL_RATINGS, SCHEDULE_SHOWN, SCHEDULE_BLOCKED = 417, 419, 437, 513  # in the league's record


class ShowTest(TerminalTest):
    def rows(self, *arguments, code=0):
        ended = self.run_it("show", *arguments, "--json")
        self.assertEqual(ended.code, code, ended.err)
        league, = ended.json()["leagues"]
        return league["rows"]

    def changed_league(self, *changes):
        """A league in whose own record these words differ: (offset, value)."""
        slots = bytearray(LEAGUE)
        for offset, value in changes:
            struct.pack_into("<h", slots, record(2) + offset, value)
        write_wrapped(self.folder / "Changed.dvs", bytes(slots))
        return "Changed.dvs"

    def people_of(self, team):
        """Records of the people of a team, read from the file by the page of the formats."""
        people = {}
        for index in range(1, 10001):
            at = player_record(index)
            if LEAGUE[at:at + 2] == b"\xff\xff" and struct.unpack_from("<h", LEAGUE, at + 44)[0] == team:
                people[index] = (LEAGUE[at + 4:at + 44].decode("cp1252").strip(), LEAGUE[at + 114])
        for index in range(1, 1001):
            at = goalie_record(index)
            if LEAGUE[at:at + 2] == b"\xff\xff" and struct.unpack_from("<h", LEAGUE, at + 44)[0] == team:
                people[10000 + index] = (LEAGUE[at + 4:at + 44].decode("cp1252").strip(), LEAGUE[at + 113])
        return people

    def test_the_teams_are_shown_first(self):
        ended = self.run_it("show", self.league())
        self.assertEqual((ended.code, ended.err), (0, ""))
        lines = ended.out.splitlines()
        self.assertEqual(lines[0], "League.dvs: Aurora Crown Hockey League, January 12 2031")
        self.assertRegex(lines[1], r"^  number  name +abbreviation  farm +division +people  games played$")
        self.assertRegex(lines[2], r"^       1  Port Alderney Sound Tugboats  PAS +Upper Locks Bargemen +Harbour +51 +43$")
        self.assertEqual(len(lines), 2 + 30)

    def test_csv_and_json_say_the_same(self):
        self.league()
        for what in (("--teams",), ("--roster",), ("--free-agents",), ("--schedule",), ("--team", 1, "--lines", 2)):
            rows = self.rows("League.dvs", *what)
            text = self.run_it("show", "League.dvs", *what, "--csv").out
            table = list(csv.DictReader(io.StringIO(text)))
            word = {None: "", True: "yes", False: "no"}
            self.assertEqual(table, [{name: word[cell] if cell is None or isinstance(cell, bool) else str(cell)
                                      for name, cell in row.items()} for row in rows], what)
            self.assertGreater(len(rows), 9)

    def test_a_roster_holds_the_people_of_its_team_with_their_statuses(self):
        rows = self.rows(self.league(), "--team", 1)
        statuses = ("farm", "scratch", "pro")
        self.assertEqual({row["id"]: (row["name"], row["status"]) for row in rows},
                         {who: (name, statuses[status]) for who, (name, status) in self.people_of(1).items()})

    def test_without_the_password_the_facts_are_shown_alone(self):
        league = self.league()
        ended = self.run_it("show", league, "--team", 7)
        self.assertEqual(ended.code, 0)
        self.assertIn("\n  Statuses and flags are not shown, Password Required!: 7 O'Harrow Falls Cataracts\n", ended.out)
        rows = self.rows(league, "--team", 7)
        self.assertEqual({row["id"] for row in rows}, set(self.people_of(7)))
        self.assertTrue(all(row[name] is None for row in rows for name in PRIVATE))
        rows = self.rows(league, "--team", 7, "--passwords", self.passwords())
        self.assertTrue(all(row[name] is not None for row in rows for name in PRIVATE))
        rows = self.rows(league, "--team", 7, "--passwords", self.passwords(["7 wrong"]))
        self.assertTrue(all(row[name] is None for row in rows for name in PRIVATE))

    def test_in_csv_who_is_left_out_is_told_beside_it(self):
        ended = self.run_it("show", self.league(), "--roster", "--csv")
        self.assertEqual(ended.err.count("\n"), 1)
        self.assertTrue(ended.err.startswith("dravik: League.dvs: Statuses and flags are not shown, Password Required!: 3 "))

    def test_at_a_terminal_a_team_asked_for_by_name_asks_for_its_password(self):
        shown, code = self.on_terminal("show", self.league(), "--team", 12, "--csv", typed=["IceBox1"])
        self.assertEqual(code, 0)
        self.assertIn("Password of 12 ", shown)
        self.assertRegex(shown, r",(pro|farm|scratch),(yes|no),(yes|no),(yes|no)")

    def test_lines_are_behind_the_password(self):
        league = self.league()
        ended = self.run_it("show", league, "--team", 3, "--lines", 1)
        self.assertEqual((ended.code, ended.out), (2, ""))
        self.assertRegex(ended.err, "^dravik: League.dvs: team 3 .+: Password Required!\n$")
        self.assertEqual(len(self.rows(league, "--team", 3, "--lines", 1, "--passwords", self.passwords())), 69 + 5)
        rows = self.rows(league, "--lines", 1)
        self.assertEqual(len(rows), 27 * (69 + 5))
        self.assertIn("  Lines are not shown, Password Required!: 3 ", self.run_it("show", league, "--lines", 1).out)

    def test_a_day_is_shown_slot_by_slot(self):
        self.league()
        for farm, base in ((False, 343), (True, 1863 + 47)):
            for day in (1, 10):
                rows = self.rows("League.dvs", "--team", 1, "--lines", day, *(["--farm"] if farm else []))
                by_slot = {row["slot"]: row for row in rows}
                at = team_record(1) + base + 152 * (day - 1)
                word = lambda offset: struct.unpack_from("<h", LEAGUE, at + offset)[0]
                for slot, offset in (("L-1C", 0), ("L-2C", 2), ("L-1LW", 8), ("L-4RW", 22), ("PP-2C", 42), ("EF-1", 112),
                                     ("PS-5", 140), ("strategy: offense", 146), ("goalie pulled: goals", 148)):
                    self.assertEqual(by_slot[slot]["id"] or 0, word(offset), slot)
                self.assertEqual(by_slot["G-1"]["id"], 10000 + word(108))
                self.assertEqual(by_slot["G-1"]["name"], self.people_of(1)[10000 + word(108)][0])

    def test_what_the_league_hides_stays_hidden(self):
        shown = self.rows(self.league(), "--team", 1)[0]
        self.assertIn("overall", shown)
        self.assertIn("CK", shown)
        hidden = self.rows(self.changed_league((SHOW_OVERALL, 0), (SHOW_ALL_RATINGS, 0)), "--team", 1)[0]
        self.assertNotIn("overall", hidden)
        for name in ("CK", "FG", "DI", "SK", "ST", "DU", "FO", "PA", "LD", "MO"):
            self.assertNotIn(name, hidden)

    def test_the_calendar_shows_where_the_league_shows_it(self):
        rows = self.rows(self.league(), "--team", 1, "--schedule")
        self.assertEqual(len([row for row in rows if row["side"] == "pro"]), 10)
        self.assertTrue(all("Port Alderney Sound Tugboats" in (row["home"], row["away"]) for row in rows))
        self.assertEqual([row["row"] for row in rows if row["side"] == "pro"],
                         sorted(row["row"] for row in rows if row["side"] == "pro"))
        for change in ((SCHEDULE_SHOWN, 0), (SCHEDULE_BLOCKED, 1)):
            self.expect_failure(self.run_it("show", self.changed_league(change), "--schedule"),
                                "Changed.dvs: the league does not show its calendar")

    def test_free_agents_are_those_of_the_offers(self):
        rows = self.rows(self.league(), "--free-agents")
        self.assertTrue(all(row["contract"] == 0 or row["team"] is None for row in rows))
        without_contract = sum(LEAGUE[player_record(index):player_record(index) + 2] == b"\xff\xff" and
                               LEAGUE[player_record(index) + 56] == 0 for index in range(1, 10001))
        self.assertGreaterEqual(len([row for row in rows if row["id"] <= 10000]), without_contract)

    def test_several_forms_and_several_subjects_are_refused(self):
        for arguments in (("--csv", "--json"), ("--teams", "--roster"), ("--lines", 0), ("--lines", 11)):
            ended = self.run_it("show", self.league(), *arguments)
            self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1))


if __name__ == "__main__":
    unittest.main()
