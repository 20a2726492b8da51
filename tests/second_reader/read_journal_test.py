#!/usr/bin/env python3
"""Runs read_journal.py on journals that the program wrote, and on some that are broken.

    read_journal_test.py WRITE_JOURNAL [unittest options]

WRITE_JOURNAL is the program that writes the journal of a random evening and tells what the league came to.
"""

import json
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

WRITER = sys.argv.pop(1)
READER = pathlib.Path(__file__).with_name("read_journal.py")
HEAD = 65
ENTRY = 13


class ReadJournalTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.path = pathlib.Path(folder.name)
        cls.small, cls.small_told = cls.written(1, 6)

    @classmethod
    def written(cls, seed, steps):
        file, told = cls.path / f"{seed}.journal", cls.path / f"{seed}.json"
        subprocess.run([WRITER, file, told, str(seed), str(steps)], check=True)
        return file.read_bytes(), json.loads(told.read_text(encoding="ascii"))

    @classmethod
    def run_reader(cls, *arguments):
        return subprocess.run([sys.executable, READER, *arguments], capture_output=True, text=True, check=False)

    def reader_on(self, data):
        file = self.path / "case.journal"
        file.write_bytes(data)
        return self.run_reader(str(file))

    def read(self, data):
        result = self.reader_on(data)
        self.assertEqual(result.returncode, 0, result.stderr)
        return json.loads(result.stdout)

    @staticmethod
    def total(read):
        """Of each byte that differs from the beginning: before and after."""
        total = {}
        for change in [read["beginning"], *(step["change"] for step in read["steps"][: read["done"]])]:
            for table, place, before, after in change:
                first = total.get((table, place), (before, before))
                assert first[1] == before, "the steps do not follow each other"
                total[table, place] = (first[0], after)
        return [[*place, *values] for place, values in sorted(total.items()) if values[0] != values[1]]

    def check(self, data, told):
        read = self.read(data)
        self.assertEqual(read["whole"], len(data))
        self.assertEqual(self.total(read), told["total"])
        self.assertEqual(read["saved"], told["saved"])
        self.assertEqual(read["kept"], told["kept"])
        labels = [[step["words"], step["where"], step["team"], step["drag"]] for step in read["steps"]]
        self.assertEqual(labels[: read["done"]][::-1], told["done"])
        self.assertEqual(labels[read["done"] :], told["undone"])

    def test_evenings_come_to_what_the_league_came_to(self):
        self.check(self.small, self.small_told)
        for seed in range(2, 8):
            with self.subTest(seed=seed):
                self.check(*self.written(seed, 60))

    def test_the_head_says_whose_it_is(self):
        read = self.read(self.small)
        self.assertEqual(read["league"], "AB\xe9 9")
        self.assertEqual(read["digest"], bytes(17 * i for i in range(16)).hex())
        self.assertEqual((read["file_date"], read["begun"]), (45999.5, 46000.25))

    def bounds(self):
        ends = [HEAD]
        while ends[-1] < len(self.small):
            ends.append(ends[-1] + ENTRY + struct.unpack_from("<i", self.small, ends[-1])[0] + 8)
        return ends

    def test_of_a_truncated_journal_the_whole_entries_are_read(self):
        bounds = self.bounds()
        self.assertGreater(len(bounds), 5)
        for number, end in enumerate(bounds):
            self.assertEqual(self.read(self.small[:end])["entries"], number)
            if number:
                self.assertEqual(self.read(self.small[: end - 1])["entries"], number - 1)

    def test_behind_a_changed_byte_nothing_is_read(self):
        bounds = self.bounds()
        for number, start in enumerate(bounds[:-1]):
            for at in (start, start + 4, start + 5, start + ENTRY, bounds[number + 1] - 1):
                data = bytearray(self.small)
                data[at] ^= 0x10
                self.assertEqual(self.read(bytes(data))["entries"], number, at)

    def test_a_head_that_is_not_whole_is_refused(self):
        for data, reason in ((b"", "it is no journal"), (self.small[: HEAD - 1], "the head is not whole"),
                             (self.small[:30] + b"\x99" + self.small[31:], "the seal of the head is wrong")):
            result = self.reader_on(data)
            self.assertEqual((result.returncode, result.stdout), (1, ""))
            self.assertIn(reason, result.stderr)

    def test_a_file_that_is_not_there_and_a_wrong_call_end_with_2(self):
        self.assertEqual(self.run_reader(str(self.path / "missing.journal")).returncode, 2)
        self.assertEqual(self.run_reader().returncode, 2)
        self.assertEqual(self.run_reader("--every", "file").returncode, 2)


if __name__ == "__main__":
    unittest.main()
