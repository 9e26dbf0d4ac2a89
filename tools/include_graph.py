#!/usr/bin/env python3
"""Draws the include graph of src into docs/architecture.md, from the bottom layer up.

  tools/include_graph.py           writes it
  tools/include_graph.py --check   fails if the page is not up to date or an arrow points upwards
"""

import sys

from source_tree import LAYERS, ROOT, closure, edges

PAGE = ROOT / "docs" / "architecture.md"
BEGIN, END = "<!-- include graph: begin -->", "<!-- include graph: end -->"


def height(folder: str) -> int:
    return 1 + max((height(below) for below in LAYERS[folder]), default=-1)


def drawing() -> str:
    found = edges()
    used = sorted({folder for pair in found for folder in pair})
    direct = {folder: sorted(target for source, target in found if source == folder) for folder in used}
    lines = ["```mermaid", "graph BT"]
    for level in sorted({height(folder) for folder in used}):
        lines.append(f"  subgraph level{level}[level {level}]")
        lines += [f"    {folder.replace('/', '_')}[{folder.removeprefix('src/')}]" for folder in used if height(folder) == level]
        lines.append("  end")
    for source in used:
        # What is reached through another arrow is left out, so that the drawing stays readable.
        through = {far for near in direct[source] for far in closure(near)}
        lines += [f"  {source.replace('/', '_')} --> {target.replace('/', '_')}" for target in direct[source] if
                  target not in through]
    return "\n".join([*lines, "```"])


def upward() -> list[str]:
    return [f"{source} -> {target}" for source, target in edges() if height(target) >= height(source)]


def main() -> int:
    text = PAGE.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    fresh = f"{before}{BEGIN}\n{drawing()}\n{END}{after}"
    if upward():
        print("arrows upwards:", *upward(), sep="\n  ")
        return 1
    if "--check" in sys.argv:
        if fresh != text:
            print("docs/architecture.md is not up to date: run tools/include_graph.py")
        return 0 if fresh == text else 1
    PAGE.write_text(fresh, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
