# SPDX-License-Identifier: MIT
"""A player who does not see the window hears of each step, of its progress and of a failure, wherever
the keyboard is."""

from rig import setup
from rig.screen_reader import ScreenReader
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    reader = ScreenReader(world.output / "heard.txt")
    setup.play_until(world, setup.ENGINE)
    launcher = world.launcher
    wait_for("Progress to be heard of", lambda: len(reader.progress()) > 1)
    progress = reader.progress()
    assert progress == sorted(progress) and 0 < progress[-1] < 1, progress

    launcher.open_settings()
    world.web.stop()
    step_by_step = [f"Status: Downloading – {setup.GAME}", f"Status: Downloading – {setup.ENGINE}"]
    wait_for("The failure to be read out", lambda: len(reader.notices()) > 2)
    *steps, failure = reader.notices()
    assert steps == step_by_step, steps
    assert failure.startswith("Status: Needs something – ") and failure.endswith("."), failure
    assert launcher.shows(failure.removeprefix("Status: Needs something – ")), launcher.labels()

