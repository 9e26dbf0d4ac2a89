#!/usr/bin/env python3
"""Prints "PASSED FAILED": the test functions of the last ctest run in a build folder.

A skipped function is a failure: what cannot be tested must be told. A program that failed without a failed function (a
crash, a time-out) counts as one failure, a program without totals that passed as one passed test.
"""

import re
import sys
from pathlib import Path

PROGRAM = re.compile(r"^\d+/\d+ Testing: ", re.MULTILINE)
TOTALS = re.compile(r"^Totals: (\d+) passed, (\d+) failed, (\d+) skipped", re.MULTILINE)


def count(program: str) -> tuple[int, int]:
    totals = TOTALS.findall(program)
    passed = sum(int(total[0]) for total in totals)
    failed = sum(int(total[1]) + int(total[2]) for total in totals)
    if re.search(r"^Test Passed\.$", program, re.MULTILINE):
        return (passed, failed) if totals else (1, 0)
    return passed, max(failed, 1)


def main() -> int:
    log = Path(sys.argv[1], "Testing", "Temporary", "LastTest.log").read_text(encoding="utf-8", errors="replace")
    counts = [count(program) for program in PROGRAM.split(log)[1:]]
    print(sum(passed for passed, _ in counts), sum(failed for _, failed in counts))
    return 0


if __name__ == "__main__":
    sys.exit(main())
