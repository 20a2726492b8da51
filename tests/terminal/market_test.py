#!/usr/bin/env python3
"""`dravik offers` and `dravik draft`: tables to files and back, with the limits of the league.

    market_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import csv
import io
import struct
import unittest

from harness import TerminalTest, record, sample_league, unwrapped, write_wrapped

LEAGUE = bytes(unwrapped(sample_league()))
LEAST, MOST = struct.unpack_from("<ii", LEAGUE, record(2) + 397)  # the limits of a salary


class MarketTest(TerminalTest):
    def write(self, name, header, rows):
        with open(self.folder / name, "w", encoding="utf-8", newline="") as file:
            csv.writer(file).writerows([header, *rows])
        return name

    def agents(self):
        answer = self.run_it("show", self.league(), "--free-agents", "--json").json()["leagues"][0]["rows"]
        return [row["id"] for row in answer if row["team"] is None]

    def rows_of(self, ended):
        return list(csv.DictReader(io.StringIO(ended.out)))


class OffersTest(MarketTest):
    HEADER = ("id", "salary", "years", "bonus", "comment")

    def save(self, *rows, header=HEADER, league="League.dvs"):
        return self.run_it("offers", league, "--team", 1, "--csv", self.write("o.csv", header, rows), "--out", "o.dvf")

    def test_what_is_written_is_read_back(self):
        agents = self.agents()
        goalie = next(who for who in agents if who > 10000)
        rows = [(agents[3], LEAST, 2, 1000, "Côte d'Or 12"), (goalie, MOST, 9, 0, ""), (agents[0], LEAST + 5, 1, -7, "x")]
        ended = self.save(*rows)
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertEqual(ended.out.count(" was offer $"), 3)
        self.assertEqual(self.run_it("verify", "o.dvf").out, "o.dvf: offer file of team 1, sound\n")
        read = self.rows_of(self.run_it("offers", "League.dvs", "--team", 1, "--read", "o.dvf"))
        self.assertEqual([tuple(row[name] for name in self.HEADER) for row in read],
                         [tuple(map(str, row)) for row in sorted(rows)])
        self.assertEqual(self.files(), ["League.dvs", "o.csv", "o.dvf"])

    def test_limits_are_those_of_the_box_and_told(self):
        agent = self.agents()[0]
        ended = self.save((agent, MOST + 1, 10, "", ""))
        self.assertEqual(ended.code, 1)
        self.assertEqual(ended.err.count("\n"), 2)
        self.assertTrue(ended.err.startswith("dravik: League.dvs: o.csv, row 2, salary: "))
        row, = self.rows_of(self.run_it("offers", "League.dvs", "--team", 1, "--read", "o.dvf"))
        self.assertEqual((int(row["salary"]), row["years"]), (MOST, "9"))

    def test_what_the_box_refuses_writes_nothing(self):
        agent = self.agents()[0]
        for row in ((agent, "a", 1, "", ""), (agent, LEAST, "1x", "", ""), (agent, LEAST, 1, "?", ""), (agent, LEAST, 1, 0, "<b>"),
                    (0, LEAST, 1, 0, ""), ("x", LEAST, 1, 0, ""), (11001, LEAST, 1, 0, "")):
            ended = self.save(row)
            self.assertEqual((ended.code, ended.out), (2, ""), row)
            self.assertIn("o.csv, row 2", ended.err)
            self.assertEqual(self.files(), ["League.dvs", "o.csv"])
        ended = self.save((agent, LEAST, 1, 0, ""), (agent, LEAST, 2, 0, ""))
        self.expect_failure(ended, "League.dvs: o.csv, row 3: this person has an offer above")

    def test_somebody_under_contract_cannot_be_made_an_offer(self):
        rows = self.run_it("show", self.league(), "--team", 2, "--json").json()["leagues"][0]["rows"]
        signed = next(row["id"] for row in rows if row["contract"] > 0)
        self.expect_failure(self.save((signed, LEAST, 1, 0, "")), f"League.dvs: o.csv, row 2: number {signed} cannot be made an offer")

    def test_a_table_without_offers_is_refused_in_the_words_of_the_windows(self):
        self.league()
        self.expect_failure(self.save(), "League.dvs: No Offer to Save!")
        self.expect_failure(self.save(("5",), header=("id",)), 'League.dvs: o.csv: has no column "salary" in its first row')

    def test_behind_the_deadline_there_are_none(self):
        self.league("Late.dvs", "--deadline")
        self.expect_failure(self.save(league="Late.dvs"), "Late.dvs: no offers can be made: the trade deadline is in force")

    def test_they_are_behind_the_password(self):
        ended = self.run_it("offers", self.league(), "--team", 3, "--read", "x.dvf")
        self.assertRegex(ended.err, "^dravik: League.dvs: team 3 .+: Password Required!\n$")
        self.assertEqual(ended.code, 2)

    def test_a_file_of_another_team_is_refused(self):
        self.save((self.agents()[0], LEAST, 1, 0, ""))
        self.expect_failure(self.run_it("offers", "League.dvs", "--team", 2, "--read", "o.dvf"),
                            "League.dvs: o.dvf: this is no offer file of this league and this team, or it is damaged")
        self.expect_failure(self.run_it("offers", "League.dvs", "--team", 2, "--read", "none.dvf"),
                            "League.dvs: none.dvf: File not found")

    def test_one_way_has_to_be_asked_for(self):
        for arguments in ((), ("--csv", "x"), ("--out", "x"), ("--read", "x", "--csv", "y", "--out", "z")):
            self.assertEqual(self.run_it("offers", self.league(), "--team", 1, *arguments).code, 2)


class DraftTest(MarketTest):
    def save(self, *ids):
        self.league("Summer.dvs", "--off-season")
        return self.run_it("draft", "Summer.dvs", "--team", 1, "--csv", self.write("d.csv", ("id",), [(one,) for one in ids]),
                           "--out", "d.dvd")

    def prospects(self):
        slots = unwrapped(sample_league("--off-season"))
        return [20000 + at for at in range(1, 301) if slots[record(2 + at):record(2 + at) + 40].strip(b" \0")]

    def test_what_is_written_is_read_back_in_its_order(self):
        ids = self.prospects()[:20][::-1]
        ended = self.save(*ids)
        self.assertEqual((ended.code, ended.err), (0, ""))
        self.assertEqual(ended.out, "Entry Draft File save for Port Alderney Sound Tugboats succesfully at d.dvd\n")
        self.assertEqual(self.run_it("verify", "d.dvd").out, "d.dvd: draft file of team 1, sound\n")
        read = self.rows_of(self.run_it("draft", "Summer.dvs", "--team", 1, "--read", "d.dvd"))
        self.assertEqual([(int(row["rank"]), int(row["id"])) for row in read], list(enumerate(ids, 1)))

    def test_who_cannot_be_drafted_is_left_out_and_told(self):
        first, second = self.prospects()[:2]
        ended = self.save(first, 1, second, first)
        self.assertEqual(ended.code, 1)
        self.assertRegex(ended.err, "^dravik: Summer.dvs: .+ can no longer be drafted.\n$")
        read = self.rows_of(self.run_it("draft", "Summer.dvs", "--team", 1, "--read", "d.dvd"))
        self.assertEqual([int(row["id"]) for row in read], [first, second])

    def test_an_empty_ranking_and_a_league_without_a_draft_are_refused(self):
        self.assertEqual(self.save().code, 2)
        self.assertEqual(self.save("x").code, 2)
        self.assertEqual(self.files(), ["Summer.dvs", "d.csv"])
        ended = self.run_it("draft", self.league(), "--team", 1, "--csv", "d.csv", "--out", "d.dvd")
        self.expect_failure(ended, "League.dvs: no draft is ahead")


if __name__ == "__main__":
    unittest.main()
