#!/usr/bin/env python3
"""No variable that could change stands outside of functions, or static in one, below the windows' session.

    state_test.py --with-state LIBRARY --without LIBRARY...

Reads the symbols of the built libraries: whatever lies in a writable section of the finished program is state. A library that
is known to have some shows that the eye sees.
"""

import argparse
import re
import subprocess
import sys

# Written once by the dynamic linker and then sealed.
SEALED = re.compile(r"^\.data\.rel\.ro(\.|$)|^\.data\.rel\.local\.DW\.ref\.")
WRITABLE = re.compile(r"^\.(data|bss|tdata|tbss)(\.|$)|^\*COM\*$")


def state_in(table):
    """The names of the objects in writable sections, from a table that objdump -tC wrote."""
    found = []
    for line in table.splitlines():
        match = re.match(r"^[0-9a-f]+ (.{7}) (\S+)\t([0-9a-f]+)\s+(?:\.hidden )?(.*)$", line)
        if not match:
            continue
        flags, section, size, name = match.groups()
        if "O" not in flags and section != "*COM*":
            continue
        if int(size, 16) > 0 and WRITABLE.match(section) and not SEALED.match(section):
            found.append(f"{name} ({section})")
    return found


def state_of(library):
    table = subprocess.run(["objdump", "-tC", library], capture_output=True, text=True, check=True).stdout
    return state_in(table)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--with-state", required=True)
    parser.add_argument("--without", nargs="+", required=True)
    options = parser.parse_args()
    bad = 0
    if not any("OpenLeague" in name for name in state_of(options.with_state)):
        print(f"{options.with_state} holds the open league, and it was not seen.")
        bad = 1
    for library in options.without:
        for name in state_of(library):
            print(f"{library} has state: {name}")
            bad = 1
    return bad


if __name__ == "__main__":
    sys.exit(main())
