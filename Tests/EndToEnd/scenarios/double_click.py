# SPDX-License-Identifier: MIT
"""A double click presses one button, also where another one stands by the second click."""

from rig.expect import expect_game_starts
from rig.waiting import wait_for


def run(world):
    world.install()
    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")

    launcher.double_click("Play")
    expect_game_starts(world)
    assert launcher.is_enabled("Stop")

    launcher.double_click("Stop")
    launcher.wait_for_label("Ready")
    wait_for("The end of the game", lambda: not world.home.processes())
    starts = [line for line in launcher.log() if line.startswith("Step 4 of 4")]
    assert len(starts) == 1, launcher.log()
    assert launcher.log()[-1] == "Game stopped by you.", launcher.log()
