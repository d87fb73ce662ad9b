# SPDX-License-Identifier: MIT
"""How the cost of an extraction grows with its entries: a table and a plot."""

import statistics
from pathlib import Path

from cases import dialog_timing
from material import small_entries
from measure import duration

ENTRIES = (1000, 10000, 100000)


def draw(path: Path, times: list[float]) -> None:
    # Imported late: a program's peak memory is at least that of the process that started it.
    import matplotlib  # type: ignore[import] # Debian's package has no stubs

    matplotlib.use("svg")
    from matplotlib import pyplot

    matplotlib.rcParams["svg.hashsalt"] = "lumaris"  # the same figures give the same file
    figure, plot = pyplot.subplots(figsize=(5, 3))
    plot.plot(ENTRIES, times, marker="o")
    plot.set(title="Extraction", xlabel="entries", ylabel="seconds", ylim=(0, None), xlim=(0, None))
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None})
    pyplot.close(figure)


def entries(images: Path) -> list[list[str]]:
    times = [
        statistics.median(dialog_timing(small_entries(count), "reports") for _ in range(5))
        for count in ENTRIES
    ]
    draw(images / "extract-entries.svg", times)
    factor = times[-1] / times[0] / (ENTRIES[-1] / ENTRIES[0])
    return [
        [f"extract {count:,} entries", duration(time), f"{duration(time / count)} per entry"]
        for count, time in zip(ENTRIES, times)
    ] + [[f"{ENTRIES[-1]:,} to {ENTRIES[0]:,}", "-", f"{factor:.2f} times (linear: 1)"]]
