#!/usr/bin/env python3
"""Checks what the house holds about its files: layers, lengths, names; prints the ratio of test lines to code lines."""

import subprocess
import sys
from collections import Counter

from source_tree import INCLUDE, LAYERS, ROOT, closure, edges, folder_of, sources

LONGEST = 600
# Names that a C, POSIX or Qt header bears.
TAKEN = {"error.h", "link.h", "signal.h", "time.h", "string.h", "errno.h", "math.h", "search.h", "regex.h", "glob.h",
         "poll.h", "pty.h", "utmp.h", "wait.h", "values.h", "features.h", "memory.h", "printf.h", "threads.h"}


def layer_faults() -> list[str]:
    faults = [f"{folder}: a folder that stands in no layer" for folder in
              sorted({folder_of(path) for path in sources("src")} - set(LAYERS))]
    for (source, target), lines in edges().items():
        if source in LAYERS and target not in closure(source):
            faults += [f"{line}: {source} must not include {target}" for line in lines]
    return faults


def file_faults() -> list[str]:
    faults = []
    everything = [path for top in ("src", "tests", "bench") if (ROOT / top).is_dir() for path in sources(top)]
    names = Counter(path.name for path in everything if path.suffix == ".h" and "src" in path.parts)
    faults += [f"{name}: two headers of one name" for name, number in names.items() if number > 1]
    for path in everything:
        text = path.read_text(encoding="utf-8")
        place = path.relative_to(ROOT)
        if text.count("\n") > LONGEST:
            faults.append(f"{place}: {text.count(chr(10))} lines, more than {LONGEST}")
        if path.name in TAKEN:
            faults.append(f"{place}: named like a system header")
        faults += [f"{place}: include of {name}" for name in INCLUDE.findall(text) if ".." in name]
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*CMakeLists.txt", "*.cmake"],
                            cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    for name in listed:
        if not (ROOT / name).exists():
            continue
        text = (ROOT / name).read_text(encoding="utf-8")
        faults += [f"{name}: {word}" for word in ("include_directories(", "file(GLOB") if
                   any(line.lstrip().startswith(word) for line in text.splitlines())]
    return faults


def count_lines(tops: tuple[str, ...]) -> int:
    return sum(1 for top in tops if (ROOT / top).is_dir() for path in sources(top)
               for line in path.read_text(encoding="utf-8").splitlines() if line.strip())


def main() -> int:
    faults = layer_faults() + file_faults()
    for fault in faults:
        print(fault)
    code, tests = count_lines(("src", "bench")), count_lines(("tests",))
    print(f"code {code} lines, tests {tests} lines, tests to code {tests / max(code, 1):.2f}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
