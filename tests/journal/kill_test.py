#!/usr/bin/env python3
"""Kills random evenings at random moments, starts the program again and looks at what it brings back.

    kill_test.py JOURNAL_EVENING

DRAVIK_KILLS names how many kills instead of the usual 50, and DRAVIK_KILLS_SEED the first seed.
"""

import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 120  # seconds, for a machine that has much else to do
DEATHS = 5      # of one league's evening


def states(log):
    """The states that were noted; the last one may be torn."""
    text = log.read_text(encoding="ascii") if log.exists() else ""
    return text[: text.rfind("\n") + 1].split()


def play_and_kill(program, folder, league, evening, log, choose, environment):
    """Plays until some states were noted, and some moments more. False when the program ended by itself."""
    wanted = choose.randint(1, 30)
    moment = choose.random() * 0.02
    with subprocess.Popen([program, "play", folder, str(league), str(evening), log], env=environment,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE) as process:
        end = time.monotonic() + PATIENCE
        while len(states(log)) < wanted and process.poll() is None and time.monotonic() < end:
            time.sleep(0.002)
        time.sleep(moment)
        ended = process.poll()
        process.send_signal(signal.SIGKILL)
        said = process.communicate()[1].decode(errors="replace")
    if ended is not None:
        print(f"the evening ended with {ended}: {said}")
    return ended is None


def main():
    program = sys.argv[1]
    kills = int(os.environ.get("DRAVIK_KILLS", "50"))
    seed = int(os.environ.get("DRAVIK_KILLS_SEED", "1"))
    choose = random.Random(seed)
    told = wrong = moved = behind = before = 0
    while told < kills:
        league = seed + told // DEATHS
        with tempfile.TemporaryDirectory() as place:
            environment = dict(os.environ, TMPDIR=place)
            folder = os.path.join(place, "journal")
            for death in range(min(DEATHS, kills - told)):
                log = pathlib.Path(place) / f"log{death}"
                evening = choose.randint(1, 1000000)
                if not play_and_kill(program, folder, league, evening, log, choose, environment):
                    return 1
                noted = states(log)
                back = subprocess.run([program, "back", folder, str(league)], env=environment, capture_output=True,
                                      text=True, check=False)
                told += 1
                moved += len(set(noted)) > 1
                state = back.stdout.strip()
                if noted[-1:] == [state]:
                    behind += 1
                elif noted[-2:-1] == [state]:
                    before += 1
                if back.returncode != 0 or not noted or state not in noted[-2:]:
                    wrong += 1
                    where = [at for at, other in enumerate(noted) if other == state]
                    print(f"league {league}, evening {evening}, death {death}: {len(noted)} states, brought back "
                          f"number {where}; {back.stderr}")
    print(f"{told} kills, {moved} of them behind a change; brought back to the last state {behind} times, to the one before it "
          f"{before} times, to none of them {wrong} times")
    return 1 if wrong or moved * 2 < told else 0


if __name__ == "__main__":
    sys.exit(main())
