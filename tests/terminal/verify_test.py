#!/usr/bin/env python3
"""`dravik verify`: which files are sound, and what is wrong with the others.

    verify_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import hashlib
import pathlib
import random
import struct
import unittest
import zlib

from harness import (SLOT, TerminalTest, goalie_record, player_record, record, sample_league, team_record, unwrapped,
                     write_wrapped)

LEAGUE = bytes(unwrapped(sample_league()))
CODE = 373  # of the league, in its record
CORPUS = pathlib.Path(__file__).resolve().parents[2] / "fuzz" / "corpus"


def magic(text):
    return struct.pack("<h", len(text)) + text.encode()


def slots(records, length, last_full=False):
    body = b"".join(one.ljust(length, b"\0") for one in records[:-1]) + records[-1]
    return body.ljust(len(records) * length, b"\0") if last_full else body


def lines_file(team=1, team_bytes=None, changes=None):
    return [magic("DRVK Lineups Files Version 1.01 - Start"), b"AMA79", struct.pack("<h", team),
            team_bytes or LEAGUE[team_record(team):team_record(team) + SLOT],
            *(changes or [b"\2\0\0\xff\xff"] * 11000), magic("DRVK Lineups Files Version 1.01 - End")]


def offer(who, team=1, salary=900000, years=2):
    return struct.pack("<hhihi", who, team, salary, years, 0) + b" " * 1000


def offers_file(*offers):
    return [magic("DRVK Free Agents Files Version 1 - Start"), b"AMA79", struct.pack("<h", 1), *offers]


def draft_file(*ids):
    ranks = list(ids) + [0] * (1001 - len(ids))
    return [magic("DRVKFDFV1S"), b"AMA79", struct.pack("<h", 1), *(struct.pack("<h", rank) for rank in ranks),
            magic("DRVKFDFV1E")]


def seal(before, data):
    value = 0xCBF29CE484222325
    for byte in struct.pack("<Q", before) + data:
        value = (value ^ byte) * 0x100000001B3 % 2 ** 64
    return value


def journal():
    layout = seal(0, b"".join(struct.pack("<i", number) for number in (
        565, 347000, 1550155, 142142, 32500, 12000, 90000, 50000, 5000, 11154000, 2002, 3470, 247, 32)))
    head = magic("DRVKJNFV1S") + struct.pack("<Q", layout) + b"AMA79" + hashlib.md5(b"").digest() + struct.pack("<dd", 40000, 46000)
    head += struct.pack("<Q", seal(0, head))
    entry = struct.pack("<iBd", 0, 7, 46000.5)
    return head, entry + struct.pack("<Q", seal(struct.unpack("<Q", head[-8:])[0], entry))


class VerifyTest(TerminalTest):
    def put(self, slots_bytes, name="File"):
        write_wrapped(self.folder / name, slots_bytes)
        return name

    def expect_sound(self, name, kind):
        ended = self.run_it("verify", name)
        self.assertEqual((ended.code, ended.err, ended.out), (0, "", f"{name}: {kind}, sound\n"))

    def findings(self, name):
        ended = self.run_it("verify", name, "--json")
        self.assertEqual((ended.code, ended.err), (1, ""))
        file, = ended.json()["files"]
        self.assertFalse(file["sound"])
        self.assertEqual(file["count"], len(file["findings"]))
        return file["findings"]

    def changed(self, at, new):
        return self.put(LEAGUE[:at] + new + LEAGUE[at + len(new):])

    def test_every_sort_of_league_is_sound(self):
        for options in ((), ("--off-season",), ("--deadline",), ("--full",), ("--divisions", "4"), ("--plain",)):
            self.expect_sound(self.league("League.dvs", *options), "client file")

    def test_files_of_a_team_are_sound(self):
        for last_full in (False, True):
            self.expect_sound(self.put(slots(lines_file(), SLOT, last_full)), "lines file of team 1")
            self.expect_sound(self.put(slots(draft_file(5, 10001, 20300), 12, last_full)), "draft file of team 1")
        self.expect_sound(self.put(slots(offers_file(offer(5), offer(10001)), 1014)), "offer file of team 1")
        (self.folder / "Plain").write_bytes(slots(lines_file(), SLOT))
        self.expect_sound("Plain", "lines file of team 1")

    def test_a_journal_is_sound_up_to_its_end(self):
        head, entry = journal()
        (self.folder / "Journal").write_bytes(head + entry)
        self.expect_sound("Journal", "journal")
        (self.folder / "Journal").write_bytes(head + entry + b"half of an entry")
        self.assertEqual(self.findings("Journal"), [f"Its entries are whole up to byte {len(head + entry)} of {len(head + entry) + 16}"])
        (self.folder / "Journal").write_bytes(head[:-1] + bytes([head[-1] ^ 1]) + entry)
        self.assertEqual(len(self.findings("Journal")), 1)

    def test_a_wrong_checksum_and_a_cut_stream_are_found(self):
        whole = (self.folder / self.league()).read_bytes()
        (self.folder / "League.dvs").write_bytes(whole[:-1] + bytes([whole[-1] ^ 1]))
        self.assertEqual(self.findings("League.dvs"),
                         ["Its stream is damaged: it does not come to its end, or does not fit its checksum"])
        (self.folder / "League.dvs").write_bytes(whole[:len(whole) // 2])
        found = self.findings("League.dvs")
        self.assertRegex(found[0], "^It ends in front of Player [0-9]+$")
        self.assertEqual(found[1:], ["Its stream is damaged: it does not come to its end, or does not fit its checksum"])

    def test_a_wrong_length_field_is_found(self):
        whole = (self.folder / self.league()).read_bytes()
        (self.folder / "League.dvs").write_bytes(struct.pack("<i", len(LEAGUE) + 5000) + whole[4:])
        self.assertEqual(self.findings("League.dvs"), [f"The length that its wrapper tells is wrong: {len(LEAGUE) + 5000} bytes"])

    def test_wrong_magics_and_lengths_are_found(self):
        self.assertEqual(self.findings(self.put(LEAGUE[:-1] + b"X")), ["The end magic is wrong"])
        self.assertEqual(self.findings(self.put(LEAGUE.ljust(16903 * SLOT, b"\0") + b"more")),
                         ["It goes on behind its end", f"The length that its wrapper tells is wrong: {16903 * SLOT + 4} bytes"])
        cut = LEAGUE[:goalie_record(7)]
        self.assertEqual(self.findings(self.put(cut)),
                         ["It ends in front of Goalie 7", f"The length that its wrapper tells is wrong: {len(cut)} bytes"])
        (self.folder / "Plain").write_bytes(cut)
        self.assertEqual(self.findings("Plain"), ["It ends in front of Goalie 7", f"Its length is wrong: {len(cut)} bytes"])

    def test_fields_out_of_range_are_found_with_their_records(self):
        skater = next(index for index in range(1, 10001)
                      if LEAGUE[player_record(index):player_record(index) + 2] == b"\xff\xff")
        at = player_record(skater)
        for offset, new, words in ((55, b"\x09", "Position: 9 is not from 1 to 4"),
                                   (114, b"\x03", "Status: 3 is not from 0 to 2"),
                                   (112, b"\x65", "Condition: 101 is not from 0 to 100"),
                                   (44, b"\x65\0", "Team: 101 is not from 0 to 100"),
                                   (57, b"\x01\0", "Rookie: 1 is neither true nor false"),
                                   (67, b"\xff\xff\xff\xff", "Salary: -1 is below 0"),
                                   (115, b"\x65\0", "Stats(1): 101 is not from 0 to 100")):
            self.assertEqual(self.findings(self.changed(at + offset, new)), [f"Player {skater}, {words}"])
        self.assertEqual(self.findings(self.changed(at + 2, struct.pack("<h", skater % 10000 + 1))),
                         [f"Player {skater}, Number: {skater % 10000 + 1} stands in slot {skater}"])
        self.assertEqual(self.findings(self.changed(team_record(1) + 343, b"\xff\xff")),
                         ["Team 1, ProLines(1).NormalForward(1,1): -1 is not from 0 to 10000"])
        self.assertEqual(self.findings(self.changed(team_record(1) + 1910 + 152 * 9 + 108, b"\xe9\x03")),
                         ["Team 1, Farm.FarmLines(10).StartGoalie: 1001 is not from 0 to 1000"])
        self.assertEqual(self.findings(self.changed(record(2) + 441, b"\x01\0")),
                         ["League, WaiverAllowed: 1 is neither true nor false"])
        self.assertEqual(self.findings(self.changed(record(2) + 501, struct.pack("<d", 1e9))), ["League, FileDate is no date"])

    def test_slots_that_are_not_in_use_may_hold_anything(self):
        team = team_record(13)
        self.assertEqual(LEAGUE[team:team + 2], b"\0\0")
        self.expect_sound(self.changed(team + 2, b"\x7f" * 300), "client file")

    def test_files_of_a_team_are_looked_at_record_by_record(self):
        changes = [b"\2\0\0\xff\xff"] * 11000
        changes[41] = b"\x0a\0\0\0\0"
        changes[10002] = b"\0\5\0\0\0"
        self.assertEqual(self.findings(self.put(slots(lines_file(changes=changes), SLOT))),
                         ["RosterChange of skater 42, Status: 10 is not from 0 to 2",
                          "RosterChange of goalie 3, Protected: 5 is neither true nor false"])
        self.assertEqual(self.findings(self.put(slots(offers_file(offer(5), offer(5), offer(7, years=0), offer(9, team=2)), 1014))),
                         ["FreeAgentOffer 2, Id: 5 stands behind 5", "FreeAgentOffer 3, Duration: 0 is not from 1 to 9",
                          "FreeAgentOffer 4, Team: 2 is not the team of the file"])
        self.assertEqual(self.findings(self.put(slots(draft_file(5, 0, 6, 20301), 12))),
                         ["rank 3: somebody stands behind an empty rank", "rank 4: nobody has the number 20301"])

    def test_what_is_no_file_of_the_system_is_found_and_what_is_not_there_is_a_failure(self):
        for content in (b"", b"x", b"something else", zlib.compress(b"x" * 5000), b"\x10\x27\0\0" + zlib.compress(b"x" * 10000)):
            (self.folder / "File").write_bytes(content)
            self.assertEqual(self.findings("File"), ["It is no file of the system, or nothing of it is left"])
        self.expect_failure(self.run_it("verify", "Missing"), "Missing: File not found")
        (self.folder / "Folder").mkdir()
        self.assertEqual(self.run_it("verify", "Folder").code, 2)

    def test_the_damaged_of_many_are_named_in_order(self):
        names = []
        for number in range(30):
            ids = [5, 5] if number % 7 == 3 else [5, 6]
            body = slots(draft_file(*ids), 12)
            names.append(self.put(body[:-1] + b"?" if number % 7 == 3 else body, f"{number:02}.dvd"))
        ended = self.run_it("verify", "-j", 4, *names)
        self.assertEqual(ended.code, 1)
        heads = [line for line in ended.out.splitlines() if not line.startswith(" ")]
        self.assertEqual([line.split(":")[0] for line in heads], names)
        self.assertEqual([line[:2] for line in heads if line.endswith("damaged")], ["03", "10", "17", "24"])

    def test_hostile_files_end_well(self):
        dice = random.Random(12)
        files = []
        for path in sorted(CORPUS.rglob("*")):
            if path.is_file():
                content = path.read_bytes()
                for way, data in (("raw", content), ("wrapped", struct.pack("<i", len(content)) + zlib.compress(content))):
                    name = f"{len(files)}.{way}"
                    (self.folder / name).write_bytes(data)
                    files.append(name)
        whole = sample_league().read_bytes()
        for number in range(40):
            broken = bytearray(whole)
            for _ in range(dice.randint(1, 20)):
                broken[dice.randrange(len(broken))] = dice.randrange(256)
            (self.folder / f"broken{number}").write_bytes(broken)
            files.append(f"broken{number}")
        # Behind a sound wrapper a league opens: its rules, its first teams and their people hold anything.
        for number in range(24):
            inside = bytearray(LEAGUE)
            starts = [record(2)] + [at(index) for at, most in ((team_record, 8), (player_record, 300), (goalie_record, 40))
                                    for index in range(1, most)]
            for _ in range(10 ** dice.randint(1, 4)):
                inside[dice.choice(starts) + dice.randrange(SLOT)] = dice.randrange(256)
            inside[record(2) + CODE:record(2) + CODE + 5] = LEAGUE[record(2) + CODE:record(2) + CODE + 5]
            write_wrapped(self.folder / f"inside{number}", bytes(inside))
            files.append(f"inside{number}")
        self.assertGreater(len(files), 200)
        for verb in ("verify", "check"):
            ended = self.run_it(verb, "-j", 2, "--json", *files)
            self.assertIn(ended.code, (1, 2), verb)
            answers = ended.json()["files" if verb == "verify" else "leagues"]
            self.assertEqual([answer["file"] for answer in answers], files)
            for line in ended.err.splitlines():
                self.assertTrue(line.startswith("dravik: "), line)
            self.assertEqual(len(ended.err.splitlines()), sum("error" in answer for answer in answers))
        self.league()
        opened = [answer["file"] for answer in answers if "error" not in answer]
        self.assertGreaterEqual(len(opened), 24)
        for name in opened:
            for arguments in (("diff", "League.dvs", name), ("diff", name, "League.dvs"),
                              ("sheet", name, "--team", 1, "--days", "1-10"), ("sheet", name, "--team", 1, "--roster", "--html")):
                ended = self.run_it(*arguments)
                self.assertIn(ended.code, (0, 1, 2), arguments)
                self.assertTrue(all(line.startswith("dravik: ") for line in ended.err.splitlines()), arguments)
                self.assertEqual(ended.code == 2, ended.out == "", arguments)


if __name__ == "__main__":
    unittest.main()
