#!/usr/bin/env python3
"""Runs clang-tidy on the given C++ sources that stand in the build's compile commands, two runs at a time.

Most of a run goes into the headers, so sources of one folder are looked at in batches, their texts one behind the other
in one file. A batch with findings (or whose files do not go together) is looked at again file by file: what is printed
always names the real file.

A source found clean is remembered by everything that its findings depend on (the rules, the compile command, the file and
all project headers that its last compile read), so that an unchanged source is not looked at again. The memory lies in the
user's cache folder; KX_LINT_AFRESH=1 leaves it aside.
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from bisect import bisect_left
from concurrent.futures import ThreadPoolExecutor
from itertools import accumulate
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MEMORY = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "kx4600-lint"
LONGEST_BATCH = 12
OUTPUT = re.compile(r" -o (\S+)")
PRECOMPILED = re.compile(r" -fpch-preprocess| -Winvalid-pch -include \S+")
LOCATION = re.compile(r"^(/[^:]+):(\d+):\d+: error: ", re.MULTILINE)
FORWARD = re.compile(r"^(?:class|struct) (\w+);", re.MULTILINE)
DEFINED = re.compile(r"^#define (\w+)", re.MULTILINE)


def is_own(path: str) -> bool:
    return path.startswith(f"{ROOT}/") and "/cmake_pch." not in path


def headers_read(build: str) -> dict[str, list[Path]]:
    """The project's own files that each object's last compile read, by the object's name."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=False).stdout
    read: dict[str, list[Path]] = {}
    for block in listing.split("\n\n"):
        lines = block.splitlines()
        if lines:
            paths = (os.path.normpath(os.path.join(ROOT, build, line.strip())) for line in lines[1:])
            read[lines[0].split(":")[0]] = sorted(Path(path) for path in paths if is_own(path))
    return read


def declared_names(text: str) -> set[str]:
    """What a file declares for itself outside of classes and functions; two files of a batch must not share one."""
    names = set(DEFINED.findall(text))
    for line in text.splitlines():
        words = re.split(r"[(={;]|(?<!:):(?!:)", line)[0].split() if line[:1].isalpha() else []
        if len(words) > 1 and words[0] not in {"namespace", "using"} and "::" not in words[-1]:
            names.add(words[-1].strip("&*[]"))
    return names - set(FORWARD.findall(text)) - {"main"}


class Source:
    def __init__(self, name: str, command: str) -> None:
        self.name = name
        self.command = command
        words = shlex.split(command)[1:]
        cut = words.index("-o")
        self.flags = words[:cut]
        self.text = Path(name).read_text(encoding="utf-8")
        self.names = declared_names(self.text)

    @property
    def group(self) -> tuple[str, ...]:
        """Sources of one group may stand in one batch: a folder of the program, or all tests."""
        folder = os.path.relpath(self.name, ROOT).split(os.sep)
        defines = (flag for flag in self.flags if flag.startswith("-DKX"))
        return ("/".join(folder[:-1]) if folder[0] == "src" else folder[0], *sorted(defines))


def batches_of(sources: list[Source]) -> list[list[Source]]:
    batches: list[tuple[tuple[str, ...], set[str], list[Source]]] = []
    for source in sources:
        for group, names, batch in batches:
            if group == source.group and len(batch) < LONGEST_BATCH and not names & source.names:
                batch.append(source)
                names |= source.names
                break
        else:
            batches.append((source.group, set(source.names), [source]))
    return [batch for _, _, batch in batches]


class Lint:
    def __init__(self, build: str) -> None:
        self.build = os.path.abspath(build)
        self.commands = {}
        for one in json.loads(Path(build, "compile_commands.json").read_text(encoding="utf-8")):
            name = os.path.abspath(os.path.join(one["directory"], one["file"]))
            self.commands[name] = PRECOMPILED.sub("", one["command"])
        self.read = headers_read(build)
        version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=False).stdout
        installed = subprocess.run(["dpkg-query", "-W", "qt6-base-dev", "libstdc++-12-dev"], capture_output=True,
                                   check=False).stdout
        self.rules = version + installed + ROOT.joinpath(".clang-tidy").read_bytes()

    def memory_of(self, source: Source) -> Path | None:
        """Nothing where the last compile's headers are not known."""
        read = self.read.get(OUTPUT.search(source.command)[1])
        if not read or not all(path.exists() for path in read):
            return None
        digest = hashlib.sha256(self.rules)
        digest.update(source.command.replace(str(ROOT), "").encode())
        for path in read:
            digest.update(str(path.relative_to(ROOT)).encode() + b"\0" + path.read_bytes())
        return MEMORY / digest.hexdigest()

    def remembered(self, source: Source) -> bool:
        memory = None if os.environ.get("KX_LINT_AFRESH") else self.memory_of(source)
        return memory is not None and memory.exists()

    def remember(self, source: Source) -> None:
        memory = self.memory_of(source)
        if memory:
            memory.parent.mkdir(parents=True, exist_ok=True)
            memory.touch()

    def check_batch(self, batch: list[Source]) -> int:
        if len(batch) == 1:
            return self.check_one(batch[0])
        flags = dict.fromkeys(flag for source in batch for flag in joined(source.flags))
        folders = dict.fromkeys(f"-I{os.path.dirname(source.name)}" for source in batch)
        parts = [f"#define main main_of_{number}\n{source.text}\n#undef main\n" for number, source in enumerate(batch)]
        with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=self.build, encoding="utf-8") as together:
            together.write("".join(parts))
            together.flush()
            run = tidied(together.name, [*(word for flag in flags for word in flag.split(" ")), *folders])
        suspects = suspects_of(run.stdout, together.name, parts) if run.returncode else set()
        for number, source in enumerate(batch):
            if number not in suspects:
                self.remember(source)
        return max((self.check_one(batch[number]) for number in suspects), default=0)

    def check_one(self, source: Source) -> int:
        run = tidied(source.name, source.flags)
        if run.returncode == 0:
            self.remember(source)
        else:
            print(run.stdout, flush=True)
        return run.returncode


def tidied(name: str, flags: list[str]) -> subprocess.CompletedProcess:
    return subprocess.run(["clang-tidy", "--quiet", f"--config-file={ROOT}/.clang-tidy", name, "--", *flags],
                          capture_output=True, text=True, check=False)


def suspects_of(report: str, together: str, parts: list[str]) -> set[int]:
    """The files of a batch that the report speaks of; all of them where it speaks of a header or they do not compile."""
    ends = list(accumulate(part.count("\n") for part in parts))
    found = LOCATION.findall(report)
    if not found or "clang-diagnostic" in report or any(path != together for path, _ in found):
        return set(range(len(parts)))
    return {bisect_left(ends, int(line)) for _, line in found}


def joined(flags: list[str]) -> list[str]:
    """The flags with each "-isystem FOLDER" as one."""
    return " ".join(flags).replace("-isystem ", "-isystem=").replace("-isystem=", "\0").replace(" ", "\n").replace(
        "\0", "-isystem ").splitlines()


def main() -> int:
    lint = Lint(sys.argv[1])
    wanted = {os.path.abspath(name) for name in sys.argv[2:] if name.endswith(".cpp")}
    sources = [Source(name, lint.commands[name]) for name in sorted(wanted & set(lint.commands))]
    batches = batches_of([source for source in sources if not lint.remembered(source)])
    with ThreadPoolExecutor(max_workers=2) as pool:
        return 1 if any(list(pool.map(lint.check_batch, batches))) else 0


if __name__ == "__main__":
    sys.exit(main())
