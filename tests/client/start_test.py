#!/usr/bin/env python3
"""Starts the program in a home of its own and looks at what it does to the processes and files around it.

    start_test.py CLIENT [unittest options]
"""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest

CLIENT = sys.argv.pop(1)
PATIENCE = 60  # seconds, for a machine that has much else to do
PLATFORM_NOTE = "This plugin does not support "  # what a desktop without a screen says of windows, sooner or later
NAME = "Dravik Hockey Simulator Client"
LOCK = "dravik-client-gm.lock"


class StartTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        self.lock = self.home / "run" / LOCK
        (self.home / "run").mkdir(mode=0o700)
        self.settings = self.home / "config" / NAME / f"{NAME}.conf"
        self.running = []
        self.addCleanup(self.end_all)

    def end_all(self):
        for client in self.running:
            client.kill()
            client.wait()

    def start(self, *arguments):
        environment = dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config"),
                           XDG_RUNTIME_DIR=str(self.home / "run"), USER="gm", QT_QPA_PLATFORM="offscreen")
        environment.pop("DBUS_SESSION_BUS_ADDRESS", None)
        client = subprocess.Popen([CLIENT, *arguments], env=environment, cwd=self.home, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.running.append(client)
        self.addCleanup(client.stdout.close)
        return client

    def wait_for(self, what, client):
        end = time.monotonic() + PATIENCE
        while not what():
            self.assertIsNone(client.poll(), "the program ended")
            self.assertLess(time.monotonic(), end, "it took too long")
            time.sleep(0.02)

    def owner_of_lock(self):
        try:
            return int(self.lock.read_text(encoding="utf-8").split("\n")[0])
        except (FileNotFoundError, ValueError):
            return 0

    def start_and_wait(self, *arguments):
        client = self.start(*arguments)
        self.wait_for(lambda: self.owner_of_lock() == client.pid, client)
        return client

    def test_it_runs_until_it_is_ended(self):
        client = self.start_and_wait()
        with self.assertRaises(subprocess.TimeoutExpired):
            client.wait(timeout=1)
        client.send_signal(signal.SIGTERM)
        self.assertEqual(client.wait(timeout=PATIENCE), -signal.SIGTERM)

    def test_one_that_waits_with_its_box_behind_another_never_takes_its_place(self):
        first = self.start_and_wait()
        second = self.start()
        with self.assertRaises(subprocess.TimeoutExpired):
            second.wait(timeout=2)
        self.assertEqual(self.owner_of_lock(), first.pid)
        first.kill()
        first.wait()
        self.start_and_wait()
        self.assertIsNone(second.poll(), "its box is still up")

    def test_what_a_killed_one_left_behind_stops_nobody(self):
        killed = self.start_and_wait()
        killed.kill()
        killed.wait()
        self.assertTrue(self.lock.exists())
        self.start_and_wait()

    def test_the_arguments_of_the_toolkit_mean_nothing(self):
        client = self.start("-platform", "there is none", "-stylesheet", "/nowhere", "-reverse", "League.dvs")
        self.wait_for(lambda: self.owner_of_lock() == client.pid, client)
        with self.assertRaises(subprocess.TimeoutExpired):
            client.wait(timeout=1)
        client.kill()
        said = client.communicate()[0].splitlines()
        self.assertEqual([line for line in said if not line.startswith(PLATFORM_NOTE)], [])

    def test_settings_that_cannot_be_read_are_set_aside_and_a_fresh_file_is_begun(self):
        self.settings.parent.mkdir(parents=True)
        broken = "[Settings\nLastLoadLeague\x00=%%%\n"
        self.settings.write_text(broken, encoding="utf-8")
        client = self.start_and_wait()
        aside = self.settings.with_name(self.settings.name + ".broken")
        self.wait_for(aside.exists, client)
        self.assertEqual(aside.read_text(encoding="utf-8"), broken)


if __name__ == "__main__":
    unittest.main()
