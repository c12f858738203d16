# SPDX-License-Identifier: MIT
"""Quitting while a host's name is looked up, which nothing can end before the system gives up:
neither the launcher nor the next start waits for that."""

from rig import setup
from rig.launcher import TITLE
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    world.silence_names()
    first = world.open_launcher()
    first.press("Play")
    first.wait_for_label(setup.GAME)
    wait_for("The temporary folder of the download",
             lambda: any(world.home.temporary.iterdir()))
    world.desktop.close(TITLE)
    assert first.wait_for_end(seconds=10) == 0

    second = world.open_launcher()
    second.wait_for_label("Not downloaded")
    world.home.expect_nothing_left_over()
    second.signal(15)
    assert second.wait_for_end() == 0
