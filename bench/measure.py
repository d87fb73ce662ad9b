# SPDX-License-Identifier: MIT
"""Runs programs in turns and measures what they cost."""

import json
import os
import select
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

Pair = tuple[float, float]  # this project, peer


@dataclass
class Row:
    """One line of the table: pairs of figures."""

    case: str
    peer: str
    limit: float | None
    pairs: list[Pair]
    unit: str = "seconds"  # or "size" in MB, or "memory" in MB, which is subtracted
    note: str = ""

    def figures(self) -> list[float]:
        return sorted(a - b if self.unit == "memory" else a / b for a, b in self.pairs)

    def cells(self) -> list[str]:
        ours, peer = (statistics.median(side) for side in zip(*self.pairs))
        figures, shape = self.figures(), "{:+.1f}" if self.unit == "memory" else "{:.2f}"
        middle = shape.format(statistics.median(figures))
        spread = f"{shape.format(figures[0])} to {shape.format(figures[-1])}"
        unit = " MB" if self.unit == "memory" else ""
        limit, met = "-", "-"
        if self.limit is not None:
            limit = f"{shape.format(self.limit)}{unit}"
            met = "yes" if float(middle) <= self.limit else "**no**"
        amount: Callable[[float], str] = duration if self.unit == "seconds" else megabytes
        return [
            self.case,
            amount(ours) + self.note,
            f"{self.peer}: {amount(peer)}",
            f"{middle}{unit} ({spread})",
            limit,
            met,
        ]


def megabytes(amount: float) -> str:
    return f"{amount:.1f} MB"


def duration(seconds: float) -> str:
    for scale, name in ((1, "s"), (1e3, "ms"), (1e6, "µs")):
        if seconds * scale >= 1:
            return f"{seconds * scale:.3g} {name}"
    return f"{seconds * 1e9:.3g} ns"


@dataclass
class Finished:
    started: float  # on the monotonic clock
    seconds: float
    busy: float  # seconds of processor time
    megabytes: float  # peak resident memory


def run(*words: object, **environment: str) -> Finished:
    """Runs a program after everything that is already written has reached the disk."""
    os.sync()
    argv = [str(word) for word in words]
    with tempfile.TemporaryFile() as errors:
        start = time.monotonic()
        process = subprocess.Popen(
            argv, stdout=subprocess.DEVNULL, stderr=errors, env={**os.environ, **environment}
        )
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.monotonic() - start
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            errors.seek(0)
            text = errors.read().decode(errors="replace")
            raise SystemExit(f"{text}error: status {process.returncode}: {' '.join(argv)}")
    return Finished(start, seconds, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)


def seconds(*words: object) -> float:
    return run(*words).seconds


def printed(*words: object) -> float:
    """The number that the program prints."""
    os.sync()
    argv = [str(word) for word in words]
    result = subprocess.run(argv, capture_output=True, check=True)
    return float(result.stdout)


def until_client(home: Path, *words: object) -> float:
    """Seconds until the client that the program opens reports its start."""
    pipe = home / "started"
    if not pipe.exists():
        os.mkfifo(pipe)
    reader = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
    started = run(*words).started
    if not select.select([reader], [], [], 10)[0]:
        raise SystemExit(f"error: {words[0]} opened no client")
    stamp = int(os.read(reader, 64))
    os.close(reader)
    return stamp / 1e9 - started


def turns(count: int, ours: Callable[[], float], peer: Callable[[], float]) -> list[Pair]:
    """Pairs of neighbouring runs, after one warm-up run of each."""
    ours()
    peer()
    pairs = []
    for index in range(count):
        if index % 2 == 0:
            first = ours()
            pairs.append((first, peer()))
        else:
            first = peer()
            pairs.append((ours(), first))
    return pairs


def micro(program: Path, name: str, repetitions: int = 15) -> tuple[list[Pair], float]:
    """Pairs of one micro-benchmark, run in random order, and the project's allocations."""
    argv = [
        str(program),
        f"--benchmark_filter=^{name}/",
        f"--benchmark_repetitions={repetitions}",
        "--benchmark_min_time=0.05",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_format=json",
    ]
    result = subprocess.run(argv, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    times: dict[str, dict[int, float]] = {"project": {}, "peer": {}}
    allocations = 0.0
    for item in json.loads(result.stdout)["benchmarks"]:
        if item["run_type"] == "iteration":
            side = item["name"].split("/")[1]
            times[side][item["repetition_index"]] = item["cpu_time"] / 1e9
            allocations += item.get("allocations", 0)
    return [(times["project"][i], times["peer"][i]) for i in range(repetitions)], allocations
