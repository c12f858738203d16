# SPDX-License-Identifier: MIT
"""A newer package is installed while the launcher and the game run: both go on, and the new launcher
finds the game as it was."""

import signal
import subprocess


def run(world):
    world.install()
    saved = world.home.save_a_game()
    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Playing")
    before = world.home.snapshot()

    subprocess.run(world.upgrade, check=True)
    assert launcher.is_running()
    assert launcher.children()
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    launcher.signal(signal.SIGTERM)
    assert launcher.wait_for_end() == 0

    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    assert world.home.snapshot() == before
    assert saved.exists()
    launcher.press("Play")
    launcher.wait_for_label("Playing")
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
