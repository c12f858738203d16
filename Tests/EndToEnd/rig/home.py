# SPDX-License-Identifier: MIT
"""A player's home folder of the scenario's own, and what the launcher keeps in it."""

import os
from pathlib import Path

from rig import engine, sample_game

NAME = "Cavernyx Platformer"


class Home:
    def __init__(self, folder: Path):
        self._folder = folder
        self.temporary = folder / "tmp"
        self._runtime = folder / "run"
        for made in (folder, self.temporary, self._runtime):
            made.mkdir(mode=0o700)
        self.root = folder / ".local" / "share" / NAME
        self.game = self.root / "Game"
        self.project = self.game / sample_game.ARCHIVE_FOLDER / sample_game.PROJECT_FOLDER
        self.engines = self.root / "Engine"

    def environment(self) -> dict[str, str]:
        """An environment of a session, with nothing in it of whoever runs the tests."""
        return {
            "HOME": str(self._folder),
            "TMPDIR": str(self.temporary),
            "XDG_RUNTIME_DIR": str(self._runtime),
            "PATH": "/usr/local/bin:/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "USER": os.environ.get("USER", "player"),
        }

    def write_settings(self, **settings: str) -> None:
        file = self._folder / ".config" / NAME / f"{NAME}.conf"
        file.parent.mkdir(parents=True)
        file.write_text("[General]\n" + "".join(f"{key}={settings[key]}\n" for key in settings))

    def block_settings(self) -> Path:
        """Puts a file where the folder of the settings would be, and returns it."""
        file = self._folder / ".config" / NAME
        file.parent.mkdir(parents=True)
        file.write_text("")
        return file

    def marker(self, mono: bool = False) -> Path:
        return self.game / (f".setup-v2-{engine.VERSION}" + ("-mono" if mono else ""))

    def engine_folder(self, mono: bool = False) -> Path:
        return self.engines / (engine.VERSION + ("-mono" if mono else ""))

    def processes(self) -> list[int]:
        """Whoever works with what is installed: runs from there, stands there or was given it.
        Finds also what the launcher has left behind when it ended."""
        return [int(process.name) for process in Path("/proc").glob("[0-9]*")
                if str(self.root) in _engagement(process)]

    def expect_nothing_left_over(self) -> None:
        """Only what is installed stands below the root, and nothing in the temporary folder."""
        _expect_only(self.temporary, set())
        _expect_only(self.root, {"Game", "Engine"})
        _expect_only(self.engines, {engine.VERSION, f"{engine.VERSION}-mono"})


def _engagement(process: Path) -> str:
    """The program, the working folder and the command line of a process that is still there."""
    try:
        return "\n".join([os.readlink(process / "exe"), os.readlink(process / "cwd"),
                          (process / "cmdline").read_bytes().decode(errors="replace")])
    except OSError:
        return ""  # It has ended meanwhile, or is somebody else's.


def _expect_only(folder: Path, allowed: set[str]) -> None:
    names = {entry.name for entry in folder.iterdir()} if folder.exists() else set()
    assert names <= allowed, f"{folder} holds {sorted(names - allowed)}"
