# SPDX-License-Identifier: MIT
"""Puts a process into network and mount namespaces of its own, so that a scenario can decide what
the host names of the real downloads mean and whom the system trusts, and no other process sees any of
it. An ordinary user gets there through a user namespace."""

import ctypes
import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

SCRATCH = "CAVERNYX_SCENARIO_SCRATCH"
OUTSIDE = "CAVERNYX_SCENARIO_OUTSIDE"
HOSTS_FILE = "hosts"
PR_SET_CHILD_SUBREAPER = 36
CHROOT = "/usr/sbin/chroot"
MS_REC, MS_PRIVATE = 1 << 14, 1 << 18


class System:
    """Where the launcher is installed: this system, or a bare one in a folder that is made for
    such trials. Of the latter, `trust` may be the file that it keeps trusted certificates in."""

    def __init__(self, root: Path = Path("/"), trust: Path | None = None):
        self._root = root
        self.trust = self.place(trust) if trust else None

    def place(self, path: str | Path) -> Path:
        return self._root / str(path).lstrip("/")

    def command(self, program: Path) -> list[str]:
        """Runs the program in the system, as the very process that is started."""
        return [str(program)] if self._is_this() else [CHROOT, str(self._root), str(program)]

    def share(self, scratch: Path) -> None:
        """Lets a bare system see the scenario's files, by the same path, and the processes."""
        if self._is_this():
            return
        self.place(scratch).mkdir(parents=True, exist_ok=True)
        _mount_over(self.place(scratch), scratch)
        subprocess.run(["mount", "-t", "proc", "proc", self.place("/proc")], check=True)

    def _is_this(self) -> bool:
        return self._root == Path("/")


def enter() -> Path:
    """Runs this program again inside the namespaces and exits as it does. Inside, returns an empty
    folder to work in. It is deleted from outside, where nothing is mounted below it, so that no
    mistake in a scenario can lead the deletion anywhere else."""
    scratch = os.environ.pop(SCRATCH, None)
    outside = os.environ.pop(OUTSIDE, None)
    if not scratch:
        sys.exit(_run_inside())
    if outside in (None, _mount_namespace()):
        raise RuntimeError("This process is not in namespaces of its own.")
    _make_mounts_private()
    subprocess.run(["ip", "link", "set", "lo", "up"], check=True)
    _become_subreaper()
    return Path(scratch)


@contextmanager
def entered(output: Path) -> Iterator[Path]:
    """Enters the namespaces, empties `output`, and at the end kills all processes started inside."""
    scratch = enter()
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    try:
        yield scratch
    finally:
        end_descendants()


def redirect_hosts(scratch: Path, authority: Path, hosts: list[str], system: System) -> None:
    """Makes `hosts` this machine, takes the name servers away, and makes the certificate
    `authority` the only one in the trust store of the system: its hashed folder, and the list of
    all of them that other programs read. Or the system's one file of them."""
    system.share(scratch)
    names = scratch / HOSTS_FILE
    names.write_text("".join(f"127.0.0.1 {name}\n" for name in ["localhost", *hosts]))
    servers = scratch / "resolv.conf"
    servers.write_text("options timeout:1 attempts:1\n")
    trusted = scratch / "trusted"
    trusted.mkdir()
    shutil.copy(authority, trusted / "ca-certificates.crt")
    subprocess.run(["openssl", "rehash", str(trusted)], check=True)

    _mount_over(system.place("/etc/hosts"), names)
    if system.trust:
        system.trust.write_bytes(authority.read_bytes())
    else:
        _mount_over(system.place("/etc/ssl/certs"), trusted)
    if system.place("/etc/resolv.conf").exists():
        _mount_over(system.place("/etc/resolv.conf"), servers)


def hide_displays(scratch: Path) -> None:
    """Covers the files by which the machine's own displays are reached, where it has any. The
    displays of this namespace have none: their names belong to its network."""
    sockets = Path("/tmp/.X11-unix")
    if sockets.exists():
        nothing = scratch / "displays"
        nothing.mkdir()
        _mount_over(sockets, nothing)


