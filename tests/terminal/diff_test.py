#!/usr/bin/env python3
"""`dravik diff`: what changed between two client files, how it ends, and who may know.

    diff_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import hashlib
import struct
import unittest

from harness import TerminalTest, goalie_record, player_record, record, sample_league, team_record, unwrapped, write_wrapped

LEAGUE = bytes(unwrapped(sample_league()))
NEVER = "  Money, places and lines are not told, Password Required!: "
FILE_DATE, SALARY_CAP, CODE = 501, 393, 373  # in the league's record
TEAM, CONDITION, STATUS, RATINGS = 44, 112, 114, 115  # in a skater's
GOALIE_CONDITION = 111
PASSWORD, CASH = 247, 319  # in a team's


def digest(password):
    """What a team's record holds of its password."""
    return "".join(f"{byte:02x}" if byte >= 16 else f"0{byte:X}" for byte in hashlib.md5(password.encode("cp1252")).digest())


def name_at(at):
    return LEAGUE[at + 4:at + 44].decode("cp1252").strip()


def skaters_of(team):
    """Indices of the skaters of a team, by the page of the formats."""
    return [index for index in range(1, 10001)
            if LEAGUE[player_record(index):player_record(index) + 2] == b"\xff\xff"
            and struct.unpack_from("<h", LEAGUE, player_record(index) + TEAM)[0] == team]


