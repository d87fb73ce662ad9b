# SPDX-License-Identifier: MIT
"""How cost grows with entries and with depth: a table, and plots beside the page."""

import statistics
from functools import partial
from pathlib import Path

from cases import dialog
from material import OPERATION, WORK, make_chain, small_entries
from measure import Pair, Row, duration, seconds, turns

ENTRIES = (1000, 10000, 100000)
DEPTHS = (10, 250, 500, 1000)


def draw(path: Path, title: str, axis: str, lines: dict[str, list[tuple[int, float]]]) -> None:
    # Not earlier: a program's peak memory begins at that of the process that starts it.
    import matplotlib  # type: ignore[import] # Debian's package has no stubs

    matplotlib.use("svg")
    from matplotlib import pyplot

    matplotlib.rcParams["svg.hashsalt"] = "lumaris"  # the same file for the same figures
    figure, plot = pyplot.subplots(figsize=(5, 3))
    for name, points in lines.items():
        plot.plot(*zip(*points), marker="o", label=name)
    plot.set(title=title, xlabel=axis, ylabel="seconds", ylim=(0, None), xlim=(0, None))
    plot.legend()
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None})
    pyplot.close(figure)


def medians(measured: list[list[Pair]], side: int) -> list[float]:
    return [statistics.median(pair[side] for pair in pairs) for pairs in measured]


def entries(images: Path) -> list[list[str]]:
    measured = [
        dialog(small_entries(n), 3 if n > 10000 else 7, "reports", "silent") for n in ENTRIES
    ]
    times = medians(measured, 0)
    draw(images / "extract-entries.svg", "Extraction and its entries", "entries",
         {"extraction": list(zip(ENTRIES, times))})  # fmt: skip
    factor = times[-1] / times[0] / (ENTRIES[-1] / ENTRIES[0])
    return [
        [f"extract {count:,} entries", duration(time), f"{duration(time / count)} per entry"]
        for count, time in zip(ENTRIES, times)
    ] + [[f"{ENTRIES[-1]:,} to {ENTRIES[0]:,}", "-", f"{factor:.2f} times (linear: 1)"]]


def depth(images: Path) -> list[list[str]]:
    chain = WORK / "chain"

    def remove_chain(folders: int, *remove: object) -> float:
        return seconds(*remove, make_chain(chain, folders, 8000))

    measured = [
        turns(
            3,
            partial(remove_chain, folders, OPERATION, "remove"),
            partial(remove_chain, folders, "rm", "-rf"),
        )
        for folders in DEPTHS
    ]
    times, peers = medians(measured, 0), medians(measured, 1)
    draw(images / "remove-depth.svg", "Removal of 8,000 files", "folders in folders",
         {"FSRemove": list(zip(DEPTHS, times)), "rm -rf": list(zip(DEPTHS, peers))})  # fmt: skip
    return [
        [
            f"remove 8,000 files, {count:,} folders deep",
            duration(time),
            f"`rm -rf`: {Row('', '', None, pairs).cells()[3]}",
        ]  # fmt: skip
        for count, time, pairs in zip(DEPTHS, times, measured)
    ]
