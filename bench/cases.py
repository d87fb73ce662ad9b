# SPDX-License-Identifier: MIT
"""The cases of the table: what, beside which peer, with which goal."""

import os
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

from material import (
    BENCH, MB, OPERATION, OTHER_VOLUME, PACKAGE, WORK, another_folder, bundle, bundle_package,
    make_tree, remove, small_entries, use_home,
)  # fmt: skip
from measure import Pair, Row, micro, printed, run, seconds, turns, until_client

ZIP = ("--format", "zip")


@dataclass
class Case:
    """One line of the table before it is measured."""

    what: str
    peer: str
    goal: float | None
    measure: Callable[[], list[Pair]]
    unit: str = "seconds"


def extract(package: Path) -> float:
    return seconds(OPERATION, "extract", package, another_folder())


def extract_busy(package: Path) -> float:
    """Processor time in place of time."""
    return run(OPERATION, "extract", package, another_folder()).busy


def against_bsdtar(package: Path, count: int) -> list[Pair]:
    return turns(
        count,
        lambda: extract(package),
        lambda: seconds("bsdtar", "-xf", package, "-C", another_folder()),
    )


def against_zip(measure: Callable[[Path], float], count: int) -> list[Pair]:
    ours, peer = bundle_package() / PACKAGE, bundle_package(*ZIP) / PACKAGE
    return turns(count, lambda: measure(ours), lambda: measure(peer))


def sizes() -> list[Pair]:
    ours, peer = bundle_package() / PACKAGE, bundle_package(*ZIP) / PACKAGE
    return [(ours.stat().st_size / MB, peer.stat().st_size / MB)]


def small_against_zip() -> list[Pair]:
    ours, peer = small_entries(100000), small_entries(100000, *ZIP)
    return turns(3, lambda: extract(ours), lambda: extract(peer))


def dialog(package: Path, count: int, ours: str, peer: str) -> list[Pair]:
    timing = BENCH / "dialog-timing"
    return turns(
        count,
        lambda: printed(timing, package, another_folder(), ours),
        lambda: printed(timing, package, another_folder(), peer),
    )


def start(*peer_mode: str) -> list[Pair]:
    home = use_home()
    run(bundle() / "launcher")  # installs
    return turns(
        15,
        lambda: until_client(home, bundle() / "launcher"),
        lambda: until_client(home, bundle() / "empty-app", *peer_mode),
    )


def upgrade(*without: str) -> float:
    """A first installation by the launcher itself; `without` turns a system call into nothing."""
    use_home()
    environment = {"LD_PRELOAD": str(BENCH / "libno-sync.so")} if without else {}
    return run(bundle() / "launcher", **environment).seconds


def memory() -> list[Pair]:
    def ours() -> float:
        use_home()
        return run(bundle() / "launcher").megabytes

    return turns(3, ours, lambda: run(bundle() / "empty-app", "shown").megabytes)


def removal() -> list[Pair]:
    tree = WORK / "tree"
    return turns(
        5,
        lambda: seconds(OPERATION, "remove", make_tree(tree, 200, 100)),
        lambda: seconds("rm", "-rf", make_tree(tree, 200, 100)),
    )


def copy() -> list[Pair]:
    source, copied = WORK / "source", WORK / "copied"
    block = os.urandom(MB)
    with source.open("wb") as file:
        for _ in range(1000):
            file.write(block)
    pairs = turns(
        5,
        lambda: seconds(OPERATION, "copy", source, remove(copied)),
        lambda: seconds("dd", f"if={source}", f"of={remove(copied)}", "bs=32M", "conv=fsync"),
    )
    remove(source)
    remove(copied)
    return pairs


def move(source: Path, target: Path) -> list[Pair]:
    def tree() -> Path:
        remove(target)
        return make_tree(remove(source), 50, 100, b"content\n" * 100)

    synced = 'mv "$1" "$2" && find "$2" -type f -exec sync {} +'
    pairs = turns(
        3,
        lambda: seconds(OPERATION, "move", tree(), target),
        lambda: seconds("sh", "-c", synced, "sh", tree(), target),
    )
    remove(target)
    return pairs


