#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares the launcher with the usual tools for the same work. scripts/bench.sh calls it.

usage: compare.py BUILD WORK OTHER_VOLUME [CASE...]
Prints each line of the table as soon as it is measured. CASE is part of a case's title. Without it,
runs all cases and replaces the tables and the plot in docs/.
"""

import re
import sys
from pathlib import Path

if len(sys.argv) < 4:
    sys.exit((__doc__ or "").strip())

import growth  # noqa: E402 (these modules read the arguments)
from cases import MICRO, PROGRAMS, micro_row  # noqa: E402
from material import use_home  # noqa: E402
from measure import Row  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent
WANTED = [word.lower() for word in sys.argv[4:]]


def wanted(title: str) -> bool:
    return not WANTED or any(word in title.lower() for word in WANTED)


def show(row: Row) -> list[str]:
    print(" | ".join(row.cells()), flush=True)
    return row.cells()


def table(heads: list[str], lines: list[list[str]]) -> str:
    return "\n".join(
        "| " + " | ".join(line) + " |" for line in [heads, ["---"] * len(heads), *lines]
    )


def write_into(page: Path, marks: dict[str, str]) -> None:
    text = page.read_text(encoding="utf-8")
    for mark, content in marks.items():
        pattern = re.compile(rf"(<!-- {mark} -->\n).*(<!-- /{mark} -->)", re.DOTALL)
        text = pattern.sub(lambda found: found[1] + content + "\n" + found[2], text)
    page.write_text(text, encoding="utf-8")


def main() -> None:
    use_home()
    lines = [
        show(Row(case.what, case.peer, case.limit, case.measure(), case.unit))
        for case in PROGRAMS
        if wanted(case.what)
    ]
    lines += [show(micro_row(*case)) for case in MICRO if wanted(case[0])]
    if WANTED:
        return
    grown = growth.entries(ROOT / "docs/images")
    for line in grown:
        print(" | ".join(line), flush=True)
    heads = ["case", "this project", "peer", "ratio (spread)", "limit", "met"]
    marks = {"table": table(heads, lines), "growth": table(["case", "time", "per entry"], grown)}
    write_into(ROOT / "docs/performance.md", marks)


main()
