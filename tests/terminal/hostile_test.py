#!/usr/bin/env python3
"""What nobody means well with: hostile names, prying without a password, output that breaks off, interruptions.

    hostile_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import csv
import fcntl
import io
import os
import pty
import re
import resource
import signal
import struct
import subprocess
import termios
import time
import unittest

from harness import (PATIENCE, PROGRAM, TerminalTest, goalie_record, player_record, record, sample_league, team_record,
                     unwrapped, write_wrapped)

LEAGUE = bytes(unwrapped(sample_league()))
SHOW_OVERALL, SHOW_ALL_RATINGS = 417, 419  # in the league's record
CONTROLS = re.compile("[\x00-\x08\x0b-\x1f\x7f-\x9f]")  # but tabs and the ends of lines
FIRST_CENTER = 343  # in a team's: line 1 of the pro lines of day 1
SKATER_RATINGS = 115
# Where what is private stands: from, to.
PRIVATE_OF_TEAM = ((283, 289), (309, 331), (337, 339), (343, 1863), (1863 + 47, 1863 + 1567), (3430, 3434))
PRIVATE_OF_SKATER = ((59, 61), (63, 67), (114, 115))
PRIVATE_OF_GOALIE = ((58, 60), (62, 66), (113, 114))


def people_of(team):
    """Where the records of a team's people begin, skaters and goalies."""
    for first, count, kind in ((player_record, 10000, PRIVATE_OF_SKATER), (goalie_record, 1000, PRIVATE_OF_GOALIE)):
        for index in range(1, count + 1):
            at = first(index)
            if LEAGUE[at:at + 2] == b"\xff\xff" and struct.unpack_from("<h", LEAGUE, at + 44)[0] == team:
                yield at, kind