class DiffTest(TerminalTest):
    def later(self, *changes, days=1.0, name="New.dvs"):
        """The sample league a day later, with other bytes: (offset, bytes)."""
        slots = bytearray(LEAGUE)
        date, = struct.unpack_from("<d", slots, record(2) + FILE_DATE)
        struct.pack_into("<d", slots, record(2) + FILE_DATE, date + days)
        for offset, new in changes:
            slots[offset:offset + len(new)] = new
        write_wrapped(self.folder / name, bytes(slots))
        return name

    def diff(self, *changes, more=(), **options):
        return self.run_it("diff", self.league("Old.dvs"), self.later(*changes, **options), *more)

    def changes(self, *changes, more=()):
        ended = self.diff(*changes, more=(*more, "--json"))
        self.assertEqual((ended.code, ended.err), (1, ""))
        league, = ended.json()["leagues"]
        return league["changes"]

    def hurt(self, skater):
        return player_record(skater) + CONDITION, b"\x46"

    def test_nothing_different_ends_with_0(self):
        ended = self.diff(more=("--passwords", self.passwords()))
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertEqual(ended.out, "New.dvs: Aurora Crown Hockey League, January 13 2031, since Old.dvs of January 12 2031\n"
                                    "  Nothing is different.\n")
        ended = self.run_it("diff", "Old.dvs", "Old.dvs")
        self.assertEqual((ended.code, len(ended.out.splitlines())), (0, 3))
        self.assertTrue(ended.out.splitlines()[2].startswith(NEVER + "3 "))

    def test_what_changed_stands_under_its_team_and_ends_with_1(self):
        own, neighbour, agent = skaters_of(1)[0], skaters_of(2)[0], skaters_of(0)[0]
        ended = self.diff((record(2) + SALARY_CAP, struct.pack("<i", 61000000)), self.hurt(neighbour),
                          (player_record(own) + TEAM, struct.pack("<h", 0)),
                          (player_record(agent) + RATINGS, bytes([LEAGUE[player_record(agent) + RATINGS] + 5])),
                          more=("--passwords", self.passwords()))
        self.assertEqual((ended.code, ended.err), (1, ""))
        lines = ended.out.splitlines()
        self.assertEqual([line for line in lines[1:] if line[2] != " "],
                         ["  The league", "  1 Port Alderney Sound Tugboats", "  2 Kestrel Bay Lanterns", "  Without a team"])
        self.assertRegex(lines[2], r"^    Salary cap: [+-]\$[0-9,]+, \$61,000,000 now$")
        self.assertIn(f"    {name_at(player_record(neighbour))}: hurt, condition 70", lines)
        self.assertIn(f"    {name_at(player_record(own))}: released by PAS", lines)
        rating = LEAGUE[player_record(agent) + RATINGS]
        self.assertRegex(lines[-1], rf"^    {name_at(player_record(agent))}: .*CK {rating} to {rating + 5}$")

    def test_the_json_says_the_same(self):
        skater, other = skaters_of(1)[0], skaters_of(2)[0]
        goalie = next(index for index in range(1, 1001)
                      if LEAGUE[goalie_record(index):goalie_record(index) + 2] == b"\xff\xff"
                      and struct.unpack_from("<h", LEAGUE, goalie_record(index) + TEAM)[0] == 4
                      and LEAGUE[goalie_record(index) + GOALIE_CONDITION] >= 95)
        found = self.changes(self.hurt(skater), (player_record(other) + TEAM, struct.pack("<h", 4)),
                             (goalie_record(goalie) + GOALIE_CONDITION, b"\x32"))
        by_kind = {(change["kind"], change["id"]): change for change in found}
        hurt = by_kind["hurt", skater]
        self.assertEqual((hurt["team"], hurt["other_team"], hurt["name"], hurt["after"]),
                         (1, None, name_at(player_record(skater)), 70))
        moved = by_kind["moved", other]
        self.assertEqual((moved["team"], moved["other_team"], moved["before"], moved["after"]), (4, 2, 2, 4))
        self.assertEqual(by_kind["hurt", 10000 + goalie]["words"], "hurt, condition 50")
        hole = by_kind["hole", skater]
        self.assertTrue(hole["pro_days"] or hole["farm_days"])
        self.assertEqual((hole["before"], hole["after"]), (None, None))

    def test_what_is_private_is_told_behind_the_password_alone(self):
        skater = skaters_of(7)[0]
        money = team_record(7) + CASH, struct.pack("<i", 123456)
        placed = player_record(skater) + STATUS, bytes([2 - LEAGUE[player_record(skater) + STATUS]])
        hurt = self.hurt(skater)
        private = {"hole", "cash", "placed"}
        for more, seen in (((), False), (("--passwords", self.passwords()), True), (("--team", 7), False),
                           (("--team", 7, "--passwords", "passwords"), True)):
            found = [change["kind"] for change in self.changes(money, placed, hurt, more=more) if change["team"] == 7]
            self.assertIn("hurt", found)
            self.assertEqual(private & set(found), {"cash", "placed", "hole"} if seen else set(), more)
        ended = self.run_it("diff", "Old.dvs", "New.dvs", "--team", 7, "--passwords", self.passwords(["7 wrong"]))
        self.assertEqual((ended.code, "123,456" in ended.out), (1, False))
        self.assertIn(NEVER + "7 O'Harrow Falls Cataracts (Password is incorrect!)\n", ended.out)
        self.assertIn("    Bank account: ", self.diff(money, more=("--passwords", self.passwords())).out)

    def test_each_file_is_opened_with_the_password_that_it_holds(self):
        other = team_record(7) + PASSWORD, digest("another").encode()
        money = team_record(7) + CASH, struct.pack("<i", 123456)
        for lines, seen in ((["7 blue line"], False), (["7 another"], False), (["7 another", "7 blue line"], True)):
            ended = self.diff(other, money, more=("--team", 7, "--passwords", self.passwords(lines)))
            self.assertEqual("$123,456 now" in ended.out, seen, lines)
        shown, code = self.on_terminal("diff", "Old.dvs", "New.dvs", "--team", 7, typed=["another", "blue line"])
        self.assertEqual((code, "$123,456 now" in shown, shown.count("Password of 7 ")), (1, True, 2))

    def test_at_a_terminal_the_password_of_both_is_asked_for_once(self):
        self.diff((team_record(7) + CASH, struct.pack("<i", 123456)))
        shown, code = self.on_terminal("diff", "Old.dvs", "New.dvs", "--team", 7, typed=["blue line"])
        self.assertEqual((code, "$123,456 now" in shown, shown.count("Password of 7 ")), (1, True, 1))
        self.assertNotIn("blue line", shown)
        shown, code = self.on_terminal("diff", "Old.dvs", "New.dvs", "--team", 7, typed=["puck"])
        self.assertEqual((code, "$123,456 now" in shown), (2, False))

    def test_one_team_has_what_concerns_it_and_the_rules(self):
        mine, theirs, agent = skaters_of(1)[0], skaters_of(2)[0], skaters_of(0)[0]
        changes = (self.hurt(theirs), self.hurt(agent), (player_record(mine) + TEAM, struct.pack("<h", 4)),
                   (record(2) + SALARY_CAP, struct.pack("<i", 61000000)))
        found = self.changes(*changes, more=("--team", 1))
        self.assertEqual([(change["kind"], change["id"]) for change in found if change["kind"] != "hole"],
                         [("salary cap", None), ("moved", mine), ("payroll", None)])
        self.assertTrue(all(change["team"] in (None, 1, 4) for change in found))
        both = self.run_it("diff", "Old.dvs", "New.dvs", "--team", 1, "--team", "Kestrel Bay Lanterns")
        self.assertIn("  2 Kestrel Bay Lanterns\n", both.out)
        self.assertNotIn("  4 ", both.out)
        ended = self.run_it("diff", "Old.dvs", "New.dvs", "--team", 5)
        self.assertEqual(len(ended.out.splitlines()), 3, ended.out)

    def test_files_in_the_other_order_are_told_of(self):
        ended = self.diff(self.hurt(skaters_of(1)[0]), days=-1)
        self.assertEqual(ended.code, 1)
        self.assertEqual(ended.err, "dravik: New.dvs: this file is the older one; Old.dvs is of a later date\n")

    def test_a_damaged_file_is_a_finding(self):
        self.diff()
        for name in ("Old.dvs", "New.dvs"):
            whole = (self.folder / name).read_bytes()
            (self.folder / name).write_bytes(whole[:-1] + bytes([whole[-1] ^ 1]))
            ended = self.run_it("diff", "Old.dvs", "New.dvs")
            self.assertEqual((ended.code, ended.err), (1, ""))
            self.assertIn(f"\n  {name}: This client file was damaged on its way, and some of it may be wrong.", ended.out)
            self.assertTrue(self.run_it("diff", "Old.dvs", "New.dvs", "--json").json()["leagues"][0]["damaged"])
            (self.folder / name).write_bytes(whole)

    def test_what_cannot_be_compared_is_a_failure_that_names_the_file(self):
        self.diff()
        self.expect_failure(self.run_it("diff", "Old.dvs", "none.dvs"), "none.dvs: File not found")
        self.expect_failure(self.run_it("diff", "none.dvs", "New.dvs"), "New.dvs: none.dvs: File not found")
        (self.folder / "bad.dvs").write_bytes(b"bad")
        self.assertTrue(self.run_it("diff", "bad.dvs", "New.dvs").err.startswith("dravik: New.dvs: bad.dvs: "))
        self.later((record(2) + CODE, b"OTHER"), name="Other.dvs")
        self.expect_failure(self.run_it("diff", "Old.dvs", "Other.dvs"),
                            "Other.dvs: Old.dvs: this client file is of another league")
        self.expect_failure(self.run_it("diff", "Old.dvs", "New.dvs", "--team", 13), "New.dvs: there is no team 13")
        ended = self.run_it("diff", "Old.dvs", "none.dvs", "--json")
        self.assertEqual((ended.code, ended.json()), (2, {"leagues": [{"file": "none.dvs", "error": "File not found"}]}))

    def test_what_is_asked_wrongly_ends_with_2(self):
        for arguments in (("Old.dvs",), (), ("a", "b", "c"), ("a", "b", "--csv"), ("a", "b", "--passwords", "none")):
            ended = self.run_it("diff", *arguments)
            self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1), arguments)

    def test_no_file_changes(self):
        self.diff(self.hurt(skaters_of(1)[0]))
        before = [(self.folder / name).read_bytes() for name in ("Old.dvs", "New.dvs")]
        self.run_it("diff", "Old.dvs", "New.dvs", "--passwords", self.passwords())
        self.assertEqual([(self.folder / name).read_bytes() for name in ("Old.dvs", "New.dvs")], before)
        self.assertEqual(self.files(), ["New.dvs", "Old.dvs", "passwords"])


if __name__ == "__main__":
    unittest.main()
