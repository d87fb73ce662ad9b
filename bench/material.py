# SPDX-License-Identifier: MIT
"""The files that are measured. They are in the work folder; each is made when it is first needed."""

import os
import shutil
import subprocess
import sys
from functools import cache
from pathlib import Path

BUILD, WORK, OTHER_VOLUME = (Path(word) for word in (sys.argv[1:4] + ["", "", ""])[:3])
BENCH = BUILD / "bench"
OPERATION = BENCH / "operation"
PACKAGE = "package/lumaris.wpk"
MB = 1000 * 1000


def remove(path: Path) -> Path:
    """Removes what an earlier run has left."""
    subprocess.run(["rm", "-rf", path], check=True)
    return path


def fresh(name: str) -> Path:
    path = remove(WORK / name)
    path.mkdir(parents=True)
    return path


def another_folder() -> Path:
    """An empty folder in memory for an installation, so that no disk is measured."""
    path = remove(OTHER_VOLUME / "installed")
    path.mkdir()
    return path


def pack(name: str, client: Path) -> Path:
    """The folder with the package and the INFO file of a client folder."""
    out = WORK / f"{name}-package"
    tool = BUILD / "packaging/lumaris-pack/lumaris-pack"
    subprocess.run([tool, client, out], check=True, stdout=subprocess.DEVNULL)
    return out


def zipped(name: str, client: Path) -> Path:
    """The same client folder as zip."""
    out = WORK / f"{name}.zip"
    subprocess.run(["bsdtar", "--format", "zip", "-cf", out, "-C", client, "Contents"], check=True)
    return out


def bare_client(name: str) -> Path:
    """A client folder with the files that every package needs, and an empty `Contents/more`."""
    client = fresh(name) / "Lumaris.app"
    contents = client / "Contents"
    for folder in ("MacOS", "Resources", "more"):
        (contents / folder).mkdir(parents=True)
    shutil.copy(BENCH / "stamp-client", contents / "MacOS/lumaris-backup-ui")
    (contents / "Info.plist").write_text('<plist version="1.0"><dict/></plist>\n')
    (contents / "Resources/INFO").write_text(
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=120\nicon_overlay_version=1\n"
    )
    return client


@cache
def bundle_client() -> Path:
    """The demo client that the build has staged, with an executable that reports its start."""
    client = fresh("bundle") / "Lumaris.app"
    subprocess.run(["cp", "-R", BUILD / "packaging/bundle/client/Lumaris.app", client], check=True)
    shutil.copy(BENCH / "stamp-client", client / "Contents/MacOS/lumaris-backup-ui")
    return client


@cache
def bundle_package() -> Path:
    return pack("bundle", bundle_client())


@cache
def bundle_zip() -> Path:
    return zipped("bundle", bundle_client())


@cache
def small_client(count: int) -> Path:
    client = bare_client(f"entries-{count}")
    for index in range(count):
        folder = client / f"Contents/more/{index // 1000}"
        folder.mkdir(exist_ok=True)
        (folder / f"entry-{index}").write_text(f"{index}\n")
    return client


@cache
def small_entries(count: int) -> Path:
    return pack(f"entries-{count}", small_client(count)) / PACKAGE


@cache
def small_zip(count: int) -> Path:
    return zipped(f"entries-{count}", small_client(count))


def make_tree(root: Path, folders: int, files: int) -> Path:
    for folder in range(folders):
        path = root / f"folder-{folder}"
        path.mkdir(parents=True)
        for file in range(files):
            (path / f"file-{file}").write_bytes(b"content\n")
    return root


@cache
def bundle() -> Path:
    """The staged launcher with the package of `bundle_client`, and the empty application beside it."""
    app = fresh("launcher") / "LumarisLauncher.app"
    subprocess.run(["cp", "-R", BUILD / "LumarisLauncher.app", app], check=True)
    shutil.copy(BENCH / "empty-app", app / "Contents/MacOS")
    shutil.copy(bundle_package() / PACKAGE, app / "Contents/Resources/package")
    shutil.copy(bundle_package() / "INFO", app / "Contents/Resources")
    return app / "Contents/MacOS"


def use_home() -> Path:
    home = fresh("home")
    os.environ["HOME"] = str(home)
    return home
