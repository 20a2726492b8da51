#!/usr/bin/env python3
"""`dravik check`: what it says, how it ends, and who may know.

    check_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import struct
import unittest

from harness import SLOT, TerminalTest, sample_league, team_record, unwrapped, write_wrapped

TEAMS = [team for team in range(1, 33) if team not in (13, 25)]  # those of a sample league


class CheckTest(TerminalTest):
    def test_a_complete_team_ends_with_0(self):
        ended = self.run_it("check", self.league(), "--team", 1)
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertEqual(ended.out, "League.dvs: Aurora Crown Hockey League\n  1 Port Alderney Sound Tugboats: complete\n")

    def test_findings_are_told_in_the_words_of_the_judges_and_end_with_1(self):
        ended = self.run_it("check", self.league(), "--team", 5, "--team", 15)
        self.assertEqual((ended.code, ended.err), (1, ""))
        self.assertEqual(ended.out, "League.dvs: Aurora Crown Hockey League\n"
                                    "  5 Fenwater Breakers: not complete\n"
                                    "    pro lines, day 1: Normal line # 2 RW is empty.\n"
                                    "    pro lines, day 1: PK line 1 Defense #1 is empty.\n"
                                    "    pro lines, day 1: Extra Forward #5 is empty.\n"
                                    "    pro lines, day 3: Backup Goaler is empty.\n"
                                    "    pro lines, day 5: 4 vs 4 line 2 C is empty.\n"
                                    "    pro lines, day 7: PK3 line 2 forward is empty.\n"
                                    "    pro lines, day 9: Penalty Shot Player #3 is empty.\n"
                                    "  15 Dunmarrow Foxes: not complete\n"
                                    "    payroll: Dunmarrow Foxes is over the salary cap by $4,800,000.00!\n")

    def test_the_json_says_the_same(self):
        ended = self.run_it("check", self.league(), "--team", 5, "--json")
        self.assertEqual((ended.code, ended.err), (1, ""))
        league, = ended.json()["leagues"]
        self.assertEqual((league["file"], league["league"], league["damaged"], league["left_out"]),
                         ("League.dvs", "Aurora Crown Hockey League", False, []))
        team, = league["teams"]
        self.assertEqual((team["number"], team["name"], team["complete"]), (5, "Fenwater Breakers", False))
        self.assertEqual(team["roster"], {"complete": True, "findings": []})
        self.assertEqual(team["payroll"], {"within": True, "findings": []})
        self.assertEqual([day["day"] for day in team["pro"] if not day["complete"]], [1, 3, 5, 7, 9])
        self.assertEqual(team["pro"][2]["findings"], ["Backup Goaler is empty."])
        self.assertTrue(all(day["complete"] for day in team["farm"]))

    def test_all_teams_but_those_behind_a_password_are_checked(self):
        ended = self.run_it("check", self.league())
        self.assertEqual((ended.code, ended.err), (1, ""))
        lines = ended.out.splitlines()
        self.assertEqual(sum(line.startswith("  ") and line[2] != " " for line in lines), len(TEAMS) - 3 + 1)
        self.assertIn("  Not checked, Password Required!: 3 ", ended.out)
        self.assertNotIn("\n  3 ", ended.out)

    def test_passwords_of_a_file_open_their_teams(self):
        ended = self.run_it("check", self.league(), "--passwords", self.passwords(), "--json")
        league, = ended.json()["leagues"]
        self.assertEqual([team["number"] for team in league["teams"]], TEAMS)
        self.assertEqual(league["left_out"], [])

    def test_of_several_passwords_the_one_that_fits_counts(self):
        names = self.passwords(["# of three leagues", "", "7 other", "7 blue line", "12\tIceBox1", "3 wrong"])
        league, = self.run_it("check", self.league(), "--passwords", names, "--json").json()["leagues"]
        self.assertEqual([(team["number"], team["why"]) for team in league["left_out"]], [(3, "Password is incorrect!")])

    def test_a_password_file_that_others_may_read_is_refused(self):
        for mode in (0o640, 0o604, 0o620):
            names = self.passwords(mode=mode)
            self.expect_failure(self.run_it("check", self.league(), "--passwords", names),
                                "passwords: others may read or change these passwords; take that right from them (chmod 600)")

    def test_a_line_that_names_no_team_is_refused(self):
        for line in ("x puck", "0 puck", "101 puck", "7", "7puck"):
            self.expect_failure(self.run_it("check", self.league(), "--passwords", self.passwords(["3 puck", line])),
                                "passwords: line 2 is no team's number, a blank and its password")

    def test_a_team_asked_for_by_name_needs_its_password(self):
        ended = self.run_it("check", self.league(), "--team", 7)
        self.assertEqual((ended.code, ended.out), (2, ""))
        self.assertRegex(ended.err, r"^dravik: League.dvs: team 7 .+: Password Required!\n$")
        ended = self.run_it("check", self.league(), "--team", 7, "--passwords", self.passwords(["7 wrong"]))
        self.assertRegex(ended.err, r"^dravik: League.dvs: team 7 .+: Password is incorrect!\n$")

    def test_it_asks_on_a_terminal_without_showing_what_is_typed(self):
        shown, code = self.on_terminal("check", self.league(), "--team", 7, typed=["blue line"])
        self.assertIn("Password of 7 ", shown)
        self.assertIn(" (Aurora Crown Hockey League): ", shown)
        self.assertNotIn("blue line", shown)
        self.assertIn("complete", shown)
        self.assertIn(code, (0, 1))
        shown, code = self.on_terminal("check", self.league(), "--team", 7, typed=["puck"])
        self.assertIn("Password is incorrect!", shown)
        self.assertEqual(code, 2)

    def test_a_team_is_known_by_number_name_and_abbreviation(self):
        league = self.league()
        by_number = self.run_it("check", league, "--team", 11).out
        self.assertEqual(self.run_it("check", league, "--team", "côte-vermeil BÛCHERONS").out, by_number)
        for nobody in ("13", "0", "101", "Nobody", "日本"):
            ended = self.run_it("check", league, "--team", nobody)
            self.assertEqual(ended.code, 2)
            self.assertIn("there is no team", ended.err)

    def test_several_leagues_are_answered_in_their_order_whatever_the_threads(self):
        leagues = [self.league(f"{seed}.dvs", "--seed", str(seed)) for seed in range(1, 5)]
        one = self.run_it("check", *leagues)
        for threads in (2, 4, 64):
            several = self.run_it("check", "-j", threads, *leagues)
            self.assertEqual((several.code, several.out, several.err), (one.code, one.out, one.err))
        self.assertEqual([line.split(":")[0] for line in one.out.splitlines() if not line.startswith(" ")], leagues)

    def test_one_bad_league_does_not_stop_the_others(self):
        (self.folder / "bad.dvs").write_bytes(b"no league")
        ended = self.run_it("check", "missing.dvs", self.league(), "bad.dvs", "--team", 1)
        self.assertEqual(ended.code, 2)
        self.assertIn("1 Port Alderney Sound Tugboats: complete", ended.out)
        self.assertEqual(ended.err.splitlines()[0], "dravik: missing.dvs: File not found")
        self.assertTrue(ended.err.splitlines()[1].startswith("dravik: bad.dvs: "))
        self.assertEqual(len(ended.err.splitlines()), 2)

    def test_a_plain_league_is_read_as_a_wrapped_one(self):
        wrapped = self.run_it("check", self.league(), "--team", 5).out
        (self.folder / "League.dvs").write_bytes(unwrapped(sample_league()))
        self.assertEqual(self.run_it("check", "League.dvs", "--team", 5).out, wrapped)

    def test_a_damaged_league_is_a_finding(self):
        path = self.folder / self.league()
        whole = bytearray(path.read_bytes())
        whole[-1] ^= 1  # of the checksum
        path.write_bytes(whole)
        ended = self.run_it("check", "League.dvs", "--team", 1)
        self.assertEqual(ended.code, 1)
        self.assertIn("  This client file was damaged on its way, and some of it may be wrong. Get it anew.\n", ended.out)

    def test_no_file_changes(self):
        self.league()
        before = (self.folder / "League.dvs").read_bytes()
        self.run_it("check", "League.dvs", "--passwords", self.passwords())
        self.assertEqual((self.folder / "League.dvs").read_bytes(), before)
        self.assertEqual(self.files(), ["League.dvs", "passwords"])

    def lines_file(self, team, change=None):
        """A lines file of a team, made from the league by the page of the formats."""
        league = unwrapped(sample_league())
        slots = bytearray(SLOT * 11004 + 39)
        head = b"DRVK Lineups Files Version 1.01 - Start"
        slots[0:2 + len(head)] = struct.pack("<h", len(head)) + head
        slots[SLOT:SLOT + 5] = league[SLOT + 373:SLOT + 378]
        slots[2 * SLOT:2 * SLOT + 2] = struct.pack("<h", team)
        record = bytearray(league[team_record(team):team_record(team) + SLOT])
        if change:
            change(record)
        slots[3 * SLOT:4 * SLOT] = record
        for index in range(11000):
            at = (4 + index) * SLOT
            people, status, flags = ((index + 402, 114, 59), (index + 402, 113, 58))[index >= 10000]
            start = people * SLOT
            slots[at:at + 5] = bytes([league[start + status]]) + league[start + flags:start + flags + 4]
        end = b"DRVK Lineups Files Version 1.01 - End"
        slots[11004 * SLOT:] = struct.pack("<h", len(end)) + end
        write_wrapped(self.folder / "Team.dvl", bytes(slots))
        return "Team.dvl"

    def test_a_lines_file_is_checked_in_the_place_of_the_league_s_lines(self):
        def without_goalie(record):
            record[343 + 108:343 + 110] = b"\0\0"
        ended = self.run_it("check", self.league(), "--lines", self.lines_file(1, without_goalie))
        self.assertEqual((ended.code, ended.err), (1, ""))
        self.assertEqual(ended.out.splitlines()[1:], ["  1 Port Alderney Sound Tugboats: not complete",
                                                      "    pro lines, day 1: Starting Goaler is empty."])

    def test_a_lines_file_needs_the_password_that_the_league_holds(self):
        def without_password(record):
            record[247:279] = b" " * 32
        lines = self.lines_file(7, without_password)
        ended = self.run_it("check", self.league(), "--lines", lines)
        self.assertEqual(ended.code, 2)
        self.assertRegex(ended.err, "team 7 .+: Password Required!")
        ended = self.run_it("check", self.league(), "--lines", lines, "--passwords", self.passwords())
        self.assertIn("  7 ", ended.out)
        self.assertNotIn("Not checked", ended.out)

    def test_a_lines_file_of_no_league_at_hand_is_a_failure(self):
        lines = self.lines_file(1)
        other = self.league("Other.dvs", "--seed", "2")
        ended = self.run_it("check", other, "--team", 1, "--lines", lines)
        self.assertEqual(ended.code, 2)
        self.assertEqual(ended.err.splitlines()[-1],
                         "dravik: Team.dvl: this lines file belongs to none of these leagues and teams")
        self.expect_failure(self.run_it("check", other, "--lines", "League.dvl"), "League.dvl: File not found")
        (self.folder / "League.dvl").write_bytes(b"something else altogether")
        self.expect_failure(self.run_it("check", other, "--lines", "League.dvl"), "League.dvl: this is no lines file")

    def test_work_above_a_second_has_a_bar_on_a_terminal_alone(self):
        league = self.league()
        many = [league] * 150
        shown, _ = self.on_terminal("check", *many, "--json", "--team", 1)
        self.assertRegex(shown, r"\r\[#* *\] [0-9]+ of 150\r\x1b\[K")
        self.assertTrue(shown.rstrip().endswith("}"))
        shown, _ = self.on_terminal("check", league, "--team", 1)
        self.assertNotIn("[", shown)
        ended = self.run_it("check", *many, "--team", 1)
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertNotIn("\r", ended.out)

    def test_a_question_and_the_bar_are_never_on_one_line(self):
        # The first file asks; meanwhile the other thread is through with the rest, and a second passes.
        shown, code = self.on_terminal("check", self.league(), *["none.dvs"] * 20, "-j", 2, "--team", 7,
                                       typed=["blue line"], hesitates=2)
        question, behind = shown.split("): ", 1)
        self.assertEqual((question.count("Password of 7 "), behind[:2], code), (1, "\r\n", 2))
        # The last file asks, when the bar of those before it is up.
        slots = bytearray(unwrapped(sample_league()))
        slots[team_record(7) + 247:team_record(7) + 279] = b" " * 32
        write_wrapped(self.folder / "Open.dvs", bytes(slots))
        shown, _ = self.on_terminal("check", *["Open.dvs"] * 150, self.league(), "--json", "--team", 7,
                                    typed=["blue line"])
        before, _ = shown.split("Password of 7 ")
        self.assertIn(" of 151", before)
        self.assertTrue(before.endswith("\x1b[K"), before[-99:])

    def test_what_is_asked_wrongly_ends_with_2_and_one_line(self):
        for arguments in ((), ("check",), ("nothing",), ("check", "x.dvs", "-j", 0), ("check", "x.dvs", "-j", 65),
                          ("check", "x.dvs", "--lnes", "y")):
            ended = self.run_it(*arguments)
            self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1), arguments)
            self.assertTrue(ended.err.startswith("dravik: "))

    def test_help_has_examples_and_ends_with_0(self):
        for arguments in (("--help",), ("check", "--help")):
            ended = self.run_it(*arguments)
            self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertIn("Examples:\n  dravik check ", ended.out)


if __name__ == "__main__":
    unittest.main()
