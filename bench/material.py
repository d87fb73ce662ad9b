# SPDX-License-Identifier: MIT
"""What is measured on. Everything lies in the work folder and is made when the first case needs it."""

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
    """Clears away what a run left; paths may be too deep for Python."""
    subprocess.run(["rm", "-rf", path], check=True)
    return path


def fresh(name: str) -> Path:
    path = remove(WORK / name)
    path.mkdir(parents=True)
    return path


def another_folder() -> Path:
    """Where packages are installed: in memory, so that no disk is measured."""
    path = remove(OTHER_VOLUME / "installed")
    path.mkdir()
    return path


def pack(name: str, client: Path, *options: str) -> Path:
    """The package of a client folder, in the default format; its folder also holds the INFO."""
    out = WORK / f"{name}-package"
    tool = BUILD / "packaging/lumaris-pack/lumaris-pack"
    version = ["--major", "2", "--minor", "5", "--build", "120"]
    subprocess.run([tool, *version, *options, client, out], check=True)
    return out


def bare_client(name: str) -> Path:
    """A client folder with what every package needs and room for more in `Contents/more`."""
    client = fresh(name) / "Lumaris.app"
    contents = client / "Contents"
    for folder in ("MacOS", "Resources", "more"):
        (contents / folder).mkdir(parents=True)
    shutil.copy(BENCH / "stamp-client", contents / "MacOS/lumaris-backup-ui")
    (contents / "Resources/INFO").write_text(
        "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=120\nicon_overlay_version=1\n"
    )
    return client


@cache
def bundle_client() -> Path:
    """The demo client that the build has staged, with a program that says when it runs."""
    client = fresh("bundle") / "Lumaris.app"
    subprocess.run(["cp", "-R", BUILD / "packaging/bundle/client/Lumaris.app", client], check=True)
    shutil.copy(BENCH / "stamp-client", client / "Contents/MacOS/lumaris-backup-ui")
    return client


@cache
def bundle_package(*options: str) -> Path:
    return pack("bundle" + "".join(options), bundle_client(), *options)


@cache
def small_entries(count: int, *options: str) -> Path:
    client = WORK / f"entries-{count}/Lumaris.app"
    if not client.exists():
        client = bare_client(f"entries-{count}")
        for index in range(count):
            folder = client / f"Contents/more/{index // 1000}"
            folder.mkdir(exist_ok=True)
            (folder / f"entry-{index}").write_text(f"{index}\n")
    return pack(f"entries-{count}" + "".join(options), client, *options) / PACKAGE


def make_tree(root: Path, folders: int, files: int, content: bytes = b"content\n") -> Path:
    for folder in range(folders):
        path = root / f"folder-{folder}"
        path.mkdir(parents=True)
        for file in range(files):
            (path / f"file-{file}").write_bytes(content)
    return root


def make_chain(root: Path, depth: int, files: int) -> Path:
    """Folders in folders, the files spread over them."""
    root.mkdir()
    path = root
    for level in range(depth):
        for file in range(files // depth):
            (path / f"f{file}").touch()
        path = path / "d"
        path.mkdir()
    return root


@cache
def bundle() -> Path:
    """The staged launcher with the measured package, and the empty application beside it."""
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
