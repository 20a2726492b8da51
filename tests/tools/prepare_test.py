"""What tools/prepare installs, on systems whose packages are played by scripts."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
PREPARE = Path(__file__).resolve().parent.parent.parent / "tools" / "prepare"

# Every one of them notes what it was called with.
PLAYED = {
    "dpkg-query": 'for name; do :; done; grep -qx "$name" "$SYSTEM/missing" || echo "install ok installed"',
    "apt-cache": 'grep -qx "$2" "$SYSTEM/known"',
    "apt-get": 'echo "$@" >>"$SYSTEM/calls"; [ "$1" != update ] || cp "$SYSTEM/known-later" "$SYSTEM/known"',
    "id": "echo 0",
}


class System:
    """Debian with some packages missing, `known` ones in its lists, and `known_later` ones once the lists were fetched."""

    def __init__(self, folder, missing, known, known_later=None):
        self.folder = Path(folder)
        for name, lines in (("missing", missing), ("known", known),
                            ("known-later", known if known_later is None else known_later), ("calls", [])):
            (self.folder / name).write_text("".join(line + "\n" for line in lines))
        for name, text in PLAYED.items():
            command = self.folder / name
            command.write_text("#!/bin/sh\n" + text + "\n")
            command.chmod(0o755)

    def prepare(self, *purposes):
        """Ends well; the packages that it had installed, in the order of the call, or nothing when it called nobody."""
        environment = {**os.environ, "SYSTEM": str(self.folder), "PATH": f"{self.folder}:{os.environ['PATH']}"}
        environment.pop("TOOLS_PREPARE_DRY_RUN", None)
        subprocess.run([PREPARE, *purposes], env=environment, check=True, stdout=subprocess.DEVNULL)
        calls = (self.folder / "calls").read_text().splitlines()
        return [word for call in calls if call.startswith("install") for word in call.split()[1:]
                if not word.startswith("-")] if calls else None


class PrepareTest(unittest.TestCase):
    def prepare(self, *purposes, **system):
        with tempfile.TemporaryDirectory() as folder:
            return System(folder, **system).prepare(*purposes)

    def test_what_is_missing_is_installed(self):
        self.assertEqual(self.prepare("build", missing=["cmake", "libisal-dev"], known=["libisal-dev"]),
                         ["cmake", "libisal-dev"])

    def test_a_distribution_without_the_faster_inflater_gets_the_rest(self):
        self.assertEqual(self.prepare("build", missing=["cmake", "libisal-dev"], known=[]), ["cmake"])
        self.assertEqual(self.prepare("fuzz", missing=["clang", "libisal-dev"], known=[]), ["clang"])

    def test_the_faster_inflater_is_looked_for_in_fresh_lists(self):
        self.assertEqual(self.prepare("build", missing=["cmake", "libisal-dev"], known=[], known_later=["libisal-dev"]),
                         ["cmake", "libisal-dev"])

    def test_only_the_faster_inflater_missing_is_installed_where_there_is_one(self):
        self.assertEqual(self.prepare("build", missing=["libisal-dev"], known=["libisal-dev"]), ["libisal-dev"])

    def test_where_nothing_more_can_be_had_nothing_is_done(self):
        self.assertIsNone(self.prepare("build", missing=["libisal-dev"], known=[]))
        self.assertIsNone(self.prepare("build", "fuzz", "bench", missing=[], known=[]))


unittest.main()
