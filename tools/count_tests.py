#!/usr/bin/env python3
"""Prints "PASSED FAILED": the test functions of the last ctest run in a build folder. A program that ended without its
totals counts as one failure."""

import re
import sys
from pathlib import Path

TOTALS = re.compile(r"^Totals: (\d+) passed, (\d+) failed, (\d+) skipped", re.MULTILINE)


def main() -> int:
    log = Path(sys.argv[1], "Testing", "Temporary", "LastTest.log")
    passed = failed = 0
    for section in log.read_text(encoding="utf-8", errors="replace").split("----------------------------------------------------------\n"):
        if '\nTest Pass' not in section and '\nTest Fail' not in section and '***' not in section and 'Test time' not in section:
            continue
        totals = TOTALS.findall(section)
        passed += sum(int(total[0]) for total in totals)
        # A skipped function is a failure: what cannot be tested must be told.
        broken = sum(int(total[1]) + int(total[2]) for total in totals)
        if broken == 0 and "Test Passed." not in section:
            broken = 1 if "Test time" in section else 0
        elif not totals and "Test Passed." in section:
            passed += 1
        failed += broken
    print(passed, failed)
    return 0


if __name__ == "__main__":
    sys.exit(main())
