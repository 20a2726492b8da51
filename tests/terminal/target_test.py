#!/usr/bin/env python3
"""What the verbs that write must not replace: whatever was named in the place of a file of theirs by mistake.

    target_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import os
import shutil
import unittest

from harness import TerminalTest, unwrapped, write_wrapped

# What is added to a verb's arguments to have it write "--out" of this ending, and what it writes.
WRITERS = {
    "make": (("--team", 1), "lines file"),
    "sheet": (("--team", 1), "text"),
    "offers": (("--team", 1, "--csv", "offers.csv"), "offer file"),
    "draft": (("--team", 1, "--csv", "ranking.csv"), "draft file"),
}


class TargetTest(TerminalTest):
    def setUp(self):
        super().setUp()
        self.league("League.dvs", "--off-season")
        (self.folder / "ranking.csv").write_text("id\n20005\n20002\n")
        agent = self.run_it("show", "League.dvs", "--free-agents", "--csv").out.splitlines()[1].split(",")[0]
        (self.folder / "offers.csv").write_text(f"id,salary,years\n{agent},700000,2\n")

    def contents(self):
        return {str(path.relative_to(self.folder)): path.read_bytes() for path in self.folder.rglob("*") if path.is_file()}

    def write(self, verb, out, *more, league="League.dvs"):
        return self.run_it(verb, league, *WRITERS[verb][0], *more, "--out", out)

    def expect_refused(self, verb, out, words, *more, league="League.dvs"):
        before = self.contents()
        ended = self.write(verb, out, *more, league=league)
        self.assertEqual(ended.out, "", (verb, out))
        self.expect_failure(ended, f"{league}: {out}: {words}")
        self.assertEqual(self.contents(), before, (verb, out))

    def test_the_league_itself_is_kept_under_whatever_name(self):
        os.link(self.folder / "League.dvs", self.folder / "linked.dvl")
        os.symlink("League.dvs", self.folder / "pointed.dvl")
        (self.folder / "folder").mkdir()
        for out in ("League.dvs", "./League.dvs", "folder/../League.dvs", self.folder / "League.dvs", "linked.dvl", "pointed.dvl"):
            for verb in WRITERS:
                self.expect_refused(verb, out, "this file is read for it, and is not replaced")
        self.assertTrue((self.folder / "pointed.dvl").is_symlink())

    def test_another_client_file_is_known_by_what_is_in_it(self):
        whole = (self.folder / "League.dvs").read_bytes()
        (self.folder / "other.txt").write_bytes(whole)
        (self.folder / "half.txt").write_bytes(whole[:5000])
        (self.folder / "plain.txt").write_bytes(unwrapped(self.folder / "League.dvs"))
        for verb in WRITERS:
            for out in ("other.txt", "half.txt", "plain.txt"):
                self.expect_refused(verb, out, "a client file stands there, and is not replaced")

    def test_files_of_a_kind_are_replaced_by_their_own_kind_alone(self):
        made = {verb: f"made.{verb}" for verb in WRITERS}
        for verb, out in made.items():
            self.assertEqual(self.write(verb, out).code, 0, verb)
        for verb in WRITERS:
            for other, out in made.items():
                if other == verb or other == "sheet":
                    before = (self.folder / out).read_bytes()
                    shutil.copy(self.folder / out, self.folder / "kept")
                    self.assertEqual(self.write(verb, out).code, 0, (verb, out))
                    if other == verb:
                        self.assertEqual((self.folder / out).read_bytes(), before)
                    shutil.copy(self.folder / "kept", self.folder / out)
                    (self.folder / "kept").unlink()
                else:
                    self.expect_refused(verb, out, f"a {WRITERS[other][1]} stands there, and is not replaced")

    def test_tables_passwords_and_lines_that_are_read_are_kept(self):
        self.passwords(["1 x"])
        for verb in WRITERS:
            self.expect_refused(verb, "passwords", "this file is read for it, and is not replaced", "--passwords", "passwords")
        self.expect_refused("offers", "./offers.csv", "this file is read for it, and is not replaced")
        self.expect_refused("draft", "./ranking.csv", "this file is read for it, and is not replaced")
        self.assertEqual(self.write("make", "1.dvl").code, 0)
        self.expect_refused("sheet", "./1.dvl", "this file is read for it, and is not replaced", "--lines", "1.dvl")

    def test_what_is_no_file_is_kept(self):
        (self.folder / "folder").mkdir()
        os.mkfifo(self.folder / "pipe")
        for verb in WRITERS:
            for out in ("folder", "pipe", "/dev/null", "/dev/full"):
                self.expect_refused(verb, out, "what stands there is no file, and is not replaced")
        self.assertTrue((self.folder / "pipe").is_fifo())

    def test_export_keeps_what_is_called_like_its_files(self):
        for name in ("PlayersRatings.csv", "CoachesRatings.csv"):
            shutil.copy(self.folder / "League.dvs", self.folder / name)
            before = self.contents()
            for league, words in (("League.dvs", "a client file stands there"), (name, "this file is read for it")):
                self.expect_failure(self.run_it("export", league), f"{league}: ./{name}: {words}, and is not replaced")
                self.assertEqual(self.contents(), before)
            (self.folder / name).unlink()
        self.assertEqual(self.run_it("export", "League.dvs").code, 0)

    def test_anything_else_is_replaced(self):
        for verb in WRITERS:
            (self.folder / "other").write_bytes(b"\x78\x9c a letter to somebody")
            self.assertEqual(self.write(verb, "other").code, 0, verb)
            self.assertNotIn(b"letter", (self.folder / "other").read_bytes())
        write_wrapped(self.folder / "other", b"what is no file of the system")
        self.assertEqual(self.write("make", "other").code, 0)


if __name__ == "__main__":
    unittest.main()
