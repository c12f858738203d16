# SPDX-License-Identifier: MIT
"""A display that goes away, as when the session crashes: the launcher ends by itself and not by a
signal, whatever it was doing, no import outlives it, and the next start goes on with what is
there."""

from rig import setup
from rig.waiting import wait_for


def run(world):
    setup.offer(world)
    lose_display_during(world, setup.GAME)
    lose_display_during(world, setup.IMPORT)
    assert not world.home.marker().exists()

    world.offer_scripted_engine()
    world.web.start()
    launcher = world.open_launcher()
    launcher.wait_for_label("Not downloaded")
    wait_for("The end of what was left behind", lambda: not any(world.home.temporary.iterdir()))
    world.home.expect_nothing_left_over()


def lose_display_during(world, step):
    setup.play_until(world, step)
    world.desktop.lose_display()
    status = world.launcher.wait_for_end()
    assert status == 1, status
    wait_for("The end of all that it started", lambda: not world.home.processes())
    world.web.stop()
    world.desktop.replace_display()
