# SPDX-License-Identifier: MIT
"""A release of Debian with nothing in it but its package manager, in a folder of the build tree.
What is mounted inside is mounted in a namespace that ends with the command that needs it."""

import subprocess
from pathlib import Path

BUILD = Path(__file__).resolve().parents[2] / "build" / "bare"
ENVIRONMENT = {
    "PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin",
    "HOME": "/root",
    "LC_ALL": "C.UTF-8",
    "DEBIAN_FRONTEND": "noninteractive",
}


class BareSystem:
    """Made when constructed, in place of one that had the same name. Deleted by `remove`."""

    def __init__(self, release: str, name: str):
        self.release = release
        self.root = BUILD / f"{release}-{name}"
        self.remove()
        self.root.mkdir(parents=True)
        subprocess.run(["tar", "-C", self.root, "-xf", base_archive(release)], check=True)
        for file in ("/etc/resolv.conf", "/etc/hosts"):
            if Path(file).exists():
                (self.root / file[1:]).write_bytes(Path(file).read_bytes())

    def run(self, *command: str, folder: str = "/", check: bool = True,
            **environment: str) -> subprocess.CompletedProcess:
        """Runs a command inside, with process identifiers of its own, and returns how it ended with
        what it printed. If this process ends, so does all that it started there."""
        changed = [f"{name}={value}" for name, value in {**ENVIRONMENT, **environment}.items()]
        ended = subprocess.run(
            ["setpriv", "--pdeathsig", "KILL", "nice", "-n", "15", "unshare", "--mount", "--pid", "--fork", "--kill-child",
             f"--mount-proc={self.root}/proc", "chroot", self.root,
             "env", "-i", "-C", folder, *changed, *command],
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if check and ended.returncode != 0:
            raise AssertionError(f"{command} ended with {ended.returncode} in {self.root.name}:\n"
                                 f"{ended.stdout[-8000:]}")
        return ended

    def install(self, *packages: str, recommends: bool = False) -> str:
        """Packages by name, or by the path of a file inside."""
        more = [] if recommends else ["--no-install-recommends"]
        self.run("apt-get", "update")
        return self.run("apt-get", "install", "--yes", *more, *packages).stdout

    def put(self, file: Path) -> str:
        """Copies a file into the root folder and returns its path inside."""
        (self.root / file.name).write_bytes(file.read_bytes())
        return f"/{file.name}"

    def remove(self) -> None:
        if f" {self.root}" in Path("/proc/self/mountinfo").read_text():
            raise RuntimeError(f"Something is mounted below {self.root}, so it is left alone.")
        subprocess.run(["rm", "-rf", "--one-file-system", self.root], check=True)


def base_archive(release: str) -> Path:
    """An archive of the release's smallest system, from where this system gets its packages: with
    the security updates, since what is built there goes into the bundle."""
    archive = BUILD / f"{release}.tar"
    if not archive.exists():
        BUILD.mkdir(parents=True, exist_ok=True)
        main, security = _mirror("Debian"), _mirror("Debian-Security")
        unfinished = archive.with_suffix(".part.tar")
        subprocess.run(
            ["mmdebstrap", "--variant=minbase", f"--aptopt={_mirror_options()}", release,
             unfinished, f"deb {main} {release} main", f"deb {main} {release}-updates main",
             f"deb {security} {release}-security main"], check=True)
        unfinished.rename(archive)
    return archive


def _mirror(label: str) -> str:
    uris = _ask("apt-get", "indextargets", "--format", "$(REPO_URI)", "Created-By: Packages",
                "Origin: Debian", "Component: main", f"Label: {label}")
    assert uris, f"This system has no source of packages labelled {label}."
    return uris.split()[0]


def _mirror_options() -> str:
    """Whether lists of packages may be old, as those of a mirror that stands still are."""
    value = _ask("apt-config", "dump", "--format", "%v", "Acquire::Check-Valid-Until")
    return f'Acquire::Check-Valid-Until "{value or "true"}"'


def _ask(*command: str) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout
