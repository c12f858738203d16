# SPDX-License-Identifier: MIT
"""The launcher as a player meets it: its window, through the accessibility bus."""

import subprocess
import time
from pathlib import Path

from rig import product
from rig.alert import Alert
from rig.controls import Controls
from rig.program import Program
from rig.settings_sheet import SettingsSheet
from rig.waiting import PATIENCE, wait_for

TITLE = product.NAME


class Launcher(Program):
    """Starts the installed program; `wait_for_window` before asking for anything in its window."""

    def __init__(self, command: list[str], output: Path, **environment: str | None):
        super().__init__(command, output, **environment)
        self._controls = Controls(self.pid)

    def wait_for_window(self) -> None:
        wait_for("The launcher on the accessibility bus", self._has_come)
        wait_for("The launcher's window", lambda: self._controls.showing(TITLE))

    def is_active(self) -> bool:
        """Whether its window has the focus."""
        return self._controls.active(TITLE, "FRAME") is not None

    def press(self, name: str) -> None:
        """Presses the button of that name, once it is there and enabled."""
        self._controls.press(name)

    def double_click(self, name: str) -> None:
        """Double-clicks the right end of the button of that name with the mouse, slowly enough for
        another button to be there by the second click."""
        x, y = map(str, self._controls.right_end(name))
        subprocess.run(["xdotool", "mousemove", x, y,
                        "click", "--repeat", "2", "--delay", "150", "1"], check=True)
        time.sleep(1)  # The next click is not the third of these.

    def is_left_of(self, name: str, other: str) -> bool:
        """Whether the right end of one button is further left than that of another."""
        return self._controls.right_end(name) < self._controls.right_end(other)

    def is_enabled(self, name: str) -> bool:
        return bool(self._controls.button(name))

    def focused(self) -> str:
        return self._controls.focused()

    def shows(self, text: str) -> bool:
        """Whether the window shows that text, all of it, as a label."""
        return bool(self._controls.showing(text, "LABEL"))

    def wait_for_label(self, text: str, seconds: float = PATIENCE) -> None:
        try:
            wait_for(f"\"{text}\"", lambda: self.shows(text), seconds)
        except AssertionError as error:
            raise AssertionError(f"{error}; the window shows {self.labels()}") from None

    def labels(self) -> list[str]:
        return self._controls.labels()

    def log(self) -> list[str]:
        """The lines in the log panel, which has to be open."""
        return self._controls.text("Log").split("\n")

    def wait_for_log_line(self, line: str, seconds: float = PATIENCE) -> None:
        wait_for(f"\"{line}\" in the log", lambda: line in self.log(), seconds)

    def failure_report(self) -> str:
        return self._controls.text("Failure report")

    def open_settings(self) -> SettingsSheet:
        self.press("Settings…")
        return self.wait_for_settings()

    def wait_for_settings(self) -> SettingsSheet:
        return SettingsSheet(self._controls)

    def wait_for_alert(self) -> Alert:
        wait_for("The launcher on the accessibility bus", self._has_come)
        return Alert(self._controls)

    def has_alert(self) -> bool:
        return bool(self._controls.showing(role="ALERT"))

    def _has_come(self) -> bool:
        if not self.is_running():
            raise AssertionError(f"The launcher ended with status {self.wait_for_end()}")
        return self._controls.find_program()
