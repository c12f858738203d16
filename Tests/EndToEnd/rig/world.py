# SPDX-License-Identifier: MIT
"""All that one scenario needs, put together."""

import shutil
import zipfile
from pathlib import Path

from rig import engine, file_manager, private_world, sample_game, web_host, window_manager
from rig.authority import Authority
from rig.desktop import Desktop
from rig.file_manager import Opener, Shower
from rig.home import Home
from rig.launcher import TITLE, Launcher
from rig.private_world import System
from rig.session_services import SessionServices
from rig.waiting import wait_for
from rig.web_host import WebHost


class World:
    """A fresh player's desktop, made in the folder `scratch`. `program` is the installed one in
    `system`; pictures, the last of them of a failure, and what it prints are kept in
    `output`. `start_windows` is as for `Desktop`."""

    def __init__(self, program: Path, scratch: Path, output: Path, system: System,
                 start_windows=window_manager.start):
        self._program = program
        self._system = system
        self.output = output
        self._scratch = scratch
        self.home = Home(scratch / "home")
        authority = Authority(scratch / "authority", web_host.NAMES)
        private_world.redirect_hosts(
            scratch, authority.certificate, [*web_host.NAMES, web_host.UNCERTIFIED], system)
        private_world.hide_displays(scratch)
        self.web = WebHost(scratch / "web", authority)
        self.opener = Opener(self.home.programs)
        self.desktop = Desktop(self.home.environment(), output, start_windows)
        self.launcher = None

    def __enter__(self) -> "World":
        return self

    def __exit__(self, *error) -> None:
        if error[0] and self.launcher:
            self.picture("failure")

    def offer_game(self, csharp: bool = False, more: dict[str, bytes] | None = None) -> None:
        sample_game.make_archive(self.web.branch_archive, self._scratch, csharp, more or {})

    def offer_real_engine(self) -> None:
        engine.make_release(self.web.releases, engine.REAL_ENGINE)

    def offer_scripted_engine(self, mono: bool = False, **behaviour: str) -> Path:
        """Returns the archive, which a scenario may damage."""
        program = engine.script(self._scratch / "engine", **behaviour)
        return engine.make_release(self.web.releases, program, mono)

    def install(self, more: dict[str, bytes] | None = None, **behaviour: str) -> None:
        """Offers a game and a scripted engine, and puts both in place, imported and marked as the
        launcher leaves them."""
        self.offer_game(more=more)
        self.offer_scripted_engine(**behaviour)
        with zipfile.ZipFile(self.web.branch_archive) as archive:
            archive.extractall(self.home.game)
        with zipfile.ZipFile(self.web.releases / engine.archive_name()) as archive:
            archive.extractall(self.home.engine_folder())
        program = self.home.engine_program()
        program.chmod(0o755)
        engine.run_import(program, self.home.project)
        self.home.marker().touch()

    def copy_program(self) -> Path:
        """Has the launcher start from a copy of what is installed, and returns its prefix: a
        scenario may damage it."""
        copy = self._scratch / "prefix"
        shutil.copytree(self._program.parents[1], copy)
        self._program = copy / "bin" / self._program.name
        return copy

    def start_file_manager(self) -> Shower:
        return Shower(self._scratch / "shown.txt", file_manager.MANAGER)

    def start_portal(self) -> Shower:
        return Shower(self._scratch / "shown-by-portal.txt", file_manager.PORTAL)

    def start_session_services(self) -> SessionServices:
        return SessionServices(self._scratch / "noted.txt")

    def disconnect(self) -> None:
        private_world.disconnect(self._scratch)

    def silence_names(self) -> None:
        self._silent_server = private_world.silence_names(self._scratch)

    def open_launcher(self, **environment: str | None) -> Launcher:
        """Starts the launcher and opens its log, to the right of where games open. One that was
        open before has to have ended."""
        self.launcher = self.start_launcher(**environment)
        self.launcher.wait_for_window()
        wait_for("The focus on the window", self.launcher.is_active)
        self.desktop.move_aside(TITLE)
        self.launcher.press("Show log")
        return self.launcher

    def start_launcher(self, program: Path | None = None,
                       **environment: str | None) -> Launcher:
        """Only starts it, for a start that brings no window of its own."""
        return Launcher(self._system.command(program or self._program),
                        self.output / "launcher-output.txt", **environment)

    def picture(self, name: str) -> None:
        self.desktop.take_picture(name)
