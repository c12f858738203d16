# SPDX-License-Identifier: MIT
"""The launcher's settings sheet."""

from rig.controls import Controls
from rig.keyboard import press_keys
from rig.waiting import wait_for

NAME = "Settings"
REMOVE = "Remove everything"


class SettingsSheet:
    """Waits for the sheet that is opening, until the keyboard speaks to it."""

    def __init__(self, controls: Controls):
        self._controls = controls
        self._sheet = wait_for("The settings sheet", lambda: controls.active(NAME, "DIALOG"))

    def is_open(self) -> bool:
        return bool(self._controls.showing(NAME, "DIALOG"))

    def wait_until_closed(self) -> None:
        wait_for("The end of the settings sheet", lambda: not self.is_open())

    def press(self, name: str) -> None:
        self._controls.press(name, within=self._sheet)

    def close(self) -> None:
        self.press("Done")
        self.wait_until_closed()

    def shows(self, text: str) -> bool:
        return text in self._controls.labels(within=self._sheet)

    def is_enabled(self, button: str) -> bool:
        return bool(self._controls.button(button, self._sheet))

    def remove_button(self) -> str:
        """The title of the button that removes everything."""
        title, = [button.get_name()
                  for button in self._controls.showing(role="PUSH_BUTTON", within=self._sheet)
                  if button.get_name().startswith(REMOVE)]
        return title

    def window_mode(self) -> str:
        mode, = [segment.get_name() for segment in self._segments()
                 if self._controls.has(segment, "CHECKED")]
        return mode

    def resolution(self) -> str:
        return self._resolutions().get_name()

    def pickers_are_enabled(self) -> bool:
        return all(self._controls.has(picker, "ENABLED")
                   for picker in [*self._segments(), self._resolutions()])

    def choose_window_mode(self, name: str) -> None:
        segment, = [segment for segment in self._segments() if segment.get_name() == name]
        self._controls.act(segment, "Toggle")
        wait_for(f"The window mode \"{name}\"", lambda: self.window_mode() == name)

    def choose_resolution(self, label: str) -> None:
        """Opens the menu and goes down to the entry, as a player without a mouse does."""
        self._controls.act(self._resolutions(), "ShowMenu")
        entries = wait_for("The open menu of resolutions", self._open_menu)
        press_keys("Home", *["Down"] * entries.index(label), "Return")
        wait_for(f"The resolution \"{label}\"", lambda: self.resolution() == label)

    def _segments(self) -> list:
        return self._controls.showing(role="RADIO_BUTTON", within=self._sheet)

    def _resolutions(self):
        return self._controls.showing(role="COMBO_BOX", within=self._sheet)[0]

    def _open_menu(self) -> list[str]:
        entries = self._controls.showing(role="LIST_ITEM", within=self._sheet)
        if not any(self._controls.has(entry, "FOCUSED") for entry in entries):
            return []
        return [entry.get_name() for entry in entries]
