# SPDX-License-Identifier: MIT
"""The cases of the table: what is measured, against which peer, and the limit of the ratio."""

from dataclasses import dataclass
from pathlib import Path
from typing import Callable

from material import (
    BENCH, MB, OPERATION, OTHER_VOLUME, PACKAGE, another_folder, bundle, bundle_package, bundle_zip,
    make_tree, small_entries, small_zip, use_home,
)  # fmt: skip
from measure import Pair, Row, micro, printed, run, seconds, turns, until_client


@dataclass
class Case:
    """A line of the table before it is measured."""

    what: str
    peer: str
    limit: float | None
    measure: Callable[[], list[Pair]]
    unit: str = "seconds"


def extract(package: Path) -> float:
    return seconds(OPERATION, "extract", package, another_folder())


def extract_busy(package: Path) -> float:
    """Processor time instead of elapsed time."""
    return run(OPERATION, "extract", package, another_folder()).busy


def against_bsdtar(package: Path, count: int) -> list[Pair]:
    return turns(
        count,
        lambda: extract(package),
        lambda: seconds("bsdtar", "-xf", package, "-C", another_folder()),
    )


def against_zip(measure: Callable[[Path], float], count: int) -> list[Pair]:
    ours, peer = bundle_package() / PACKAGE, bundle_zip()
    return turns(count, lambda: measure(ours), lambda: measure(peer))


def sizes() -> list[Pair]:
    ours, peer = bundle_package() / PACKAGE, bundle_zip()
    return [(ours.stat().st_size / MB, peer.stat().st_size / MB)]


def small_against_zip() -> list[Pair]:
    ours, peer = small_entries(100000), small_zip(100000)
    return turns(3, lambda: extract(ours), lambda: extract(peer))


def dialog_timing(package: Path, mode: str) -> float:
    return printed(BENCH / "dialog-timing", package, another_folder(), mode)


def dialog(package: Path, count: int, mode: str) -> list[Pair]:
    return turns(
        count, lambda: dialog_timing(package, mode), lambda: dialog_timing(package, "silent")
    )


def start(*peer_mode: str) -> list[Pair]:
    home = use_home()
    until_client(home, bundle() / "launcher")  # installs; its client must not write later
    return turns(
        15,
        lambda: until_client(home, bundle() / "launcher"),
        lambda: until_client(home, bundle() / "empty-app", *peer_mode),
    )


def upgrade(*without: str) -> float:
    """A first installation by the launcher itself; with an argument, its sync does nothing."""
    use_home()
    environment = {"LD_PRELOAD": str(BENCH / "libno-sync.so")} if without else {}
    return run(bundle() / "launcher", **environment).seconds


def memory() -> list[Pair]:
    def ours() -> float:
        use_home()
        return run(bundle() / "launcher").megabytes

    return turns(3, ours, lambda: run(bundle() / "empty-app", "shown").megabytes)


def removal() -> list[Pair]:
    tree = OTHER_VOLUME / "tree"
    return turns(
        5,
        lambda: seconds(OPERATION, "remove", make_tree(tree, 200, 100)),
        lambda: seconds("rm", "-rf", make_tree(tree, 200, 100)),
    )


PROGRAMS = [
    Case("install the demo client, 63 MB", "the same as zip", 0.75, lambda: against_zip(extract, 7)),
    Case("the same, processor time", "the same as zip", 0.75, lambda: against_zip(extract_busy, 7)),
    Case("its package", "the same as zip", 0.9, sizes, "size"),
    Case("install the demo client, 63 MB", "`bsdtar -xf`", 1.5,
         lambda: against_bsdtar(bundle_package() / PACKAGE, 7)),
    Case("install 100,000 small entries", "the same as zip", 0.75, small_against_zip),
    Case("install the demo client with a visible dialog", "without", 1.4,
         lambda: dialog(bundle_package() / PACKAGE, 7, "dialog")),
    Case("install 100,000 small entries with reports", "without", 1.4,
         lambda: dialog(small_entries(100000), 3, "reports")),
    Case("first installation, new files on the disk", "without the sync", None,
         lambda: turns(7, upgrade, lambda: upgrade("sync"))),
    Case("start with nothing to upgrade, until the client runs", "the same dialog, nothing else",
         1.05, lambda: start("hidden")),
    Case("`FSRemove` of 20,000 files", "`rm -rf`", 1.5, removal),
    Case("peak memory of an upgrade", "empty application with the dialog", 16, memory, "memory"),
]  # fmt: skip

MICRO = [
    ("log message that the threshold drops", "lock and unlock", 4, "log-filtered"),
    ("log message written", "spdlog, rotating, flushing", 1.3, "log-written"),
    ("`ustring` construct and append", "`QString`", 1.2, "ustring-construct-append"),
    ("`ustring` to UTF-16 and back", "ICU", 1.4, "ustring-utf16"),
    ("`ustring` normalize, NFC", "ICU", 1.1, "ustring-normalize-nfc"),
    ("`ustring` normalize, NFD", "ICU", 1.1, "ustring-normalize-nfd"),
]


def micro_row(what: str, peer: str, limit: float, name: str) -> Row:
    pairs, allocations = micro(BENCH / "micro/micro", name, 9)
    note = f", {allocations:.0f} allocations" if name == "log-filtered" else ""
    return Row(what, peer, limit, pairs, note=note)
