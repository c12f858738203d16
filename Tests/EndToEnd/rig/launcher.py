# SPDX-License-Identifier: MIT
"""The launcher as a player meets it: its window, through the accessibility bus. And as the system
does: a process that ends, or is ended."""

import os
import signal
import subprocess
from pathlib import Path

from rig.waiting import wait_for

TITLE = "Cavernyx Platformer"


class Launcher:
    """Starts the installed program; `wait_for_window` before asking for anything in its window.
    What it prints is added to the file `output`. Its environment is the session's with the changes
    given, where None takes a variable away."""

    def __init__(self, program: Path, output: Path, **environment: str | None):
        # The library connects to the bus when it is loaded, which has to be there by then.
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self._atspi = Atspi
        self._application = None
        changed = {**os.environ, **environment}
        with output.open("a") as printed:
            self._process = subprocess.Popen(
                [str(program)], stdout=printed, stderr=printed,
                env={name: value for name, value in changed.items() if value is not None})

    @property
    def pid(self) -> int:
        return self._process.pid

    def wait_for_window(self) -> None:
        self._application = wait_for("The launcher on the accessibility bus", self._find)
        self._application.set_cache_mask(self._atspi.Cache.NONE)
        wait_for("The launcher's window", lambda: self._controls(name=TITLE))

    def wait_for_end(self, seconds: float = 20) -> int:
        """Returns the status it ended with; below zero, the signal that ended it."""
        wait_for("The end of the launcher", lambda: self._process.poll() is not None, seconds)
        return self._process.returncode

    def is_running(self) -> bool:
        return self._process.poll() is None

    def signal(self, number: int) -> None:
        self._process.send_signal(number)

    def kill(self) -> None:
        """Ends it as a crash would, without a chance to tidy up."""
        self.signal(signal.SIGKILL)
        self.wait_for_end()

    def press(self, name: str) -> None:
        """Presses the button of that name, once it is there and enabled."""
        button = wait_for(f"A button \"{name}\" that can be pressed", lambda: self._button(name))
        button.get_action_iface().do_action(0)

    def press_in_alert(self, name: str) -> None:
        """Presses the button of that name in the alert that asks about it."""
        alert = wait_for("An alert", lambda: self._controls(role=self._atspi.Role.ALERT))[0]
        button, = [control for control in self._below(alert)
                   if control.get_role() == self._atspi.Role.PUSH_BUTTON
                   and control.get_name() == name]
        button.get_action_iface().do_action(0)

    def is_checked(self, name: str) -> bool:
        return self._has(self._button(name), "CHECKED")

    def is_enabled(self, name: str) -> bool:
        return bool(self._button(name))

    def shows(self, text: str) -> bool:
        """Whether the window shows that text, all of it, as a label."""
        return bool(self._controls(name=text, role=self._atspi.Role.LABEL))

    def wait_for_label(self, text: str, seconds: float = 20) -> None:
        try:
            wait_for(f"\"{text}\"", lambda: self.shows(text), seconds)
        except AssertionError as error:
            raise AssertionError(f"{error}; the window shows {self.labels()}") from None

    def labels(self) -> list[str]:
        return [label.get_name() for label in self._controls(role=self._atspi.Role.LABEL)]

    def log(self) -> list[str]:
        """The lines in the log panel, which has to be open."""
        return self._text("Log").split("\n")

    def wait_for_log_line(self, line: str, seconds: float = 20) -> None:
        wait_for(f"\"{line}\" in the log", lambda: line in self.log(), seconds)

    def failure_report(self) -> str:
        return self._text("Failure report")

    def children(self) -> list[list[str]]:
        """The command lines of the programs that the launcher runs now."""
        found = []
        for status in Path("/proc").glob("[0-9]*/stat"):
            try:
                parent = int(status.read_text().rpartition(")")[2].split()[1])
                line = (status.parent / "cmdline").read_bytes()
            except (FileNotFoundError, ProcessLookupError):
                continue
            if parent == self.pid and line:
                found.append(line.decode().rstrip("\0").split("\0"))
        return found

    def _find(self):
        if not self.is_running():
            raise AssertionError(f"The launcher ended with status {self._process.returncode}")
        desktop = self._atspi.get_desktop(0)
        desktop.clear_cache()
        applications = [desktop.get_child_at_index(index)
                        for index in range(desktop.get_child_count())]
        return next((application for application in applications
                     if application and application.get_process_id() == self.pid), None)

    def _button(self, name: str):
        buttons = [control for role in (self._atspi.Role.PUSH_BUTTON,
                                        self._atspi.Role.TOGGLE_BUTTON,
                                        self._atspi.Role.RADIO_BUTTON,
                                        self._atspi.Role.CHECK_BOX)
                   for control in self._controls(name=name, role=role)]
        return next((button for button in buttons if self._has(button, "ENABLED")), None)

    def _text(self, name: str) -> str:
        control = wait_for(f"The text \"{name}\"", lambda: self._controls(
            name=name, role=self._atspi.Role.TEXT))[0]
        return self._atspi.Text.get_text(control, 0, -1)

    def _has(self, control, state: str) -> bool:
        return control.get_state_set().contains(getattr(self._atspi.StateType, state))

    def _controls(self, name: str | None = None, role=None) -> list:
        """The controls that are showing now, of that name and role where given."""
        def matches(control) -> bool:
            return ((name is None or control.get_name() == name)
                    and (role is None or control.get_role() == role)
                    and self._has(control, "SHOWING"))

        return [control for control in self._below(self._application)
                if self._if_there(lambda: matches(control))]

    def _below(self, control):
        yield control
        for index in range(self._if_there(control.get_child_count) or 0):
            child = self._if_there(lambda: control.get_child_at_index(index))
            if child:
                yield from self._below(child)

    @staticmethod
    def _if_there(ask):
        """What `ask` returns, or nothing where the control has gone meanwhile."""
        from gi.repository import GLib
        try:
            return ask()
        except GLib.Error:
            return None
