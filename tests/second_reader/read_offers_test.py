#!/usr/bin/env python3
"""Runs read_offers.py on files that the program saved, and on files that are broken.

    read_offers_test.py WRITE_OFFERS [unittest options]

WRITE_OFFERS is the program that saves an offer file of random values and tells what it saved.
"""

import struct
import sys
import unittest

from saved_file import SavedFileTest, SharedChecks

SLOT = 1014
FIRST = 3 * SLOT


class ReadOffersTest(SharedChecks, SavedFileTest):
    KIND, SUFFIX, WRITER = "offers", ".dvf", sys.argv.pop(1)

    @classmethod
    def save_files(cls):
        cls.plain, cls.plain_told = cls.saved("plain", 1)
        cls.wrapped, cls.wrapped_told = cls.saved("wrapped", 2)

    def read_back(self, data, told):
        read = self.read(data)
        self.assertEqual(len(read["offers"]), len(told["offers"]))
        for got, wanted in zip(read["offers"], told["offers"]):
            self.assertEqual(got, wanted)
        self.assertEqual(read, told)

    def test_every_offer_of_a_wrapped_file_is_what_the_program_held(self):
        self.read_back(self.wrapped, self.wrapped_told)

    def test_every_offer_of_a_plain_file_is_what_the_program_held(self):
        self.read_back(self.plain, self.plain_told)

    def test_a_full_file_ends_with_record_999(self):
        self.assertEqual(len(self.plain), 999 * SLOT)
        self.assertEqual(len(self.plain_told["offers"]), 996)

    def test_comments_that_were_never_written_are_among_them(self):
        edited = [offer["edited"] for offer in self.plain_told["offers"]]
        self.assertIn(True, edited)
        self.assertIn(False, edited)

    def test_the_program_fills_the_slots_of_the_head_with_zeros(self):
        for number, used in ((1, 42), (2, 5), (3, 2)):
            rest = self.plain[(number - 1) * SLOT + used : number * SLOT]
            self.assertEqual(rest, bytes(len(rest)), f"slot {number}")

    def test_the_rest_of_a_slot_of_the_head_may_hold_anything(self):
        self.assertEqual(self.reader_on(self.changed(SLOT + 5, b"anything")).returncode, 0)

    def test_a_file_that_ends_within_an_offer_or_before_the_first_is_refused(self):
        for data in (self.plain[:-1], self.plain + b"\0", self.plain[:FIRST], self.plain[: 2 * SLOT]):
            self.refused(data, "no whole offer file")

    def test_a_997th_offer_is_refused(self):
        self.refused(self.plain + self.plain[-SLOT:], "too many offers")

    def test_a_wrong_magic_is_refused(self):
        self.refused(self.changed(34, b"X"), "the start magic is wrong")
        self.refused(self.changed(0, b"\x27"), "the start magic is wrong")

    def test_an_offer_that_is_none_is_refused(self):
        self.refused(self.changed(2 * SLOT, struct.pack("<h", 101)), "there is no team 101")
        self.refused(self.changed(FIRST, struct.pack("<h", 11001)), "there is no player 11001")
        self.refused(self.changed(FIRST + 2, struct.pack("<h", 0)), "is of team 0")
        self.refused(self.changed(FIRST + 8, struct.pack("<h", 10)), "is for 10 years")

    def test_offers_out_of_order_are_refused(self):
        first, second = self.plain[FIRST : FIRST + SLOT], self.plain[FIRST + SLOT : FIRST + 2 * SLOT]
        self.refused(self.changed(FIRST, second + first), "out of order")
        self.refused(self.changed(FIRST, first + first), "out of order")


if __name__ == "__main__":
    unittest.main()
