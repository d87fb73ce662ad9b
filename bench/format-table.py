#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints the table of package formats from the measurements of measure-formats.sh.

Reads a line for each measurement: format;bytes;packing;counting;installing;installing by bsdtar.
All times are in seconds.
"""

import statistics
import sys

rounds: dict[str, list[list[float]]] = {}
for line in sys.stdin:
    name, *figures = line.strip().split(";")
    rounds.setdefault(name, []).append([float(figure) for figure in figures])

print("| made by | MB | pack, s | count, s | count and extract, s | over `bsdtar -xf` |")
print("|---|---|---|---|---|---|")
for name, measured in rounds.items():
    size, packing = measured[0][:2]
    count = statistics.median(counting for _, _, counting, _, _ in measured)
    install = statistics.median(installing for _, _, _, installing, _ in measured)
    ratio = statistics.median(installing / peer for _, _, _, installing, peer in measured)
    print(
        f"| `{name}` | {size / 1e6:.1f} | {packing:.1f} | {count:.2f} | {install:.2f}"
        f" | {ratio:.2f} |"
    )