class HostileTest(TerminalTest):
    def changed(self, name, *changes):
        """The sample league with other bytes: (offset, bytes)."""
        slots = bytearray(LEAGUE)
        for offset, new in changes:
            slots[offset:offset + len(new)] = new
        write_wrapped(self.folder / name, bytes(slots))
        return name

    def raw(self, *arguments):
        ended = subprocess.run([PROGRAM, *map(str, arguments)], cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True,
                               timeout=PATIENCE, check=False)
        self.assertIn(ended.returncode, (0, 1), (arguments, ended.stderr))
        return ended.stdout

    def named(self, *names):
        """A league whose skaters 1, 2, ... and team 1 and its first center have hostile names."""
        center = player_record(struct.unpack_from("<h", LEAGUE, team_record(1) + FIRST_CENTER)[0])
        changes = [(at + 4, name.ljust(40)) for at, name in zip([center, *(at for at, _ in people_of(2))], names)]
        return self.changed("Hostile.dvs", *changes, (team_record(1) + 4, names[0].ljust(40)), (record(2), names[0].ljust(40)))

    def test_no_name_commands_a_terminal(self):
        name = b"\x1b]0;x\x07\x9d\x90\x81\x7f\x1b[31m<b>|&\r\nX\t\b,\"1"
        self.league("Old.dvs")
        league = self.named(name)
        for arguments in (("show", league), ("show", league, "--team", 1), ("show", league, "--team", 1, "--lines", 1),
                          ("show", league, "--schedule"), ("check", league), ("sheet", league, "--team", 1),
                          ("sheet", league, "--team", 1, "--roster"), ("sheet", league, "--team", 1, "--forum"),
                          ("sheet", league, "--team", 1, "--markdown"), ("sheet", league, "--team", 1, "--html"),
                          ("diff", "Old.dvs", league)):
            out = self.raw(*arguments).decode("utf-8")
            self.assertIsNone(CONTROLS.search(out.replace("\r\n", "\n")), arguments)
            self.assertRegex(out, "0;x" + r" +" + r"\\?\[31m", arguments)
            self.assertNotRegex(out, r"\n *X", arguments)
        # A table may have several lines in a cell, and JSON all of the name.
        out = self.raw("show", league, "--team", 1, "--csv").decode("utf-8")
        self.assertIsNone(CONTROLS.search(out.replace("\r\n", "\n")))
        page = self.raw("show", league, "--team", 1, "--json").decode("utf-8")
        self.assertIsNone(CONTROLS.search(page))
        rows = self.run_it("show", league, "--team", 1, "--json").json()["leagues"][0]["rows"]
        self.assertIn("\x1b]0;x\x07\x9d\x90\x81\x7f\x1b[31m<b>|&\r\nX\t\b,\"1", [row["name"] for row in rows])

    def test_no_name_commands_the_terminal_that_asks_for_a_password(self):
        name = b"Cataracts\x1b[2J\x9d\r\nPassword of 1 Tugboats"
        self.changed("Hostile.dvs", (team_record(7) + 4, name.ljust(40)), (record(2), name.ljust(40)))
        shown, code = self.on_terminal("show", "Hostile.dvs", "--team", 7, "--lines", 1, typed=["blue line"])
        self.assertEqual((code, CONTROLS.search(shown.replace("\r\n", "\n"))), (0, None))
        self.assertTrue(shown.startswith("Password of 7 Cataracts [2J  Password of 1 Tugboats (Cataracts [2J  Password of 1 "), shown[:99])

    def test_an_interruption_of_the_question_gives_the_terminal_its_echo_back(self):
        self.league()
        for character in (b"\x03", b"\x1c"):
            terminal, other = pty.openpty()
            before = termios.tcgetattr(other)
            with subprocess.Popen([PROGRAM, "show", "League.dvs", "--team", "7"], cwd=self.folder, stdin=other, stdout=other,
                                  stderr=other, preexec_fn=self.on_terminal_of(other), start_new_session=True) as process:
                shown = b""
                while not shown.endswith(b"): "):
                    shown += os.read(terminal, 1024)
                self.assertFalse(termios.tcgetattr(other)[3] & termios.ECHO)
                os.write(terminal, character)
                self.assertIn(process.wait(timeout=PATIENCE), (-signal.SIGINT, -signal.SIGQUIT))
            self.assertEqual(termios.tcgetattr(other), before)
            os.close(terminal)
            os.close(other)

    @staticmethod
    def on_terminal_of(descriptor):
        return lambda: fcntl.ioctl(descriptor, termios.TIOCSCTTY, 0)

    def test_no_name_of_a_file_commands_a_terminal_or_forges_a_line(self):
        name = "x\x1b[31m\nL.dvs: client file, sound"
        (self.folder / name).write_bytes(b"bad")
        for verb in ("verify", "show"):
            ended = self.run_it(verb, name)
            self.assertIsNone(CONTROLS.search(ended.out + ended.err), verb)
            self.assertNotRegex(ended.out + ended.err, r"(?m)^L\.dvs: client")
        ended = self.run_it("show", "none\x1b[31m\n.dvs")
        self.expect_failure(ended, "none [31m .dvs: File not found")

    def test_no_cell_is_a_formula(self):
        names = [b"=1+1", b"+1", b"-1", b"@SUM(A1)", b"'quoted'", b"O'Neil", b"a=1", b"-"]
        rows = list(csv.DictReader(io.StringIO(self.raw("show", self.named(*names), "--roster", "--csv").decode("utf-8"), newline="")))
        free = list(csv.DictReader(io.StringIO(self.raw("show", "Hostile.dvs", "--free-agents", "--csv").decode("utf-8"), newline="")))
        found = {row["name"] for row in rows + free}
        for name, told in (("=1+1", "'=1+1"), ("+1", "'+1"), ("-1", "'-1"), ("@SUM(A1)", "'@SUM(A1)"), ("-", "'-"),
                           ("'quoted'", "'quoted'"), ("a=1", "a=1")):
            self.assertTrue(told in found, (name, told))
        self.assertTrue(all(row["team"] != "=1+1" for row in rows))
        self.assertFalse([cell for row in rows + free for cell in row.values() if cell[:1] in "=+@-" and cell])

    def test_nothing_private_of_a_team_is_told_without_its_password(self):
        changes = []
        for first, last in PRIVATE_OF_TEAM:
            at = team_record(7)
            other = team_record(5)
            changes.append((at + first, LEAGUE[other + first:other + last]))
        for at, kind in people_of(7):
            for first, last in kind:
                changes.append((at + first, b"\x01" if last - first == 1 else bytes(0xFF ^ b for b in LEAGUE[at + first:at + last])))
        self.league("A.dvs")
        self.changed("B.dvs", *changes)
        self.league("Old.dvs")
        verbs = [("show", "X.dvs", *what, *team, *form) for what in ((), ("--roster",), ("--lines", 1), ("--lines", 3, "--farm"),
                                                                   ("--free-agents",), ("--schedule",))
                 for team in ((), ("--team", 7)) for form in ((), ("--json",), ("--csv",))]
        verbs += [(*verb, *form) for verb in (("check", "X.dvs"), ("check", "X.dvs", "--team", 7), ("verify", "X.dvs"),
                                              ("diff", "Old.dvs", "X.dvs"), ("diff", "X.dvs", "Old.dvs", "--team", 7),
                                              ("diff", "Old.dvs", "X.dvs", "--team", 7)) for form in ((), ("--json",))]
        verbs += [("sheet", "X.dvs", "--team", 7), ("make", "X.dvs", "--team", 7, "--out", "o"),
                  ("offers", "X.dvs", "--team", 7, "--read", "o"), ("draft", "X.dvs", "--team", 7, "--read", "o")]
        for passwords in ([], ["7 wrong"]):
            more = ("--passwords", self.passwords(passwords))
            for verb in verbs:
                told = []
                for league in ("A.dvs", "B.dvs"):
                    (self.folder / "X.dvs").write_bytes((self.folder / league).read_bytes())
                    ended = self.run_it(*verb, *(more if verb[0] != "verify" else ()))
                    told.append((ended.code, ended.out, ended.err))
                self.assertEqual(told[0], told[1], verb)
        # And all of it is seen behind the password: the leagues do differ.
        more = ("--passwords", self.passwords())
        for verb in (("show", "--roster", "--team", 7), ("show", "--lines", 1, "--team", 7), ("sheet", "--team", 7), ("check", "--team", 7)):
            self.assertNotEqual(self.run_it(verb[0], "A.dvs", *verb[1:], *more).out.replace("A.dvs", ""),
                                self.run_it(verb[0], "B.dvs", *verb[1:], *more).out.replace("B.dvs", ""), verb)
        self.assertIn("Bank account", self.run_it("diff", "A.dvs", "B.dvs", "--team", 7, *more).out)

    def test_what_the_league_hides_of_ratings_is_told_nowhere(self):
        hidden = ((record(2) + SHOW_OVERALL, b"\0\0"), (record(2) + SHOW_ALL_RATINGS, b"\0\0"))
        swapped = [(at + SKATER_RATINGS, bytes(reversed(LEAGUE[at + SKATER_RATINGS:at + SKATER_RATINGS + 3])))
                   for at, kind in people_of(1) if kind is PRIVATE_OF_SKATER]  # one group, whose value stays
        self.changed("A.dvs", *hidden)
        self.changed("B.dvs", *hidden, *swapped)
        self.assertNotEqual((self.folder / "A.dvs").read_bytes(), (self.folder / "B.dvs").read_bytes())
        verbs = [("show", "X.dvs", "--team", 1, *form) for form in ((), ("--csv",), ("--json",))]
        verbs += [("sheet", "X.dvs", "--team", 1, *what, form) for what in ((), ("--roster",))
                  for form in ("--text", "--forum", "--markdown", "--html")]
        verbs += [("diff", "Old.dvs", "X.dvs", *form) for form in ((), ("--json",))]
        verbs += [("show", "X.dvs", "--team", 1, "--lines", 1)]
        self.league("Old.dvs")
        for old in ("League", "A.dvs"):
            if old == "A.dvs":
                (self.folder / "Old.dvs").write_bytes((self.folder / "A.dvs").read_bytes())
            for verb in verbs:
                told = []
                for league in ("A.dvs", "B.dvs"):
                    (self.folder / "X.dvs").write_bytes((self.folder / league).read_bytes())
                    ended = self.run_it(*verb)
                    told.append((ended.code, ended.out, ended.err))
                self.assertEqual(told[0], told[1], (old, verb))
        self.changed("C.dvs", *swapped)
        self.assertIn(", CK ", self.run_it("diff", self.league(), "C.dvs", "--team", 1).out)

    def test_output_that_cannot_be_written_is_a_failure_in_one_line(self):
        self.league()
        for verb in (("show",), ("check",), ("verify",), ("sheet", "--team", 1), ("show", "--csv"), ("check", "--json")):
            with open("/dev/full", "wb") as full:
                ended = subprocess.run([PROGRAM, verb[0], "League.dvs", *map(str, verb[1:])], cwd=self.folder, stdout=full,
                                       stderr=subprocess.PIPE, stdin=subprocess.DEVNULL, timeout=PATIENCE, check=False)
            self.assertEqual((ended.returncode, ended.stderr), (2, b"dravik: standard output: what is told cannot be written\n"), verb)

    def test_a_reader_that_goes_away_ends_it(self):
        self.league()
        with subprocess.Popen([PROGRAM, "show", *["League.dvs"] * 20, "--roster"], cwd=self.folder, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE) as process:
            process.stdout.readline()
            process.stdout.close()
            self.assertEqual(process.wait(timeout=PATIENCE), -signal.SIGPIPE)
            self.assertEqual(process.stderr.read(), b"")

    def test_a_target_without_a_name_is_refused(self):
        self.league()
        (self.folder / "ids.csv").write_text("id,salary,years\n")
        for verb in (("make", "--team", 1), ("sheet", "--team", 1), ("export",), ("offers", "--team", 1, "--csv", "ids.csv"),
                     ("draft", "--team", 1, "--csv", "ids.csv")):
            ended = self.run_it(verb[0], "League.dvs", *verb[1:], "--out", "")
            self.assertEqual((ended.code, ended.out), (2, ""), verb)
            self.assertEqual(ended.err, "dravik: --out: no name stands there; --help tells more\n", verb)

    def test_a_file_that_cannot_be_read_is_named(self):
        self.league()
        (self.folder / "folder").mkdir()
        (self.folder / "empty").touch()
        for verb in ("offers", "draft"):
            for name, words in (("folder", "Path/File access error"), ("none", "File not found")):
                self.expect_failure(self.run_it(verb, "League.dvs", "--team", 1, "--read", name), f"League.dvs: {name}: {words}")
        for name, words in (("folder", "cannot be read"), ("none", "cannot be read"), ("empty", 'has no column "id" in its first row')):
            ended = self.run_it("offers", "League.dvs", "--team", 1, "--csv", name, "--out", "out")
            self.expect_failure(ended, f"League.dvs: {name}: {words}")

    def test_a_limit_of_the_system_leaves_the_older_file_and_nothing_else(self):
        self.league()
        limit = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1024, 1024))
        for verb in (("sheet", "--team", "1", "--days", "1-10", "--out", "out"), ("export",)):
            (self.folder / "out").write_bytes(b"older")
            ended = subprocess.run([PROGRAM, verb[0], "League.dvs", *verb[1:]], cwd=self.folder, stdin=subprocess.DEVNULL,
                                   capture_output=True, text=True, timeout=PATIENCE, check=False, preexec_fn=limit)
            self.assertEqual((ended.returncode, ended.stdout, ended.stderr.count("\n")), (2, "", 1), verb)
            self.assertIn("Disk full", ended.stderr)
            self.assertEqual(self.files(), ["League.dvs", "out"])
            self.assertEqual((self.folder / "out").read_bytes(), b"older")

    def test_an_interruption_that_is_closed_to_it_is_none(self):
        self.league()
        ignored = lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN)
        for _ in range(20):
            with subprocess.Popen([PROGRAM, "make", "League.dvs", "--team", "1", "--out", "out"], cwd=self.folder,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, preexec_fn=ignored) as process:
                end = time.monotonic() + PATIENCE
                while process.poll() is None and len(os.listdir(self.folder)) < 2 and time.monotonic() < end:
                    pass
                process.send_signal(signal.SIGHUP)
                self.assertEqual(process.wait(timeout=PATIENCE), 0)
            self.assertEqual(self.files(), ["League.dvs", "out"])
            (self.folder / "out").unlink()

    def test_the_file_of_passwords_may_come_from_anywhere_but_a_folder(self):
        self.league()
        path = self.folder / "passwords"
        for text, code in ((b"\xef\xbb\xbf7 blue line\r\n", 0), (b"7 blue line", 0), (b"7\tblue line\n", 0), (b"7 blue line \n", 2),
                           (b"7  blue line\n", 2), (b"7 \n", 2)):
            path.write_bytes(text)
            path.chmod(0o600)
            self.assertEqual(self.run_it("check", "League.dvs", "--team", 7, "--passwords", "passwords").code, code, text)
        (self.folder / "folder").mkdir(mode=0o700)
        self.expect_failure(self.run_it("check", "League.dvs", "--passwords", "folder"), "folder: cannot be read")
        path.chmod(0o640)
        os.symlink("passwords", self.folder / "pointed")
        self.assertEqual(self.run_it("check", "League.dvs", "--passwords", "pointed").code, 2)

    def test_the_answer_is_the_same_on_however_many_threads(self):
        self.league()
        self.league("Other.dvs", "--seed", "2")
        (self.folder / "bad.dvs").write_bytes(b"bad")
        files = ["League.dvs", "Other.dvs", "bad.dvs", "none.dvs", "League.dvs"] * 3
        for verb in (("check",), ("check", "--json"), ("show", "--roster", "--csv"), ("verify", "--json"), ("show", "--json")):
            told = {(ended.code, ended.out, ended.err) for ended in
                    (self.run_it(verb[0], *files, *verb[1:], "-j", threads) for threads in (1, 2, 5, 64))}
            self.assertEqual(len(told), 1, verb)
            self.assertEqual(next(iter(told))[0], 2)

    def test_an_interruption_of_any_writer_leaves_the_older_files_alone(self):
        self.league("League.dvs", "--off-season")
        (self.folder / "offers.csv").write_text("id,salary,years\n1,700000,1\n")
        (self.folder / "ranking.csv").write_text("id\n20005\n20002\n")
        for verb, targets in ((("sheet", "--team", "1", "--days", "1-10", "--html", "--out", "out"), ["out"]),
                              (("offers", "--team", "1", "--csv", "offers.csv", "--out", "out"), ["out"]),
                              (("draft", "--team", "1", "--csv", "ranking.csv", "--out", "out"), ["out"]),
                              (("export", "--out", "."), ["PlayersRatings.csv", "CoachesRatings.csv"])):
            for target in targets:
                (self.folder / target).write_bytes(b"older")
            before = self.files()
            self.run_it(verb[0], "League.dvs", *verb[1:])
            whole = {target: (self.folder / target).read_bytes() for target in targets}
            for target in targets:
                (self.folder / target).write_bytes(b"older")
            for _ in range(25):
                with subprocess.Popen([PROGRAM, verb[0], "League.dvs", *verb[1:]], cwd=self.folder, stdin=subprocess.DEVNULL,
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
                    end = time.monotonic() + PATIENCE
                    while process.poll() is None and len(os.listdir(self.folder)) <= len(before) and time.monotonic() < end:
                        pass
                    process.send_signal(signal.SIGINT)
                    process.wait(timeout=PATIENCE)
                self.assertEqual(self.files(), before, verb)
                for target in targets:
                    self.assertIn((self.folder / target).read_bytes(), (b"older", whole[target]), (verb, target))
            for target in targets:
                (self.folder / target).unlink()


if __name__ == "__main__":
    unittest.main()
