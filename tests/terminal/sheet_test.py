#!/usr/bin/env python3
"""`dravik sheet`: a team's lines and roster in four forms, and who may have them.

    sheet_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import html.parser
import struct
import unittest

from harness import TerminalTest, player_record, record, sample_league, team_record, unwrapped, write_wrapped

LEAGUE = bytes(unwrapped(sample_league()))
TITLE = "Port Alderney Sound Tugboats, pro lines"
FORMS = ("--text", "--forum", "--markdown", "--html")
SHOW_OVERALL, SCHEDULE_SHOWN = 417, 437  # in the league's record
FIRST_CENTER = 343  # in a team's: line 1 of the pro lines of day 1


def name_in_slot(offset, farm=False):
    index, = struct.unpack_from("<h", LEAGUE, team_record(1) + offset)
    at = player_record(index)
    return LEAGUE[at + 4:at + 44].decode("cp1252").strip()


class Words(html.parser.HTMLParser):
    """What a page of HTML says, without its tags."""

    def __init__(self, page):
        super().__init__()
        self.words, self.tags = [], []
        self.feed(page)

    def handle_starttag(self, tag, attributes):
        self.tags.append((tag, dict(attributes)))

    def handle_data(self, data):
        self.words.append(data)


class SheetTest(TerminalTest):
    def sheet(self, *arguments, league="League.dvs"):
        if not (self.folder / league).exists():
            self.league(league)
        ended = self.run_it("sheet", league, *arguments)
        self.assertEqual((ended.code, ended.err), (0, ""), arguments)
        return ended.out

    def changed_league(self, *changes):
        slots = bytearray(LEAGUE)
        for offset, new in changes:
            slots[offset:offset + len(new)] = new
        write_wrapped(self.folder / "Changed.dvs", bytes(slots))
        return "Changed.dvs"

    def test_the_lines_of_the_next_game_stand_in_columns(self):
        lines = self.sheet("--team", 1).splitlines()
        self.assertEqual(lines[:3], [TITLE, "League: Aurora Crown Hockey League", "Date: January 12 2031"])
        self.assertEqual([line for line in lines if line.startswith("Lines ")], ["Lines 1, game day 93 at Tarnhelm Smiths"])
        first = lines[lines.index("Forward Lines") + 2]
        self.assertRegex(first, rf"^Line 1  .+ \([0-9]+\)  {name_in_slot(FIRST_CENTER)} \([0-9]+\)  .+")
        self.assertEqual(self.sheet("--team", 1, "--text"), self.sheet("--team", 1))

    def test_all_forms_say_the_same(self):
        text = self.sheet("--team", 11, "--days", "1-2")
        self.assertEqual(self.sheet("--team", 11, "--days", "1-2", "--forum"), f"[code]\n{text}[/code]\n")
        words = set(text.replace("=", " ").split())
        self.assertIn("Côte-Vermeil", words)
        for form in ("--html", "--markdown"):
            page = self.sheet("--team", 11, "--days", "1-2", form)
            said = Words(page).words if form == "--html" else [page.replace("\\", "")]
            self.assertEqual(words - set(" ".join(said).split()), set(), form)

    def test_the_page_of_html_says_its_encoding_and_needs_nothing(self):
        page = Words(self.sheet("--team", 11, "--html"))
        self.assertEqual([about["charset"] for tag, about in page.tags if tag == "meta"], ["utf-8"])
        self.assertFalse({"script", "img", "link", "a"} & {tag for tag, _ in page.tags})

    def test_a_name_stands_as_it_is(self):
        at = player_record(struct.unpack_from("<h", LEAGUE, team_record(1) + FIRST_CENTER)[0])
        league = self.changed_league((at + 4, "<b>É*[/code]".encode("cp1252").ljust(40)))
        self.assertIn("<b>É*[/code] (", self.sheet("--team", 1, league=league))
        self.assertIn("<b>É*[\xad/code] (", self.sheet("--team", 1, "--forum", league=league))
        self.assertIn("&lt;b&gt;É*[/code] (", self.sheet("--team", 1, "--html", league=league))
        self.assertIn(r"\<b\>É\*\[/code\] (", self.sheet("--team", 1, "--markdown", league=league))

    def test_days_side_and_roster_are_what_was_asked_for(self):
        heads = lambda text, word: [line for line in text.splitlines() if line.startswith(word)]
        self.assertEqual(len(heads(self.sheet("--team", 1, "--days", "1-10"), "Lines ")), 10)
        day, = heads(self.sheet("--team", 1, "--days", 4), "Lines ")
        self.assertTrue(day.startswith("Lines 4"))
        farm = self.sheet("--team", 1, "--farm")
        self.assertEqual(farm.splitlines()[0], "Upper Locks Bargemen, farm lines")
        self.assertNotIn(name_in_slot(FIRST_CENTER), farm)
        roster = self.sheet("--team", 1, "--roster").splitlines()
        self.assertEqual(roster[0], "Port Alderney Sound Tugboats, roster")
        people = self.run_it("show", "League.dvs", "--team", 1, "--json").json()["leagues"][0]["rows"]
        for person in people:
            self.assertTrue(any(line.startswith(person["name"] + "  ") for line in roster), person["name"])

    def test_what_the_league_hides_stands_on_no_sheet(self):
        league = self.changed_league((record(2) + SHOW_OVERALL, b"\0\0"), (record(2) + SCHEDULE_SHOWN, b"\0\0"))
        for form in FORMS:
            page = self.sheet("--team", 1, form, league=league)
            self.assertNotRegex(page, r"\([0-9]+\)")
            self.assertNotIn("Tarnhelm", page)
            self.assertNotIn("Overall", self.sheet("--team", 1, "--roster", form, league=league))

    def test_lines_and_roster_are_behind_the_password(self):
        self.league()
        for what in ((), ("--roster",), ("--farm", "--html")):
            ended = self.run_it("sheet", "League.dvs", "--team", 7, *what)
            self.expect_failure(ended, "League.dvs: team 7 O'Harrow Falls Cataracts: Password Required!")
            self.assertEqual(ended.out, "")
        wrong = self.run_it("sheet", "League.dvs", "--team", 7, "--passwords", self.passwords(["7 wrong"]), "--out", "7.txt")
        self.expect_failure(wrong, "League.dvs: team 7 O'Harrow Falls Cataracts: Password is incorrect!")
        self.assertEqual(self.files(), ["League.dvs", "passwords"])
        self.assertIn("O'Harrow Falls Cataracts, roster",
                      self.sheet("--team", 7, "--roster", "--passwords", self.passwords()))
        shown, code = self.on_terminal("sheet", "League.dvs", "--team", 7, typed=["blue line"])
        self.assertEqual((code, "O'Harrow Falls Cataracts, pro lines" in shown, "blue line" in shown), (0, True, False))

    def test_a_lines_file_stands_in_the_place_of_the_league_s_lines(self):
        self.league()
        self.assertEqual(self.run_it("make", "League.dvs", "--team", 5, "--roster", "--lines", "--farm", "--out", "5.dvl").code, 0)
        before = self.sheet("--team", 5, "--days", "1-10")
        after = self.sheet("--team", 5, "--days", "1-10", "--lines", "5.dvl")
        self.assertRegex(before, r"\nLine 2  .+ -\n")  # a hole that the makers filled
        self.assertNotRegex(after, r"\nLine 2  .+ -\n")
        ended = self.run_it("sheet", "League.dvs", "--team", 1, "--lines", "5.dvl")
        self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1))
        self.assertIn("5.dvl", ended.err)
        self.league("Other.dvs", "--seed", "2")
        self.assertEqual(self.run_it("sheet", "Other.dvs", "--team", 5, "--lines", "5.dvl").code, 2)
        self.expect_failure(self.run_it("sheet", "League.dvs", "--team", 5, "--lines", "none.dvl"),
                            "League.dvs: none.dvl: File not found")

    def test_a_file_is_written_whole_in_the_place_of_an_older_one(self):
        shown = self.sheet("--team", 1, "--html")
        (self.folder / "1.html").write_text("older")
        self.assertEqual(self.sheet("--team", 1, "--html", "--out", "1.html"),
                         "Sheet of Port Alderney Sound Tugboats saved at 1.html\n")
        self.assertEqual((self.folder / "1.html").read_text(encoding="utf-8"), shown)
        self.assertEqual(self.files(), ["1.html", "League.dvs"])
        self.expect_failure(self.run_it("sheet", "League.dvs", "--team", 1, "--out", "none/1.txt"),
                            "League.dvs: none/1.txt: Path not found")
        (self.folder / "folder").mkdir()
        ended = self.run_it("sheet", "League.dvs", "--team", 1, "--out", "folder")
        self.assertEqual((ended.code, ended.err.count("\n")), (2, 1))
        self.assertEqual(self.files(), ["1.html", "League.dvs", "folder"])

    def test_a_damaged_league_is_told_of(self):
        whole = (self.folder / self.league()).read_bytes()
        (self.folder / "League.dvs").write_bytes(whole[:-1] + bytes([whole[-1] ^ 1]))
        ended = self.run_it("sheet", "League.dvs", "--team", 1)
        self.assertEqual((ended.code, ended.out.splitlines()[0]), (0, TITLE))
        self.assertTrue(ended.err.startswith("dravik: League.dvs: This client file was damaged on its way"))

    def test_what_is_asked_wrongly_ends_with_2_and_one_line(self):
        self.league()
        for arguments in ((), ("--team", 13), ("--team", 1, "--days", 0), ("--team", 1, "--days", "1-11"),
                          ("--team", 1, "--days", "3-2"), ("--team", 1, "--text", "--html"), ("--team", 1, "--roster", "--farm"),
                          ("--team", 1, "--roster", "--days", 2), ("--team", 1, "--team", 2), ("--team", 1, "--json")):
            ended = self.run_it("sheet", "League.dvs", *arguments)
            self.assertEqual((ended.code, ended.out, ended.err.count("\n")), (2, "", 1), arguments)
            self.assertTrue(ended.err.startswith("dravik: "))
        self.expect_failure(self.run_it("sheet", "none.dvs", "--team", 1), "none.dvs: File not found")


if __name__ == "__main__":
    unittest.main()
