#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows a folder as a volume with the rules of a Mac: names keep their letter case and spelling,
but any case and any canonically equivalent spelling finds them.

usage: mac-volume.py FOLDER MOUNTPOINT
Writes a byte to standard output once it is mounted, and ends when it is unmounted.
"""

import os
import sys
import unicodedata
from typing import Any

import fusepy  # type: ignore


def folded(name: str) -> str:
    return unicodedata.normalize("NFD", unicodedata.normalize("NFD", name).casefold())


class MacVolume(fusepy.Operations):
    chmod, mkdir, open, rmdir, unlink = os.chmod, os.mkdir, os.open, os.rmdir, os.unlink
    readlink = os.readlink

    def __call__(self, operation: str, path: str, *arguments: Any) -> Any:
        return getattr(self, operation)(self.find(path), *arguments)

    def find(self, path: str) -> str:
        """The path on disk of what is asked for; new names stay as they are."""
        found = sys.argv[1]
        for name in path.split("/")[1:]:
            names = [entry for entry in os.listdir(found) if folded(entry) == folded(name)]
            found = os.path.join(found, *(names[:1] or [name]))
        return found

    def init(self, path: str) -> None:
        print(end=".", flush=True)

    def getattr(self, path: str, file: Any) -> dict[str, Any]:
        stat = os.lstat(path)
        return {key: getattr(stat, key) for key in dir(stat) if key.startswith("st_")}

    def readdir(self, path: str, file: int) -> list[str]:
        return os.listdir(path)

    def rename(self, source: str, target: str) -> None:
        os.rename(source, self.find(target))

    def symlink(self, path: str, target: str) -> None:
        os.symlink(target, path)

    def truncate(self, path: str, length: int, file: Any = None) -> None:
        os.truncate(path, length)

    def create(self, path: str, mode: int) -> int:
        return os.open(path, os.O_RDWR | os.O_CREAT, mode)

    def read(self, path: str, size: int, at: int, file: int) -> bytes:
        return os.pread(file, size, at)

    def write(self, path: str, data: bytes, at: int, file: int) -> int:
        return os.pwrite(file, data, at)

    def release(self, path: str, file: int) -> None:
        os.close(file)


# Nothing is remembered: names change on disk under the kernel's feet.
fusepy.FUSE(MacVolume(), sys.argv[2], foreground=True, nothreads=True, entry_timeout=0)
