"""A launcher bundle, a home and a temporary folder for one start of the launcher after another."""

import hashlib
import os
import shutil
import signal
import stat
import subprocess
import tempfile
import time
from contextlib import suppress
from dataclasses import dataclass
from pathlib import Path

CLIENT = "Contents/MacOS/lumaris-backup-ui"
INFO = "Contents/Resources/INFO"


def tree(root: Path) -> dict[str, tuple]:
    """Everything below a folder: type and permissions, with the content or the link's target."""
    found: dict[str, tuple] = {}
    for folder, folders, files in os.walk(root):
        for name in folders + files:
            path = os.path.join(folder, name)
            mode = os.lstat(path).st_mode
            content: str | bytes = b""
            if stat.S_ISLNK(mode):
                content = os.readlink(path)
            elif stat.S_ISREG(mode):
                with open(path, "rb") as file:
                    content = hashlib.blake2b(file.read()).digest()
            found[os.path.relpath(path, root)] = (mode, content)
    return found


def wait_until(condition, seconds: float = 10) -> bool:
    """For what other processes do at once, unless they are broken."""
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(0.005)
    return True


class Release:
    """A client folder and the package made of it."""

    def __init__(self, folder: Path, package: Path, info: Path):
        self.folder, self.package, self.info = folder, package, info
        self.tree = tree(folder)

    def cut(self, package: Path) -> "Release":
        """The same with a package that ends within the client's executable, the last entry but
        one: so nearly everything is extracted before the damage shows."""
        package.write_bytes(self.package.read_bytes()[:-20000])
        return Release(self.folder, package, self.info)


def client_folder(folder: Path, program: Path, build: int) -> None:
    """A small client bundle in which every build differs in contents and in one name."""
    for name in ("MacOS", "Resources", "Frameworks/Empty"):
        (folder / "Contents" / name).mkdir(parents=True)
    resources = folder / "Contents/Resources"
    (folder / INFO).write_text(
        f"[Version]\nmajor_version=2\nminor_version=5\nbuild_version={build}\n"
        "icon_overlay_version=1\n"
    )
    (resources / "grüße 家.txt").write_text(f"hello {build}\n")
    (resources / f"only in {build}").write_text("x")
    (resources / "data").write_bytes(f"{build}\n".encode() * 40000)
    (resources / "read only").write_text(f"secret {build}\n")
    (resources / "read only").chmod(0o400)
    (folder / "Contents/Frameworks/Current").symlink_to("Empty")
    # What follows the program's last byte is not loaded, but tells the builds apart.
    (folder / CLIENT).write_bytes(program.read_bytes() + f"build {build}".encode())
    (folder / CLIENT).chmod(0o755)


def release(build_folder: Path, out: Path, build: int) -> Release:
    """Packs a small client of that build, uncompressed: so that a cut comes where it is made."""
    client_folder(out / "client", build_folder / "samples/client/lumaris-backup-ui", build)
    pack = build_folder / "packaging/lumaris-pack/lumaris-pack"
    version = ["--major", "2", "--minor", "5", "--build", str(build), "--filter", "none"]
    subprocess.run([pack, *version, out / "client", out / "packed"], check=True)
    return Release(out / "client", out / "packed/package/lumaris.wpk", out / "packed/INFO")


@dataclass
class Run:
    status: int
    err: str


