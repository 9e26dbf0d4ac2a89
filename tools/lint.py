#!/usr/bin/env python3
"""Runs clang-tidy on the given C++ sources that stand in the build's compile commands, two at a time.

A source found clean is remembered by everything that its findings depend on (the rules, the compile command, the file and
all project headers that its last compile read), so that an unchanged source is not looked at again. The memory lies in the
user's cache folder; KX_LINT_AFRESH=1 leaves it aside.
"""

import hashlib
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
OUTPUT = re.compile(r" -o (\S+)")
MEMORY = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "kx4600-lint"


def headers_read(build: str) -> dict[str, list[Path]]:
    """The project's own files that each object's last compile read, by the object's name."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=False).stdout
    read: dict[str, list[Path]] = {}
    for block in listing.split("\n\n"):
        lines = block.splitlines()
        if lines:
            paths = (os.path.normpath(os.path.join(ROOT, build, line.strip())) for line in lines[1:])
            read[lines[0].split(":")[0]] = sorted(Path(path) for path in paths if path.startswith(f"{ROOT}/"))
    return read


class Lint:
    def __init__(self, build: str) -> None:
        self.build = build
        commands = json.loads(Path(build, "compile_commands.json").read_text(encoding="utf-8"))
        self.commands = {os.path.abspath(os.path.join(one["directory"], one["file"])): one for one in commands}
        self.read = headers_read(build)
        version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=False).stdout
        installed = subprocess.run(["dpkg-query", "-W", "qt6-base-dev", "libstdc++-12-dev"], capture_output=True,
                                   check=False).stdout
        self.rules = version + installed + ROOT.joinpath(".clang-tidy").read_bytes()

    def key(self, name: str) -> str | None:
        """Nothing where the last compile's headers are not known."""
        command = self.commands[name]["command"]
        read = self.read.get(OUTPUT.search(command)[1])
        if not read or not all(path.exists() for path in read):
            return None
        digest = hashlib.sha256(self.rules)
        digest.update(command.replace(str(ROOT), "").encode())
        for path in read:
            digest.update(str(path.relative_to(ROOT)).encode() + b"\0" + path.read_bytes())
        return digest.hexdigest()

    def check(self, name: str) -> int:
        key = None if os.environ.get("KX_LINT_AFRESH") else self.key(name)
        if key and MEMORY.joinpath(key).exists():
            return 0
        run = subprocess.run(["clang-tidy", "-p", self.build, "--quiet", name], capture_output=True, text=True,
                             check=False)
        if run.returncode != 0:
            print(run.stdout, flush=True)
        elif key:
            MEMORY.mkdir(parents=True, exist_ok=True)
            MEMORY.joinpath(key).touch()
        return run.returncode


def main() -> int:
    lint = Lint(sys.argv[1])
    wanted = {os.path.abspath(name) for name in sys.argv[2:] if name.endswith(".cpp")}
    with ThreadPoolExecutor(max_workers=2) as pool:
        return 1 if any(list(pool.map(lint.check, sorted(wanted & set(lint.commands))))) else 0


if __name__ == "__main__":
    sys.exit(main())
