# SPDX-License-Identifier: MIT
"""The keyboard of the scenario's desktop."""

import subprocess

from rig.waiting import wait_for


def press_keys(*keys: str) -> None:
    """Presses keys one after the other, of which the window that has the focus hears."""
    subprocess.run(["xdotool", "key", *keys], check=True)


def go_to(launcher, name: str) -> None:
    """Presses Tab until the focus is on the control of that name."""
    for _ in range(12):
        focused = launcher.focused()
        if focused == name:
            return
        press_keys("Tab")
        wait_for(f"The focus elsewhere than on \"{focused}\"",
                 lambda: launcher.focused() != focused)
    raise AssertionError(f"\"{name}\" cannot be reached with Tab.")