class Sandbox:
    def __init__(self, build_folder: Path):
        self.root = Path(tempfile.mkdtemp(prefix="lumaris-sweep-")).resolve()
        self.home, self.tmp = self.root / "Müller 家", self.root / "tmp"
        self.folder = self.home / ".LumarisBackup"
        self.app = self.folder / "Lumaris.app"
        self.bundle = self.root / "Bundle.app"
        self.launcher = self.bundle / "Contents/MacOS/launcher"
        staged = build_folder / "LumarisLauncher.app/Contents"
        self.launcher.parent.mkdir(parents=True)
        shutil.copy2(staged / "MacOS/launcher", self.launcher)
        shutil.copytree(staged / "Frameworks", self.bundle / "Contents/Frameworks")
        self.resources = self.bundle / "Contents/Resources"
        (self.resources / "package").mkdir(parents=True)
        (self.root / "run").mkdir(mode=0o700)
        self.environment = {
            "HOME": str(self.home),
            "TMPDIR": str(self.tmp),
            "XDG_RUNTIME_DIR": str(self.root / "run"),
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
            "PATH": os.environ["PATH"],
        }
        self.reset()

    def __enter__(self) -> "Sandbox":
        return self

    def __exit__(self, *_) -> None:
        self.end_all()
        shutil.rmtree(self.root)

    def reset(self) -> None:
        """An empty home, as before the first start."""
        self.end_all()
        for folder in (self.home, self.tmp):
            shutil.rmtree(folder, ignore_errors=True)
            folder.mkdir()

    def ship(self, shipped: Release) -> None:
        for source, target in (
            (shipped.package, self.resources / "package/lumaris.wpk"),
            (shipped.info, self.resources / "INFO"),
        ):
            target.unlink(missing_ok=True)
            try:
                os.link(source, target)
            except OSError:  # built on another volume
                shutil.copy(source, target)

    def install(self, installed: Release) -> None:
        # Links cost nothing, and a launcher that writes into an installed file changes the original,
        # which is noticed.
        shutil.copytree(installed.folder, self.app, symlinks=True, copy_function=os.link)

    def launch(self, *wrapper: str, **environment: str) -> Run:
        """Starts the launcher and waits for its end and for that of its output, which only it may
        hold: the client that it starts would keep this from returning."""
        done = subprocess.run(
            [*wrapper, str(self.launcher)],
            env={**self.environment, **environment},
            cwd=self.root,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            timeout=120,
        )
        return Run(done.returncode, done.stderr.decode(errors="replace"))

    def begin(self) -> subprocess.Popen:
        """Starts the launcher and returns; what it prints is lost."""
        nothing = subprocess.DEVNULL
        return subprocess.Popen(
            [self.launcher], env=self.environment, cwd=self.root, stdout=nothing, stderr=nothing
        )

    def start_client(self) -> None:
        """Not as a child of ours: one that ended would stay until we ask for its status."""
        subprocess.run(["setsid", "-f", self.app / CLIENT], env=self.environment, check=True)
        if not wait_until(lambda: self.claimed_pid() in self.clients()):
            raise RuntimeError("the client does not start")

    def processes(self, folder: Path) -> list[int]:
        """Those whose program lies below the folder, or did when it started."""
        found = []
        for name in filter(str.isdigit, os.listdir("/proc")):
            try:
                if os.readlink(f"/proc/{name}/exe").startswith(f"{folder}/"):
                    found.append(int(name))
            except OSError:  # a kernel thread, or gone
                pass
        return found

    def clients(self) -> list[int]:
        return self.processes(self.home)

    def claimed_pid(self) -> int:
        try:
            return int((self.folder / "ui.pid").read_text().removeprefix("pid="))
        except (OSError, ValueError):
            return 0

    def running_client(self) -> int | None:
        """Waits for a client to start and to say so in its pid file."""
        wait_until(lambda: not self.clients() or self.claimed_pid() in self.clients())
        pid = self.claimed_pid()
        return pid if pid in self.clients() else None

    def runs(self, installed: Release) -> bool:
        pid = self.running_client()
        if pid is None:
            return False
        return Path(f"/proc/{pid}/exe").read_bytes() == (installed.folder / CLIENT).read_bytes()

    def end_all(self) -> None:
        """Ends the clients, and launchers that hang."""
        for pid in self.processes(self.root):
            with suppress(ProcessLookupError):
                os.kill(pid, signal.SIGKILL)
        if not wait_until(lambda: not self.processes(self.root)):
            raise RuntimeError("a process does not end")

    def holds(self, installed: Release) -> bool:
        """The bundle under its name is that client, byte for byte."""
        return self.app.is_dir() and tree(self.app) == installed.tree

    def log(self) -> str:
        try:
            return (self.folder / "log/launcher.log").read_text(errors="replace")
        except OSError:
            return ""

    def strangers(self) -> list[str]:
        """Names beside those that belong to an installation."""
        own = {"Lumaris.app", "log", "ui.pid"}
        names = [str(self.folder / n) for n in os.listdir(self.folder) if n not in own]
        names += [str(self.home / n) for n in os.listdir(self.home) if n != ".LumarisBackup"]
        names += [str(self.tmp / n) for n in os.listdir(self.tmp) if not n.endswith("lockfile")]
        return sorted(os.path.relpath(name, self.root) for name in names)
