"""The folders of the project and what each may include: one table for the checks and for the drawing."""

import re
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

# folder: what it may include directly; whatever those may include comes with them.
LAYERS = {
    "src/common/base": [],
    "src/binding/contract": ["src/common/base"],
    "src/common/ports": ["src/binding/contract"],
    "src/transformer/wire": ["src/binding/contract"],
    "src/transformer/dictionary": ["src/binding/contract"],
    "src/transformer/model": ["src/transformer/dictionary"],
    "src/transformer/rules": ["src/transformer/model"],
    "src/transformer/files": ["src/transformer/rules"],
    "src/transformer/journal": ["src/transformer/files"],
    "src/transformer/settings": ["src/binding/contract"],
    "src/transformer/link": ["src/transformer/model", "src/transformer/wire", "src/common/ports"],
    "src/transformer/component": ["src/transformer/journal", "src/transformer/files", "src/transformer/settings",
                                  "src/transformer/link"],
    "src/transformer/plugin": ["src/transformer/component"],
    "src/binding": ["src/binding/contract"],
    "src/common": ["src/binding/contract"],
    "src/fields": ["src/common"],
    "src/records": ["src/fields"],
    "src/forms/definitions": ["src/binding/contract"],
    "src/forms/unseen": ["src/forms/definitions", "src/binding"],
    "src/forms/layout": ["src/forms/definitions", "src/common"],
    "src/forms": ["src/forms/layout", "src/records", "src/binding"],
    "src/printing/pages": ["src/binding/contract"],
    "src/printing": ["src/printing/pages", "src/common"],
    "src/mapping/script": ["src/binding/contract"],
    "src/mapping": ["src/mapping/script", "src/common", "src/binding"],
    "src/shell": ["src/forms", "src/printing", "src/mapping", "src/common/ports"],
    "src/app": ["src/shell", "src/forms/unseen"],
    "src/ctl": ["src/transformer/component", "src/forms/unseen", "src/printing/pages", "src/mapping/script"],
    "src/sim": ["src/transformer/wire", "src/transformer/dictionary"],
}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def closure(folder: str) -> set[str]:
    reached: set[str] = set()
    waiting = list(LAYERS[folder])
    while waiting:
        current = waiting.pop()
        if current not in reached:
            reached.add(current)
            waiting.extend(LAYERS[current])
    return reached


def sources(top: str) -> list[Path]:
    return sorted(path for path in (ROOT / top).rglob("*") if path.suffix in (".h", ".cpp"))


def folder_of(path: Path) -> str:
    return path.parent.relative_to(ROOT).as_posix()


def edges() -> dict[tuple[str, str], list[str]]:
    """(including folder, included folder): the lines that do it."""
    owner = {path.name: folder_of(path) for path in sources("src") if path.suffix == ".h"}
    found: dict[tuple[str, str], list[str]] = {}
    for path in sources("src"):
        for name in INCLUDE.findall(path.read_text(encoding="utf-8")):
            target = owner.get(name)
            if target and target != folder_of(path):
                found.setdefault((folder_of(path), target), []).append(f"{path.relative_to(ROOT)}: {name}")
    return found
