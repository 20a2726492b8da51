#!/usr/bin/env python3
"""Runs read_lines.py on files that the program saved, and on files that are broken.

    read_lines_test.py WRITE_LINES [unittest options]

WRITE_LINES is the program that saves a lines file of random values and tells what it saved.
"""

import struct
import sys
import unittest

from saved_file import SavedFileTest, SharedChecks

SLOT = 3470
SHORTEST = 11004 * SLOT + 39


class ReadLinesTest(SharedChecks, SavedFileTest):
    KIND, SUFFIX, WRITER = "lines", ".dvl", sys.argv.pop(1)

    @classmethod
    def save_files(cls):
        cls.plain, cls.plain_told = cls.saved("plain", 1)
        cls.wrapped, cls.wrapped_told = cls.saved("wrapped", 2)

    def read_back(self, data, told):
        read = self.read(data, "--all")
        self.assertEqual(read.keys(), told.keys())
        for part in ("pro", "farm_lines"):
            self.assertEqual([len(read[part]), len(told[part])], [10, 10])
            for day in range(10):
                self.assertEqual(read[part][day], told[part][day], f"{part} day {day + 1}")
        for part, count in (("skaters", 10000), ("goalies", 1000)):
            self.assertEqual(len(read[part]), count)
            for at in range(count):
                self.assertEqual(read[part][at], told[part][at], f"{part} {at + 1}")
        self.assertEqual(read, told)

    def test_every_word_of_a_wrapped_file_is_what_the_program_held(self):
        self.read_back(self.wrapped, self.wrapped_told)

    def test_every_word_of_a_plain_file_is_what_the_program_held(self):
        self.read_back(self.plain, self.plain_told)

    def test_a_line_up_has_76_words(self):
        def words(value):
            if isinstance(value, dict):
                value = list(value.values())
            return sum(map(words, value)) if isinstance(value, list) else 1

        for day in self.plain_told["pro"] + self.plain_told["farm_lines"]:
            self.assertEqual(words(day), 76)

    def test_without_all_the_line_ups_of_day_1_stand_alone(self):
        read = self.read(self.plain)
        self.assertEqual(read["pro"], self.plain_told["pro"][0])
        self.assertEqual(read["farm_lines"], self.plain_told["farm_lines"][0])
        self.assertEqual(read["counts"], self.plain_told["counts"])
        self.assertNotIn("skaters", read)

    def test_the_program_ends_the_last_slot_with_its_record_and_fills_the_others_with_zeros(self):
        self.assertEqual(len(self.plain), SHORTEST)
        for number, used in ((1, 41), (2, 5), (3, 2), (5, 5), (10004, 5), (11004, 5)):
            rest = self.plain[(number - 1) * SLOT + used : number * SLOT]
            self.assertEqual(rest, bytes(len(rest)), f"slot {number}")

    def test_a_full_last_slot_is_read_too(self):
        full = self.plain + bytes(11005 * SLOT - SHORTEST)
        self.assertEqual(self.reader_on(full).returncode, 0)

    def test_the_rest_of_a_slot_may_hold_anything(self):
        self.assertEqual(self.reader_on(self.changed(SLOT + 5, b"anything")).returncode, 0)

    def test_a_file_of_another_length_is_refused(self):
        for data in (self.plain[:-1], self.plain + b"\0", self.plain[: 4 * SLOT]):
            self.refused(data, "no whole lines file")

    def test_a_wrong_magic_is_refused(self):
        self.refused(self.changed(34, b"X"), "the start magic is wrong")
        self.refused(self.changed(0, b"\x28"), "the start magic is wrong")
        self.refused(self.changed(SHORTEST - 1, b"D"), "the end magic is wrong")
        self.refused(self.changed(SHORTEST - 39, b"\x26"), "the end magic is wrong")

    def test_a_team_outside_1_to_100_is_refused(self):
        for number in (0, 101, -1):
            self.refused(self.changed(2 * SLOT, struct.pack("<h", number)), f"there is no team {number}")

    def test_a_wrapper_that_claims_a_byte_more_is_refused(self):
        claimed = struct.pack("<i", SHORTEST + 1)
        self.refused(claimed + self.wrapped[4:], f"claims {SHORTEST + 1} bytes and holds {SHORTEST}")

    def test_what_is_no_file_of_this_kind_is_refused(self):
        self.refused(b"", "too short")
        self.refused(b"\x26\0DRVK Client Files Version 1.12 - Start", "no whole lines file")


if __name__ == "__main__":
    unittest.main()
