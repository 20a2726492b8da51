#!/usr/bin/env python3
"""Runs read_draft.py on files that the program saved, and on files that are broken.

    read_draft_test.py WRITE_DRAFT [unittest options]

WRITE_DRAFT is the program that saves a draft file of random choices and tells what it saved.
"""

import json
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

READER = pathlib.Path(__file__).with_name("read_draft.py")
WRITE_DRAFT = sys.argv.pop(1)
SLOT = 12
WHOLE = 1005 * SLOT
FIRST = 3 * SLOT


def run_reader(*arguments):
    return subprocess.run([sys.executable, READER, *arguments], capture_output=True, text=True, check=False)


class ReadDraftTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.path = pathlib.Path(cls.folder.name)
        cls.full, cls.full_told = cls.saved("plain", 1, 1001)
        cls.plain, cls.plain_told = cls.saved("plain", 2, 300)
        cls.wrapped, cls.wrapped_told = cls.saved("wrapped", 3, 700)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @classmethod
    def saved(cls, form, seed, count):
        file, told = cls.path / f"{seed}.dvd", cls.path / f"{seed}.json"
        subprocess.run([WRITE_DRAFT, form, str(seed), str(count), file, told], check=True)
        return file.read_bytes(), json.loads(told.read_text(encoding="ascii"))

    def reader_on(self, data):
        file = self.path / "case.dvd"
        file.write_bytes(data)
        return run_reader(str(file))

    def refused(self, data, reason):
        result = self.reader_on(data)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertIn(reason, result.stderr)

    def changed(self, at, value):
        return self.plain[:at] + value + self.plain[at + len(value) :]

    def read_back(self, data, told, count):
        result = self.reader_on(data)
        self.assertEqual(result.returncode, 0, result.stderr)
        read = json.loads(result.stdout)
        self.assertEqual(len(read["choices"]), count)
        for rank, (got, wanted) in enumerate(zip(read["choices"], told["choices"])):
            self.assertEqual(got, wanted, f"rank {rank}")
        self.assertEqual(read, told)

    def test_every_choice_of_a_wrapped_file_is_what_the_program_held(self):
        self.read_back(self.wrapped, self.wrapped_told, 700)

    def test_every_choice_of_a_plain_file_is_what_the_program_held(self):
        self.read_back(self.plain, self.plain_told, 300)

    def test_a_full_list_is_read_to_its_last_choice(self):
        self.read_back(self.full, self.full_told, 1001)

    def test_skaters_goalies_and_prospects_are_among_them(self):
        self.assertEqual({kind for kind, _ in self.full_told["choices"]}, {"skater", "goalie", "prospect"})

    def test_the_program_fills_the_slots_with_zeros(self):
        self.assertEqual(len(self.plain), WHOLE)
        for number, used in ((2, 5), (3, 2), (4, 2), (303, 2), (304, 0), (1004, 0)):
            rest = self.plain[(number - 1) * SLOT + used : number * SLOT]
            self.assertEqual(rest, bytes(len(rest)), f"slot {number}")

    def test_the_wrapper_is_the_length_and_a_stream_of_level_9(self):
        self.assertEqual(self.wrapped[:6], struct.pack("<i", WHOLE) + b"\x78\xda")
        self.assertEqual(len(zlib.decompress(self.wrapped[4:])), WHOLE)

    def test_the_rest_of_a_slot_may_hold_anything(self):
        self.assertEqual(self.reader_on(self.changed(FIRST + 2, b"anything")).returncode, 0)

    def test_a_file_of_another_length_is_refused(self):
        for data in (self.plain[:-1], self.plain + b"\0", self.plain[:FIRST]):
            self.refused(data, "no whole draft file")

    def test_a_wrong_magic_is_refused(self):
        self.refused(self.changed(11, b"E"), "the start magic is wrong")
        self.refused(self.changed(0, b"\x0b"), "the start magic is wrong")
        self.refused(self.changed(WHOLE - 1, b"S"), "the end magic is wrong")
        self.refused(self.changed(WHOLE - SLOT, b"\x0b"), "the end magic is wrong")

    def test_what_is_no_team_and_no_player_is_refused(self):
        for team in (0, 101, -1):
            self.refused(self.changed(2 * SLOT, struct.pack("<h", team)), f"there is no team {team}")
        for player in (-1, 11001, 20000, 20301):
            self.refused(self.changed(FIRST, struct.pack("<h", player)), f"there is no player {player}")

    def test_a_gap_in_the_list_is_refused(self):
        self.refused(self.changed(FIRST + SLOT, b"\0\0"), "behind the end of the list")

    def test_a_broken_wrapper_is_refused(self):
        self.refused(struct.pack("<i", WHOLE - 1) + self.wrapped[4:], f"claims {WHOLE - 1} bytes and holds {WHOLE}")
        self.refused(struct.pack("<i", WHOLE + 1) + self.wrapped[4:], f"claims {WHOLE + 1} bytes")
        self.refused(self.wrapped[:-4], "the stream has no end")
        self.refused(self.wrapped + b"\0", "something stands behind the stream")
        self.refused(self.wrapped[:-1] + bytes([self.wrapped[-1] ^ 1]), "the stream is damaged")

    def test_a_file_that_is_not_there_and_a_wrong_call_end_with_2(self):
        self.assertEqual(run_reader(str(self.path / "missing.dvd")).returncode, 2)
        self.assertEqual(run_reader().returncode, 2)
        self.assertEqual(run_reader("--every", "file").returncode, 2)


if __name__ == "__main__":
    unittest.main()
