#!/usr/bin/env python3
"""Runs clang-tidy on the given C++ sources that stand in the build's compile commands, two at a time."""

import json
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor


def main() -> int:
    build, wanted = sys.argv[1], {os.path.abspath(name) for name in sys.argv[2:] if name.endswith(".cpp")}
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as commands:
        known = {os.path.abspath(os.path.join(entry["directory"], entry["file"])) for entry in json.load(commands)}
    files = sorted(wanted & known)

    def lint(name: str) -> int:
        run = subprocess.run(["clang-tidy", "-p", build, "--quiet", name], capture_output=True, text=True, check=False)
        if run.returncode != 0:
            print(run.stdout, flush=True)
        return run.returncode

    with ThreadPoolExecutor(max_workers=2) as pool:
        return 1 if any(list(pool.map(lint, files))) else 0


if __name__ == "__main__":
    sys.exit(main())
