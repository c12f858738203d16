# SPDX-License-Identifier: MIT
"""What is tried of the packages of one release of Debian. Each step raises what it finds wrong, and
may return a sentence about what it found."""

import subprocess
from pathlib import Path

from bare_system import BUILD, BareSystem

ROOT = Path(__file__).resolve().parents[2]
RELEASES = ["bookworm", "trixie"]
NAME = "cavernyx-platformer"


def build(release: str) -> str:
    """builds all packages in a bare system, from a clean clone"""
    make_packages(release, "/root/clone", dist(release))
    return ", ".join(f"{file.name} {file.stat().st_size:,} bytes"
                     for file in sorted(dist(release).iterdir()))


def rebuild(release: str) -> None:
    """builds them once more, in another folder, and compares every byte"""
    again = BUILD / f"again-{release}"
    make_packages(release, "/var/tmp/a longer name/of the clone", again)
    compared = subprocess.run(["diffoscope", dist(release), again], capture_output=True, text=True)
    assert compared.returncode == 0, compared.stdout


def make_packages(release: str, folder: str, result: Path) -> None:
    system = BareSystem(release, "builder")
    system.install("git")
    clone = system.root / folder[1:]
    subprocess.run(["git", "clone", "--quiet", "--no-local", ROOT, clone], check=True)
    system.run("Scripts/package", folder=folder)
    subprocess.run(["rm", "-rf", result], check=True)
    (clone / "build" / "dist").rename(result)
    system.remove()


def dist(release: str) -> Path:
    return BUILD / f"dist-{release}"


ALL = {step.__name__: step for step in (build, rebuild)}
