#!/usr/bin/env python3
"""No test checks by what cannot fail it.

    checks_test.py FOLDER

The checks of the toolkit's own tests note a failure where nobody looks and return; in a test of another kind that passes. A
line with one of them, among lines without, shows that the eye sees.
"""

import pathlib
import re
import sys

DEAF = re.compile(r"\b(QTRY_\w+|QVERIFY\w*|QCOMPARE\w*|QFAIL|QSKIP|QEXPECT_FAIL)\s*\(")


def deaf_lines(text):
    """The numbers of the lines that hold such a check."""
    return [number for number, line in enumerate(text.splitlines(), 1) if DEAF.search(line)]


def main():
    example = "QTest::qWait(1);\nQTRY_COMPARE(a, b);\nEXPECT_EQ(a, b);\nQVERIFY2(a, \"b\");\nQCOMPARE_EQ(a, b);\n"
    bad = 0
    if deaf_lines(example) != [2, 4, 5]:
        print("What cannot fail was not seen.")
        bad = 1
    sources = [path for path in pathlib.Path(sys.argv[1]).rglob("*") if path.suffix in (".cpp", ".h")]
    if not sources:
        print(f"{sys.argv[1]} holds no source.")
        bad = 1
    for path in sorted(sources):
        for number in deaf_lines(path.read_text(encoding="utf-8")):
            print(f"{path}:{number} has a check that cannot fail here.")
            bad = 1
    return bad


if __name__ == "__main__":
    sys.exit(main())
