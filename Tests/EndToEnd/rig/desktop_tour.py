# SPDX-License-Identifier: MIT
"""What a player does with the launcher's window, on a real desktop."""

import os
import subprocess
import time
from contextlib import contextmanager, suppress
from pathlib import Path

from rig import settings_sheet
from rig.appearance import DARK, LIGHT, Appearance
from rig.keyboard import press_keys
from rig.launcher import TITLE
from rig.other_window import OtherWindow
from rig.product import APPLICATION
from rig.real_desktops import RealDesktop
from rig.waiting import wait_for
from rig.x11_windows import visible_windows

DARK_WINDOW, LIGHT_WINDOW = b"\x1e\x1e\x20", b"\xf4\xf4\xf6"
# How many pixels of the display have at least the window's colour when the window is in view.
MIN_VISIBLE = 20000
# How long a desktop takes at most to show a window that opens, in seconds.
ANIMATION = 1


class DesktopTour:
    """Goes on after a step that fails, and reports each. A Wayland compositor does not say where the
    windows are: there, only the pictures show the places of sheets and alerts."""

    def __init__(self, world, desktop: RealDesktop, prefix: Path):
        self._world = world
        self._desktop = desktop
        self._prefix = prefix
        self._background = LIGHT_WINDOW
        self._appearance = Appearance(LIGHT)
        self._services = world.start_session_services()
        self._files = world.start_file_manager()
        os.environ["XDG_DATA_DIRS"] = f"{prefix}/share:/usr/local/share:/usr/share"

    def run(self, name: str) -> bool:
        """Returns whether exactly the steps fail that the desktop is known not to allow."""
        steps = {
            "open": self._open,
            "title and icon": self._check_title_and_icon,
            "appearance": self._change_appearance,
            "notification": self._click_notification,
            "second start": self._start_again,
            "minimise and restore": self._minimize,
            "sheet": self._open_sheet,
            "alert": self._open_alert,
            "reveal": self._reveal,
            "close": self._close,
        }
        as_known = True
        for step, take in steps.items():
            problem = self._problem_in(take)
            refusal = self._desktop.refuses.get(step)
            if refusal and problem.startswith(refusal.problem):
                result = f"not allowed: {refusal.reason} {problem}"
            else:
                as_known = as_known and not problem and not refusal
                result = (f"FAILED: {problem}" if problem
                          else "WORKS, although it is known as refused" if refusal else "works")
            print(f"{name}: {step}: {result}", flush=True)
            self._world.picture(step.replace(" ", "-"))
        return as_known

    @staticmethod
    def _problem_in(take) -> str:
        try:
            take()
        except AssertionError as error:
            return str(error) or "An expectation was not met."
        except Exception as error:
            return f"{type(error).__name__}: {error}"
        return ""

    def _open(self) -> None:
        self._world.offer_game()
        self._world.offer_scripted_engine()
        self._world.web.start()
        self._start()
        self._wait_for_front()

    def _check_title_and_icon(self) -> None:
        for file in (f"applications/{APPLICATION}.desktop",
                     f"icons/hicolor/scalable/apps/{APPLICATION}.svg"):
            assert (self._prefix / "share" / file).exists(), file
        if self._desktop.is_wayland:
            said = (self._world.output / "launcher-output.txt").read_text()
            assert f'set_title("{TITLE}")' in said, "There is no title."
            assert f'set_app_id("{APPLICATION}")' in said, "The application is not named."
        else:
            windows = visible_windows(TITLE)
            assert windows, "There is no title."
            assert windows[0].has_icon, "The window has no icon."

    def _change_appearance(self) -> None:
        for name, scheme, background in (("dark", DARK, DARK_WINDOW),
                                         ("light", LIGHT, LIGHT_WINDOW)):
            self._appearance.change(scheme)
            self._background = background
            wait_for(f"A {name} window", self._is_visible)
            self._world.picture(name)

    def _click_notification(self) -> None:
        with self._something_in_front() as other:
            self._launcher.press("Play")
            try:
                wait_for("The notification", lambda: self._services.noted("Notify"))
                self._services.click(other.activation_token())
                self._wait_for_front()
            except AssertionError:
                with suppress(AssertionError):
                    self._stop_game()
                raise
            self._stop_game()

    def _stop_game(self) -> None:
        self._launcher.press("Stop")
        self._launcher.wait_for_label("Ready")

    def _open_sheet(self) -> None:
        settings = self._launcher.open_settings()
        self._look_at_front("sheet-open")
        settings.wait_until_closed()
        self._wait_for_focus()

    def _open_alert(self) -> None:
        installed = self._world.home.snapshot()
        settings = self._launcher.open_settings()
        settings.press(settings.remove_button())
        alert = self._launcher.wait_for_alert()
        try:
            self._look_at_front("alert-open")
            alert.wait_until_gone()
        finally:
            settings.close()
        assert self._world.home.snapshot() == installed, "Escape has changed the installation."

    def _look_at_front(self, picture: str) -> None:
        """Checks where the front window is, takes a picture, and presses Escape."""
        try:
            if self._desktop.is_wayland:
                time.sleep(ANIMATION)
            else:
                wait_for("The front window over the one behind it", self._front_is_centered)
        finally:
            self._world.picture(picture)
            press_keys("Escape")

    @staticmethod
    def _front_is_centered() -> bool:
        windows = visible_windows(TITLE, settings_sheet.NAME)
        return len(windows) > 1 and windows[-1].is_centered_over(windows[-2])

    def _reveal(self) -> None:
        settings = self._launcher.open_settings()
        settings.press("Reveal in Finder")
        wait_for("A call of the file manager", self._files.shown)
        settings.close()

    def _start_again(self) -> None:
        with self._something_in_front() as other:
            second = self._world.start_launcher(
                **self._environment(), XDG_ACTIVATION_TOKEN=other.activation_token())
            assert second.wait_for_end() == 0
            self._wait_for_front()

    def _minimize(self) -> None:
        assert self._desktop.minimize, "There is no key for it."
        wait_for("An empty display", self._press_minimize)
        self._world.picture("minimised")
        self._start_again()

    def _press_minimize(self) -> bool:
        """Returns whether it has helped: KWin on X11 sometimes does not act on a key press."""
        press_keys(self._desktop.minimize)
        time.sleep(ANIMATION)
        return not self._is_visible()

    def _close(self) -> None:
        self._wait_for_focus()
        press_keys(self._desktop.close)
        assert self._launcher.wait_for_end() == 0

    @contextmanager
    def _something_in_front(self):
        with OtherWindow() as other:
            # Without a window manager it takes the place, but not the keyboard.
            wait_for("Something else in front",
                     lambda: not (self._launcher.is_active() and self._is_visible()))
            yield other

    def _start(self) -> None:
        self._launcher = self._world.launcher = self._world.start_launcher(**self._environment())
        self._launcher.wait_for_window()

    def _environment(self) -> dict[str, str | None]:
        """Under Wayland, without the X11 display on which the compositor draws."""
        return {"DISPLAY": None, "WAYLAND_DEBUG": "1"} if self._desktop.is_wayland else {}

    def _wait_for_focus(self) -> None:
        wait_for("The focus on the window", self._launcher.is_active)

    def _wait_for_front(self) -> None:
        self._wait_for_focus()
        wait_for("The window on the display", self._is_visible)

    def _is_visible(self) -> bool:
        points = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], check=True,
                                capture_output=True).stdout
        return points.count(self._background) > MIN_VISIBLE
