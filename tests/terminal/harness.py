"""The program for the terminal, run as a process on leagues of the sample league's tool.

Every test script takes two paths on its command line, the program and the tool, before unittest's own options.
"""

import atexit
import functools
import json
import os
import pathlib
import pty
import select
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import unittest
import zlib

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
TOOL = pathlib.Path(sys.argv.pop(1)).resolve()
PATIENCE = 120  # seconds, for a machine that has much else to do
SAMPLE_PASSWORDS = {3: "puck", 7: "blue line", 12: "IceBox1"}

LEAGUES = pathlib.Path(tempfile.mkdtemp())
atexit.register(shutil.rmtree, LEAGUES, ignore_errors=True)


@functools.lru_cache(maxsize=None)
def sample_league(*options):
    """The path of a sample league, made once a process: options of the tool, as --seed 2."""
    path = LEAGUES / f"{'_'.join(options).replace('-', '') or 'League'}.dvs"
    subprocess.run([TOOL, *(options if "--seed" in options else ("--seed", "1", *options)), "--out", path], check=True,
                   stdout=subprocess.DEVNULL)
    return path


class Ended:
    """What a run left behind."""

    def __init__(self, process):
        self.code, self.out, self.err = process.returncode, process.stdout, process.stderr

    def json(self):
        return json.loads(self.out)


class TerminalTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def league(self, name="League.dvs", *options):
        """A copy of a sample league in the folder of the test."""
        shutil.copy(sample_league(*options), self.folder / name)
        return name

    def run_it(self, *arguments):
        return Ended(subprocess.run([PROGRAM, *map(str, arguments)], cwd=self.folder, stdin=subprocess.DEVNULL,
                                    capture_output=True, text=True, encoding="utf-8", timeout=PATIENCE, check=False))

    def passwords(self, lines=None, mode=0o600):
        path = self.folder / "passwords"
        if lines is None:
            lines = [f"{team} {password}" for team, password in SAMPLE_PASSWORDS.items()]
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        path.chmod(mode)
        return "passwords"

    def files(self):
        return sorted(str(path.relative_to(self.folder)) for path in self.folder.rglob("*"))

    def expect_failure(self, ended, words):
        """One line on the standard error, and the ending of a failure."""
        self.assertEqual(ended.code, 2, ended.err)
        self.assertEqual(ended.err, f"dravik: {words}\n")

    def on_terminal(self, *arguments, typed=(), hesitates=0):
        """Runs the program on a terminal of its own and types a line whenever it asks, after so many seconds. What the terminal
        showed, and the code."""
        pid, terminal = pty.fork()
        if pid == 0:
            try:
                os.chdir(self.folder)
                os.execv(PROGRAM, [str(PROGRAM), *map(str, arguments)])
            finally:
                os._exit(127)
        shown = b""
        waiting = list(typed)
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            ready, _, _ = select.select([terminal], [], [], 0.1)
            if not ready:
                continue
            try:
                piece = os.read(terminal, 4096)
            except OSError:
                break
            if not piece:
                break
            shown += piece
            if waiting and shown.endswith(b": "):
                time.sleep(hesitates)
                os.write(terminal, waiting.pop(0).encode() + b"\n")
        _, status = os.waitpid(pid, 0)
        os.close(terminal)
        return shown.decode(), os.waitstatus_to_exitcode(status)


def unwrapped(path):
    """The slots of a wrapped file."""
    return zlib.decompress(pathlib.Path(path).read_bytes()[4:])


def write_wrapped(path, slots):
    pathlib.Path(path).write_bytes(struct.pack("<i", len(slots)) + zlib.compress(slots, 1))


# Where things stand in a client file, as docs/formats.md tells.
SLOT = 3470


def record(number):
    """Where record `number`, counted from 1, begins."""
    return (number - 1) * SLOT


def team_record(team):
    return record(302 + team)


def player_record(index):
    return record(402 + index)


def goalie_record(index):
    return record(10402 + index)
