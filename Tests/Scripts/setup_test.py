#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Scripts/setup on made-up systems, whose package commands only note what they were asked for."""

import subprocess
import tempfile
import unittest
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "Scripts" / "setup"
CMAKE = "cmake"

# For each system: its /etc/os-release, the command that would install, and what asks for a package,
# in a form that knows every package but CMake.
KNOWS_ALL_BUT_CMAKE = 'for name; do :; done; [ "$name" != cmake ]'
DPKG = ('shift 2; for name; do [ "$name" = cmake ] || echo "installed $name"; done')
SYSTEMS = {
    "debian": ("ID=debian", "env DEBIAN_FRONTEND=noninteractive apt-get install --yes "
               "--no-install-recommends cmake", {"dpkg-query": DPKG}),
    "mint": ('ID=linuxmint\nID_LIKE="ubuntu debian"', "env DEBIAN_FRONTEND=noninteractive apt-get "
             "install --yes --no-install-recommends cmake", {"dpkg-query": DPKG}),
    "fedora": ("ID=fedora", "dnf install --assumeyes cmake", {"rpm": KNOWS_ALL_BUT_CMAKE}),
    "rhel-like": ('ID="rocky"\nID_LIKE="rhel centos fedora"', "dnf install --assumeyes cmake",
                  {"rpm": KNOWS_ALL_BUT_CMAKE}),
    "arch": ("ID=arch", "pacman -S --needed --noconfirm cmake",
             {"pacman": '[ "$2" != cmake ] || echo cmake'}),
    "opensuse": ('ID="opensuse-tumbleweed"\nID_LIKE="opensuse suse"',
                 "zypper --non-interactive install cmake", {"rpm": KNOWS_ALL_BUT_CMAKE}),
    "alpine": ("ID=alpine", "apk add cmake", {"apk": KNOWS_ALL_BUT_CMAKE}),
}


class SetupTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.programs = self.folder / "bin"
        self.programs.mkdir()
        for tool in ("sh", "sed", "tr", "cat"):
            (self.programs / tool).symlink_to(f"/usr/bin/{tool}")
        self.program("id", "echo 1000")

    def program(self, name: str, body: str) -> None:
        file = self.programs / name
        file.write_text(f"#!/bin/sh\n{body}\n")
        file.chmod(0o755)

    def run_setup(self, os_release: str, *purposes: str) -> subprocess.CompletedProcess:
        (self.folder / "os-release").write_text(os_release + "\n")
        return subprocess.run(
            ["/bin/sh", SETUP, *purposes], capture_output=True, text=True,
            env={"PATH": str(self.programs), "SETUP_OS_RELEASE": str(self.folder / "os-release")})

    def test_installs_what_is_missing_by_the_systems_own_command(self):
        for name, (os_release, command, asking) in SYSTEMS.items():
            with self.subTest(name):
                for asked, body in asking.items():
                    self.program(asked, body)
                noted = self.folder / "installed.txt"
                self.program("sudo", f'echo "$*" >>"{noted}"')
                ended = self.run_setup(os_release, "build", "run")
                self.assertEqual(ended.returncode, 0, ended.stderr)
                self.assertEqual(noted.read_text().splitlines()[-1], command)
                noted.unlink()

    def test_says_what_to_install_where_nobody_may(self):
        self.program("rpm", KNOWS_ALL_BUT_CMAKE)
        ended = self.run_setup("ID=fedora", "build")
        self.assertEqual(ended.returncode, 1)
        self.assertEqual(ended.stderr, "setup: Please install these packages as root first: "
                         "dnf install cmake\n")

    def test_asks_for_nothing_where_nothing_is_missing(self):
        self.program("rpm", "exit 0")
        ended = self.run_setup("ID=fedora", "build", "run")
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))

    def test_lists_what_is_needed_on_a_system_it_does_not_know(self):
        for os_release in ("ID=nixos", ""):
            ended = self.run_setup(os_release, "build", "run")
            self.assertEqual(ended.returncode, 1)
            self.assertIn("Qt 6.4", ended.stderr)
            self.assertIn("cmake --preset release", ended.stderr)

    def test_knows_the_tests_needs_for_debian_only(self):
        ended = self.run_setup("ID=fedora", "build", "test")
        self.assertEqual(ended.returncode, 1)
        self.assertIn("Debian and Ubuntu only", ended.stderr)

    def test_refuses_an_unknown_purpose(self):
        self.assertEqual(self.run_setup("ID=debian", "cook").returncode, 2)


if __name__ == "__main__":
    unittest.main()
