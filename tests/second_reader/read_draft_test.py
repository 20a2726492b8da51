#!/usr/bin/env python3
"""Runs read_draft.py on files that the program saved, and on files that are broken.

    read_draft_test.py WRITE_DRAFT [unittest options]

WRITE_DRAFT is the program that saves a draft file of random choices and tells what it saved.
"""

import struct
import sys
import unittest

from saved_file import SavedFileTest, SharedChecks

SLOT = 12
WHOLE = 1005 * SLOT
FIRST = 3 * SLOT


class ReadDraftTest(SharedChecks, SavedFileTest):
    KIND, SUFFIX, WRITER = "draft", ".dvd", sys.argv.pop(1)

    @classmethod
    def save_files(cls):
        cls.full, cls.full_told = cls.saved("plain", 1, 1001)
        cls.plain, cls.plain_told = cls.saved("plain", 2, 300)
        cls.wrapped, cls.wrapped_told = cls.saved("wrapped", 3, 700)

    def read_back(self, data, told, count):
        read = self.read(data)
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


if __name__ == "__main__":
    unittest.main()
