#!/usr/bin/env python3
"""`dravik make` and `dravik export`: what they write, what they refuse, and what an interruption leaves.

    make_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import csv
import os
import signal
import struct
import subprocess
import time
import unittest

from harness import PATIENCE, PROGRAM, SLOT, TerminalTest, record, sample_league, unwrapped, write_wrapped

LEAGUE = bytes(unwrapped(sample_league()))
AUTO_ROSTER_DISABLED = 497  # in the league's record


class MakeTest(TerminalTest):
    def test_what_it_makes_is_complete_and_told(self):
        ended = self.run_it("make", self.league(), "--team", 5, "--lines-partial", "--farm", "--out", "5.dvl")
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertEqual(ended.out.splitlines()[-1], "Lines file for Fenwater Breakers successfully save at 5.dvl")
        self.assertEqual(self.run_it("check", "League.dvs", "--team", 5).code, 1)
        self.assertEqual(self.run_it("check", "League.dvs", "--lines", "5.dvl").code, 0)
        self.assertEqual(self.run_it("verify", "5.dvl").out, "5.dvl: lines file of team 5, sound\n")
        self.assertEqual(self.files(), ["5.dvl", "League.dvs"])

    def test_only_the_days_that_were_asked_for_are_made(self):
        self.run_it("make", self.league(), "--team", 5, "--lines-partial", "--days", "1-3", "--out", "5.dvl")
        answer = self.run_it("check", "League.dvs", "--lines", "5.dvl", "--json").json()["leagues"][0]["teams"][0]
        self.assertEqual([day["day"] for day in answer["pro"] if not day["complete"]], [5, 7, 9])

    def test_what_is_not_complete_is_refused_in_the_words_of_the_windows(self):
        ended = self.run_it("make", self.league(), "--team", 5, "--out", "5.dvl")
        self.expect_failure(ended, "League.dvs: Lines #1 are incomplete! You will not be able to save league files unless "
                                   "lines for the next day are complete!")
        ended = self.run_it("make", "League.dvs", "--team", 18, "--out", "18.dvl")
        self.expect_failure(ended, "League.dvs: Farm Lines for Day #1 are Incomplete!")
        self.assertEqual(self.files(), ["League.dvs"])

    def test_a_refusal_leaves_the_older_file(self):
        (self.folder / "5.dvl").write_bytes(b"older")
        self.run_it("make", self.league(), "--team", 5, "--out", "5.dvl")
        self.assertEqual((self.folder / "5.dvl").read_bytes(), b"older")

    def test_the_password_stands_in_front_of_everything(self):
        arguments = ("make", self.league(), "--team", 7, "--lines", "--farm", "--out", "7.dvl")
        ended = self.run_it(*arguments)
        self.expect_failure(ended, "League.dvs: team 7 O'Harrow Falls Cataracts: Password Required!")
        ended = self.run_it(*arguments, "--passwords", self.passwords(["7 wrong"]))
        self.expect_failure(ended, "League.dvs: team 7 O'Harrow Falls Cataracts: Password is incorrect!")
        self.assertFalse((self.folder / "7.dvl").exists())
        ended = self.run_it(*arguments, "--passwords", self.passwords())
        self.assertEqual((ended.code, ended.err), (0, ""))
        by_file = (self.folder / "7.dvl").read_bytes()
        shown, code = self.on_terminal(*arguments, typed=["blue line"])
        self.assertEqual(code, 0, shown)
        self.assertEqual((self.folder / "7.dvl").read_bytes(), by_file)

    def test_a_league_without_makers_has_none_here(self):
        slots = bytearray(LEAGUE)
        struct.pack_into("<h", slots, record(2) + AUTO_ROSTER_DISABLED, -1)
        write_wrapped(self.folder / "Closed.dvs", bytes(slots))
        for maker in ("--roster", "--roster-partial", "--lines", "--lines-partial", "--farm"):
            ended = self.run_it("make", "Closed.dvs", "--team", 1, maker, "--out", "1.dvl")
            self.expect_failure(ended, "Closed.dvs: The league does without automatic makers.")
        self.assertEqual(self.run_it("make", "Closed.dvs", "--team", 1, "--out", "1.dvl").code, 0)

    def test_the_roster_is_made_too(self):
        self.assertEqual(self.run_it("check", self.league(), "--team", 2).code, 1)
        ended = self.run_it("make", "League.dvs", "--team", 2, "--roster", "--lines", "--farm", "--out", "2.dvl", "--json")
        self.assertEqual(ended.code, 0, ended.err)
        answer, = ended.json()["leagues"]
        self.assertTrue(answer["saved"])
        self.assertIn("Auto Roster Function has been run successfully.", answer["told"])
        self.assertEqual(self.run_it("check", "League.dvs", "--lines", "2.dvl").code, 0)

    def test_a_plain_league_gives_a_plain_file(self):
        (self.folder / "Plain.dvs").write_bytes(LEAGUE)
        self.run_it("make", self.league(), "--team", 1, "--out", "wrapped.dvl")
        self.run_it("make", "Plain.dvs", "--team", 1, "--out", "plain.dvl")
        self.assertEqual((self.folder / "plain.dvl").read_bytes(), unwrapped(self.folder / "wrapped.dvl"))

    def test_days_that_are_none_and_a_file_that_cannot_be_written_are_failures(self):
        for days in ("0", "11", "3-2", "1-", "-", "x", "1-11"):
            ended = self.run_it("make", self.league(), "--team", 1, "--lines", f"--days={days}", "--out", "1.dvl")
            self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1), days)
        self.expect_failure(self.run_it("make", self.league(), "--team", 1, "--out", "no/such/1.dvl"),
                            "League.dvs: no/such/1.dvl: Path not found")
        for arguments in (("--roster", "--roster-partial"), ("--lines", "--lines-partial")):
            self.assertEqual(self.run_it("make", "League.dvs", "--team", 1, *arguments, "--out", "1.dvl").code, 2)

    def test_an_interruption_leaves_the_older_file_and_nothing_else(self):
        self.league()
        older = b"older" * 1000
        met = 0
        for signal_number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT):
            for round_number in range(40):
                (self.folder / "1.dvl").write_bytes(older)
                with subprocess.Popen([PROGRAM, "make", "League.dvs", "--team", "1", "--out", "1.dvl"], cwd=self.folder,
                                      stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
                    end = time.monotonic() + PATIENCE
                    # The name that the file has while it is written says that the moment has come.
                    while process.poll() is None and len(os.listdir(self.folder)) < 3 and time.monotonic() < end:
                        pass
                    process.send_signal(signal_number)
                    code = process.wait(timeout=PATIENCE)
                self.assertEqual(self.files(), ["1.dvl", "League.dvs"])
                if code == -signal_number:
                    met += 1
                    self.assertEqual((self.folder / "1.dvl").read_bytes(), older)
                    break
        self.assertGreater(met, 0, "no interruption came in time")


class ExportTest(TerminalTest):
    def test_both_files_hold_everybody(self):
        (self.folder / "tables").mkdir()
        (self.folder / "tables" / "PlayersRatings.csv").write_text("older")
        ended = self.run_it("export", self.league(), "--out", "tables")
        self.assertEqual((ended.code, ended.out, ended.err), (0, "Output done in tables\n", ""))
        self.assertEqual(self.files(), ["League.dvs", "tables", "tables/CoachesRatings.csv", "tables/PlayersRatings.csv"])
        for name, first, count, length, width in (("Players", 402, 10000, 2, 23), ("Coaches", 11402, 500, 2, 12)):
            with open(self.folder / "tables" / f"{name}Ratings.csv", encoding="cp1252", newline="") as file:
                rows = list(csv.reader(file))
            self.assertEqual(len(rows[0]), width)
            in_use = sum(LEAGUE[record(first + 1 + at):record(first + 1 + at) + length] == b"\xff\xff" for at in range(count))
            goalies = sum(LEAGUE[record(10403 + at):record(10403 + at) + 2] == b"\xff\xff" for at in range(1000))
            self.assertEqual(len(rows) - 1, in_use + (goalies if name == "Players" else 0))

    def test_a_folder_that_is_not_there_is_a_failure(self):
        self.expect_failure(self.run_it("export", self.league(), "--out", "none"), "League.dvs: none/PlayersRatings.csv: Path not found")
        self.expect_failure(self.run_it("export", "none.dvs"), "none.dvs: File not found")
        self.assertEqual(self.files(), ["League.dvs"])


if __name__ == "__main__":
    unittest.main()