DISK, MEMORY = WORK / "moved", OTHER_VOLUME / "moved"

PROGRAMS = [
    Case("install the demo client, 63 MB", "the same as zip", 0.75, lambda: against_zip(extract, 7)),
    Case("the same, processor time", "the same as zip", 0.75, lambda: against_zip(extract_busy, 7)),
    Case("its package", "the same as zip", 0.9, sizes, "size"),
    Case("install the demo client, 63 MB", "`bsdtar -xf`", 1.30,
         lambda: against_bsdtar(bundle_package() / PACKAGE, 7)),
    Case("install 100,000 small entries", "the same as zip", 0.6, small_against_zip),
    Case("install the demo client with a visible dialog", "without", 1.05,
         lambda: dialog(bundle_package() / PACKAGE, 7, "dialog", "silent")),
    Case("install 100,000 small entries with reports", "without", 1.05,
         lambda: dialog(small_entries(100000), 3, "reports", "silent")),
    Case("first installation, new files on the disk", "without that", None,
         lambda: turns(7, upgrade, lambda: upgrade("sync"))),
    Case("start with nothing to upgrade, until the client runs", "the same dialog, nothing else",
         1.05, lambda: start("hidden")),
    Case("`FSRemove` of 20,000 files", "`rm -rf`", 1.5, removal),
    Case("`FSCopy` of 1 GB", "`dd bs=32M conv=fsync`", 1.05, copy),
    Case("`FSRename` of 5,000 files to the disk", "`mv`, `sync` of each file", 1.5,
         lambda: move(MEMORY, DISK)),
    Case("`FSRename` of 5,000 files to memory", "`mv`, `sync` of each file", 1.5,
         lambda: move(DISK, MEMORY)),
    Case("peak memory of an upgrade", "empty application with the dialog", 16, memory, "memory"),
]  # fmt: skip

# String cases run over fourteen paths of 20 to 120 bytes.
MICRO = [
    ("log message that the threshold drops", "lock and unlock", 3, "log-filtered"),
    ("log message written", "spdlog, rotating, flushing", 1.3, "log-written"),
    ("`ustring` construct and append", "`QString`", 1.2, "ustring-construct-append"),
    ("`ustring` find a byte", "`string_view`", 1.2, "ustring-find-byte"),
    ("`ustring` find a text", "`string_view`", 1.2, "ustring-find-text"),
    ("`ustring` rfind a byte", "`string_view`", 1.2, "ustring-rfind-byte"),
    ("`ustring` rfind a text", "`string_view`", 1.2, "ustring-rfind-text"),
    ("`ustring` find_first_of", "`string_view`", 1.2, "ustring-find-first-of"),
    ("`ustring` find_first_not_of", "`string_view`", 1.2, "ustring-find-first-not-of"),
    ("`ustring` find_last_of", "`string_view`", 1.2, "ustring-find-last-of"),
    ("`ustring` find_last_not_of", "`string_view`", 1.2, "ustring-find-last-not-of"),
    ("`ustring` compare", "`string_view`", 10, "ustring-compare"),
    ("`ustring` == and <", "`string_view`", 1.2, "ustring-operators"),
    ("`ustring` to UTF-16 and back", "ICU", 1.1, "ustring-utf16"),
    ("`ustring` normalize, NFC", "ICU", 1.1, "ustring-normalize-nfc"),
    ("`ustring` normalize, NFD", "ICU", 1.1, "ustring-normalize-nfd"),
    ("`Config::read` of 10,000 sorted lines", "`QSettings`, INI", 1, "config-read-sorted"),
    ("`Config::read` of 10,000 shuffled lines", "`QSettings`, INI", 1, "config-read-shuffled"),
]


def micro_row(what: str, peer: str, goal: float, name: str) -> Row:
    pairs, allocations = micro(BENCH / "micro/micro", name, 9)
    note = f", {allocations:.0f} allocations" if name == "log-filtered" else ""
    return Row(what, peer, goal, pairs, note=note)
