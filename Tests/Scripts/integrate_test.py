#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The bundle's integrate, with a bundle and a home of its own."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

PACKAGING = Path(__file__).resolve().parents[2] / "Packaging"
ENTRY = "applications/org.example.launcher.desktop"
ICON = "icons/hicolor/64x64/apps/org.example.launcher.png"


class IntegrateTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.data = Path(folder.name) / "data"
        # What an entry's Exec line gives a meaning to.
        self.bundle = Path(folder.name) / 'my "games" $HOME `x` \\n'
        share = self.bundle / "share"
        for file in (ENTRY, ICON):
            (share / file).parent.mkdir(parents=True)
        (share / ENTRY).write_text("[Desktop Entry]\nType=Application\nName=Launcher\n"
                                   "Exec=cavernyx-platformer\nIcon=org.example.launcher\n")
        (share / ICON).write_bytes(b"an icon")
        shutil.copy(PACKAGING / "bundle" / "integrate", self.bundle)
        program = self.bundle / "cavernyx-platformer"
        program.write_text("#!/bin/sh\n")
        program.chmod(0o755)

    def integrate(self, *arguments: str) -> int:
        return subprocess.run([self.bundle / "integrate", *arguments], capture_output=True,
                              env={"PATH": "/usr/bin:/bin", "HOME": "/nonexistent",
                                   "XDG_DATA_HOME": str(self.data)}).returncode

    def files(self) -> list[str]:
        return sorted(str(file.relative_to(self.data))
                      for file in self.data.rglob("*.*") if file.is_file())

    def test_lists_a_program_that_starts(self):
        self.assertEqual(self.integrate(), 0)
        self.assertIn(ENTRY, self.files())
        self.assertEqual((self.data / ICON).read_bytes(), b"an icon")
        import gi
        gi.require_version("Gio", "2.0")
        from gi.repository import Gio
        entry = Gio.DesktopAppInfo.new_from_filename(str(self.data / ENTRY))
        self.assertIsNotNone(entry, "The entry names no program that is there.")
        from gi.repository import GLib
        _, arguments = GLib.shell_parse_argv(entry.get_commandline())
        self.assertEqual(arguments, [str(self.bundle / "cavernyx-platformer")])
        subprocess.run(["desktop-file-validate", self.data / ENTRY], check=True)

    def test_takes_everything_out_again(self):
        self.integrate()
        own = self.data / "applications" / "other.desktop"
        own.write_text("")
        self.assertEqual(self.integrate("--remove"), 0)
        self.assertNotIn(ENTRY, self.files())
        self.assertNotIn(ICON, self.files())
        self.assertTrue(own.exists())

    def test_refuses_what_it_does_not_know(self):
        self.assertEqual(self.integrate("--help"), 2)
        self.assertFalse(self.data.exists())


if __name__ == "__main__":
    unittest.main()
