# SPDX-License-Identifier: MIT
"""The window managers and compositors of real desktops. They draw on the scenario's display: a
window manager manages its windows, a Wayland compositor shows its screen in one window there."""

import os
import shutil
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

from rig import window_manager
from rig.waiting import wait_for

WAYLAND_DISPLAY = "wayland-1"


class NotRunning(Exception):
    """The desktop does not start on this system. The text is the last line that it printed."""


@dataclass(frozen=True)
class Refusal:
    """Why a desktop does not allow a step of the tour, and how the problem of the step begins."""

    reason: str
    problem: str


@dataclass(frozen=True)
class RealDesktop:
    """`minimize` and `close` are its key presses for the focused window. Without a key to minimise,
    `minimize` is empty; without one to close, `close` is the launcher's own. `refuses` names the
    steps of the tour that the desktop does not allow."""

    command: list[str] = field(default_factory=list)
    environment: dict[str, str] = field(default_factory=dict)
    is_wayland: bool = False
    minimize: str = ""
    close: str = "ctrl+q"
    refuses: dict[str, Refusal] = field(default_factory=dict)

    def start(self, log: Path) -> None:
        """Returns when it is ready for windows."""
        if not self.command:
            return
        if self.is_wayland:
            window_manager.start(log)  # Gives the keyboard to the compositor's window.
        with log.open("a") as printed:
            program, *arguments = [os.path.expandvars(part) for part in self.command]
            if not shutil.which(program):
                raise NotRunning(f"{program} is not installed.")
            server = subprocess.Popen([without_privileges(program), *arguments], stdout=printed,
                                      stderr=printed, env={**os.environ, **self.environment})

        def is_ready() -> bool:
            if server.poll() is not None:
                lines = log.read_text(errors="replace").split("\n")
                raise NotRunning(next((line for line in reversed(lines) if line), "no message"))
            return wayland_is_ready() if self.is_wayland else x11_is_ready()

        wait_for("The desktop", is_ready)
        if self.is_wayland:
            os.environ.update(WAYLAND_DISPLAY=WAYLAND_DISPLAY, XDG_SESSION_TYPE="wayland")


def without_privileges(program: str) -> str:
    """Returns a copy of the program without the capabilities that its file may have: where the
    system cannot grant them, it does not start."""
    return shutil.copy(shutil.which(program), os.environ["TMPDIR"])


def wayland_is_ready() -> bool:
    return Path(os.environ["XDG_RUNTIME_DIR"], WAYLAND_DISPLAY).exists()


def x11_is_ready() -> bool:
    from Xlib.display import Display
    display = Display()
    manager = display.screen().root.get_full_property(
        display.get_atom("_NET_SUPPORTING_WM_CHECK"), 0)
    display.close()
    return manager is not None


NO_FOCUS = "The focus on the window"
NO_KEY = "There is no key"
NO_ACTIVATION = Refusal("It does not support xdg-activation.", NO_FOCUS)
NO_MANAGER = Refusal("When a window closes, no other one gets the focus.", NO_FOCUS)

# It refuses to run as root.
SWAY = ["unshare", "--user", "--map-user=1000",
        "sway", "--config", str(Path(__file__).with_name("sway.conf"))]

DESKTOPS = {
    "xfwm4": RealDesktop(["xfwm4", "--vblank=off"], minimize="alt+F9", close="alt+F4"),
    "kwin-x11": RealDesktop(["kwin_x11"], minimize="super+Next", close="alt+F4"),
    "mutter": RealDesktop(
        ["mutter", "--wayland", "--nested", "--no-x11", "--wayland-display", WAYLAND_DISPLAY],
        {"MUTTER_DEBUG_DUMMY_MODE_SPECS": "1600x1000"},
        is_wayland=True, minimize="super+h", close="alt+F4"),
    "kwin-wayland": RealDesktop(
        ["kwin_wayland", "--x11-display", "$DISPLAY", "--socket", WAYLAND_DISPLAY,
         "--width", "1600", "--height", "1000"], {"KWIN_COMPOSE": "Q"},
        is_wayland=True, minimize="super+Next", close="alt+F4"),
    "sway": RealDesktop(
        SWAY, {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"},
        is_wayland=True, close="super+shift+q",
        refuses={"minimise and restore": Refusal("It tiles windows and cannot minimise them.", NO_KEY)}),
    "weston": RealDesktop(
        ["weston", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0",
         "--width=1600", "--height=1000", f"--socket={WAYLAND_DISPLAY}"], is_wayland=True,
        refuses={"notification": NO_ACTIVATION, "second start": NO_ACTIVATION,
                 "minimise and restore": Refusal("It has a button for that, but no key.", NO_KEY)}),
    "none": RealDesktop(refuses={
        "notification": Refusal("No other window can get the focus, so the launcher thinks it is in "
                                "front.", "The notification"),
        "sheet": NO_MANAGER, "close": NO_MANAGER,
        "minimise and restore": Refusal("Only a window manager can minimise a window.", NO_KEY)}),
}
