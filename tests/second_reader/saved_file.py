"""What the tests of the second readers have in common: files that the program saved, and the reader run on any bytes."""

import json
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib


class SavedFileTest(unittest.TestCase):
    """A test names its reader's KIND ("lines") and the ending of its files (SUFFIX), takes the program that saves them from
    the command line (WRITER), and gets the files that it asks `saved` for in `setUpClass`; `plain` and `wrapped` are those
    that the shared checks change."""

    KIND = SUFFIX = WRITER = ""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.path = pathlib.Path(folder.name)
        cls.save_files()

    @classmethod
    def saved(cls, form, seed, *count):
        """Bytes of a file that the program saved, and what it told of the tables."""
        file, told = cls.path / f"{form}{seed}{cls.SUFFIX}", cls.path / f"{form}{seed}.json"
        subprocess.run([cls.WRITER, form, str(seed), file, told, *map(str, count)], check=True)
        return file.read_bytes(), json.loads(told.read_text(encoding="ascii"))

    @classmethod
    def run_reader(cls, *arguments):
        reader = pathlib.Path(__file__).with_name(f"read_{cls.KIND}.py")
        return subprocess.run([sys.executable, reader, *arguments], capture_output=True, text=True, check=False)

    def reader_on(self, data, *options):
        file = self.path / f"case{self.SUFFIX}"
        file.write_bytes(data)
        return self.run_reader(*options, str(file))

    def read(self, data, *options):
        result = self.reader_on(data, *options)
        self.assertEqual(result.returncode, 0, result.stderr)
        return json.loads(result.stdout)

    def refused(self, data, reason):
        result = self.reader_on(data)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertIn(reason, result.stderr)

    def changed(self, at, value):
        return self.plain[:at] + value + self.plain[at + len(value) :]


class SharedChecks:
    """What holds for every kind of file that the program saves."""

    def test_the_wrapper_is_the_length_and_a_stream_of_level_9(self):
        content = zlib.decompress(self.wrapped[4:])
        self.assertEqual(self.wrapped[:6], struct.pack("<i", len(content)) + b"\x78\xda")

    def test_a_wrapper_that_does_not_hold_what_it_claims_is_refused(self):
        length = len(zlib.decompress(self.wrapped[4:]))
        self.refused(struct.pack("<i", length - 1) + self.wrapped[4:], f"claims {length - 1} bytes and holds {length}")
        for claimed in (length + 1, 0, -1, 2147483647):
            self.refused(struct.pack("<i", claimed) + self.wrapped[4:], f"claims {claimed} bytes")

    def test_a_broken_stream_is_refused(self):
        self.refused(self.wrapped[:-1] + bytes([self.wrapped[-1] ^ 1]), "the stream is damaged")
        self.refused(self.wrapped[:-4], "the stream has no end")
        self.refused(self.wrapped + b"\0", "something stands behind the stream")
        self.refused(self.wrapped[:4] + zlib.compress(self.plain, 1), "does not begin as one of level 9")

    def test_a_file_that_is_not_there_and_a_wrong_call_end_with_2(self):
        self.assertEqual(self.run_reader(str(self.path / f"missing{self.SUFFIX}")).returncode, 2)
        self.assertEqual(self.run_reader(str(self.path)).returncode, 2)
        self.assertEqual(self.run_reader().returncode, 2)
        self.assertEqual(self.run_reader("--every", "file").returncode, 2)