def disconnect(scratch: Path) -> None:
    """From now on no name leads anywhere, and no address can be reached."""
    (scratch / HOSTS_FILE).write_text("127.0.0.1 localhost\n")
    subprocess.run(["ip", "link", "set", "lo", "down"], check=True)


def silence_names(scratch: Path) -> socket.socket:
    """From now on a name server is asked for every name, and none answers: a look-up takes a minute
    to fail. Returns what has to be kept for as long as that is to be so."""
    server = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    server.bind(("127.0.0.1", 53))
    (scratch / "resolv.conf").write_text(
        "nameserver 127.0.0.1\noptions timeout:30 attempts:2\n")
    (scratch / HOSTS_FILE).write_text("127.0.0.1 localhost\n")
    return server


def end_descendants() -> None:
    """Ends every process that this one started, directly or not, and waits until they are gone."""
    while True:
        for pid in _descendants(os.getpid()):
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        # A process that was about to start another one when it was listed leaves that one to the next
        # round.
        try:
            ended, _ = os.waitpid(-1, os.WNOHANG)
        except ChildProcessError:
            return
        if not ended:
            time.sleep(0.01)


def network_activity() -> dict[str, int]:
    """How often anything in this namespace opened a connection or sent a datagram so far."""
    counters = {}
    lines = Path("/proc/net/snmp").read_text().splitlines()
    for names, values in zip(lines[::2], lines[1::2]):
        protocol = names.split(":")[0]
        for name, value in zip(names.split()[1:], values.split()[1:]):
            counters[f"{protocol} {name}"] = int(value)
    return {name: counters[name] for name in ("Tcp ActiveOpens", "Udp OutDatagrams")}


def _run_inside() -> int:
    unshare = ["unshare", "--mount", "--propagation", "unchanged", "--net"]
    if os.geteuid() != 0:
        unshare.append("--map-root-user")
    attempt = subprocess.run([*unshare, "true"], capture_output=True, text=True)
    if attempt.returncode != 0:
        sys.exit("A scenario needs namespaces of its own, which this system refuses: "
                 f"{attempt.stderr.strip()}")
    scratch = tempfile.mkdtemp(prefix="cavernyx-scenario-")
    environment = {**os.environ, SCRATCH: scratch, OUTSIDE: _mount_namespace()}
    status = subprocess.run([*unshare, sys.executable, *sys.orig_argv[1:]], env=environment).returncode
    if f" {scratch}" in Path("/proc/self/mountinfo").read_text():
        raise RuntimeError(f"Something is mounted below {scratch}, so it is left alone.")
    shutil.rmtree(scratch)
    return status


def _mount_namespace() -> str:
    return os.readlink("/proc/self/ns/mnt")


def _make_mounts_private() -> None:
    """Hides what is mounted from now on from other processes. Only a mount point can be made
    private. The root of a chroot may be none, so this process leaves the chroot and comes back."""
    folder = os.getcwd()
    root = os.open("/", os.O_PATH)
    namespace = os.open("/proc/self/ns/mnt", os.O_RDONLY)
    _call("setns", namespace, 0)
    _call("mount", None, b"/", None, ctypes.c_ulong(MS_REC | MS_PRIVATE), None)
    os.fchdir(root)
    os.chroot(".")
    os.chdir(folder)
    os.close(namespace)
    os.close(root)


def _mount_over(place: Path, replacement: Path) -> None:
    """The one way in which anything of this system is mounted: a file or folder made for this
    scenario covers a place of the system's. Never the other way round."""
    subprocess.run(["mount", "--bind", replacement, place], check=True)


def _become_subreaper() -> None:
    """What outlives its parent becomes a child of this process, and so can be found and ended."""
    _call("prctl", PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def _call(function: str, *arguments) -> None:
    """Calls a function of the C library that returns 0 unless it fails."""
    libc = ctypes.CDLL(None, use_errno=True)
    if getattr(libc, function)(*arguments) != 0:
        raise OSError(ctypes.get_errno(), function)


def _descendants(pid: int) -> list[int]:
    try:
        children = Path(f"/proc/{pid}/task/{pid}/children").read_text().split()
    except (FileNotFoundError, ProcessLookupError):
        return []
    found = [int(child) for child in children]
    return found + [grandchild for child in found for grandchild in _descendants(child)]
