# SPDX-License-Identifier: MIT
"""The keyboard of the scenario's desktop."""

import subprocess


def press_keys(*keys: str) -> None:
    """Presses keys one after the other, of which the window that has the focus hears."""
    subprocess.run(["xdotool", "key", *keys], check=True)
