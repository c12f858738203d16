# SPDX-License-Identifier: MIT
"""A second start brings the first window to the front and ends; it touches no file. Of two starts
in the same instant one stays."""

import signal
import time

from rig import setup
from rig.launcher import TITLE
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.GAME)
    launcher = world.launcher
    under_way = list(world.home.temporary.iterdir())

    world.desktop.cover("Something else")
    second = world.start_launcher()
    assert second.wait_for_end() == 0
    wait_for("The first window in front", lambda: world.desktop.front() == TITLE)
    assert launcher.is_running()
    assert launcher.shows("Downloading")
    assert list(world.home.temporary.iterdir()) == under_way
    launcher.press("Cancel")
    launcher.wait_for_label("Not downloaded")
    launcher.signal(signal.SIGTERM)
    assert launcher.wait_for_end() == 0

    starts = [world.start_launcher() for _ in range(3)]
    wait_for("The end of all starts but one",
             lambda: sum(start.is_running() for start in starts) == 1)
    time.sleep(1)
    assert sum(start.is_running() for start in starts) == 1
    ended = [start.wait_for_end() for start in starts if not start.is_running()]
    assert ended == [0, 0], ended
