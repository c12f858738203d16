# SPDX-License-Identifier: MIT
"""A player's home folder of the scenario's own, and what the launcher keeps in it."""

import os
from pathlib import Path

from rig import engine, product, sample_game


class Home:
    def __init__(self, folder: Path):
        self._folder = folder
        self.temporary = folder / "tmp"
        self._runtime = folder / "run"
        self.programs = folder / "bin"
        for made in (folder, self.temporary, self._runtime, self.programs):
            made.mkdir(mode=0o700)
        data = folder / ".local" / "share"
        self.root = data / product.NAME
        self.saves = data / "godot" / "app_userdata" / sample_game.NAME
        self.game = self.root / "Game"
        self.project = self.game / sample_game.ARCHIVE_FOLDER / sample_game.PROJECT_FOLDER
        self.engines = self.root / "Engine"
        self._settings = folder / ".config" / product.NAME / f"{product.NAME}.conf"

    def environment(self) -> dict[str, str]:
        """An environment of a session, with nothing of the real user in it."""
        return {
            "HOME": str(self._folder),
            "TMPDIR": str(self.temporary),
            "XDG_RUNTIME_DIR": str(self._runtime),
            "PATH": f"{self.programs}:/usr/local/bin:/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "USER": os.environ.get("USER", "player"),
        }

    def write_settings(self, **settings: str) -> None:
        self._settings.parent.mkdir(parents=True, exist_ok=True)
        self._settings.write_text(
            "[General]\n" + "".join(f"{key}={settings[key]}\n" for key in settings))

    def settings(self) -> dict[str, str]:
        lines = self._settings.read_text().splitlines() if self._settings.exists() else []
        return dict(line.split("=", 1) for line in lines if "=" in line)

    def save_a_game(self) -> Path:
        """Returns a file such as a game leaves in its folder of saves."""
        self.saves.mkdir(parents=True)
        saved = self.saves / "save.dat"
        saved.write_text("The third cave.\n")
        return saved

    def snapshot(self) -> dict[str, tuple]:
        """Everything below the root, by its path: equal to another one only where nothing was
        changed, and nothing replaced by its like."""
        entries = [self.root, *self.root.rglob("*")] if self.root.exists() else []
        return {str(entry): _identity(entry) for entry in entries}

    def block_settings(self) -> Path:
        """Puts a file where the folder of the settings would be, and returns it."""
        file = self._settings.parent
        file.parent.mkdir(parents=True)
        file.write_text("")
        return file

    def marker(self, mono: bool = False) -> Path:
        return self.game / (f".setup-v2-{engine.VERSION}" + ("-mono" if mono else ""))

    def engine_folder(self, mono: bool = False) -> Path:
        return self.engines / (engine.VERSION + ("-mono" if mono else ""))

    def engine_program(self) -> Path:
        return self.engine_folder() / Path(engine.archive_name()).stem

    def processes(self) -> list[int]:
        """The processes that run from the installation, have their working folder there, or were
        given its path; also those that the launcher has left behind."""
        return [int(process.name) for process in Path("/proc").glob("[0-9]*")
                if str(self.root) in _engagement(process)]

    def expect_nothing_left_over(self) -> None:
        """Only what is installed stands below the root, and nothing in the temporary folder."""
        _expect_only(self.temporary, set())
        _expect_only(self.root, {"Game", "Engine"})
        _expect_only(self.engines, {engine.VERSION, f"{engine.VERSION}-mono"})


def _identity(entry: Path) -> tuple:
    status = entry.lstat()
    return status.st_ino, status.st_mode, status.st_size, status.st_mtime_ns


def _engagement(process: Path) -> str:
    """The program, the working folder and the command line of a process that is still there."""
    try:
        return "\n".join([os.readlink(process / "exe"), os.readlink(process / "cwd"),
                          (process / "cmdline").read_bytes().decode(errors="replace")])
    except OSError:
        return ""  # It has ended meanwhile, or is another user's.


def _expect_only(folder: Path, allowed: set[str]) -> None:
    names = {entry.name for entry in folder.iterdir()} if folder.exists() else set()
    assert names <= allowed, f"{folder} holds {sorted(names - allowed)}"
