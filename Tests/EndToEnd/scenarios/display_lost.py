# SPDX-License-Identifier: MIT
"""A display that goes away, as when the session crashes: the launcher ends by itself and not by a
signal, whatever it was doing, no import outlives it, and the next start goes on with what is
there."""

from rig import setup
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    lose_display_as_downloads_begin(world)
    for step in (setup.GAME, setup.IMPORT):
        setup.play_until(world, step)
        lose_display(world)
        world.web.stop()
    assert not world.home.marker().exists()

    world.offer_scripted_engine()
    world.web.start()
    launcher = world.open_launcher()
    launcher.wait_for_label("Not downloaded")
    wait_for("The end of what was left behind", lambda: not any(world.home.temporary.iterdir()))
    world.home.expect_nothing_left_over()


def lose_display_as_downloads_begin(world):
    """The threads that download are then busy inside other libraries, more often than not."""
    world.web.start(**setup.RATES[setup.GAME])
    for _ in range(8):
        launcher = world.launcher = world.start_launcher()
        launcher.wait_for_window()
        before = set(world.home.temporary.iterdir())
        launcher.press("Play")
        wait_for("The temporary folder of the download",
                 lambda: set(world.home.temporary.iterdir()) - before)
        lose_display(world)
    world.web.stop()


def lose_display(world):
    world.desktop.lose_display()
    status = world.launcher.wait_for_end()
    assert status == 1, status
    wait_for("The end of all that it started", lambda: not world.home.processes())
    world.desktop.replace_display()
