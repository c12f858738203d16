# SPDX-License-Identifier: MIT
"""Closing the window during a setup ends that without a question, whatever it was doing. The next
start goes on with what is there."""

from rig import setup
from rig.expect import expect_quit
from rig.launcher import TITLE


def run(world):
    setup.offer(world)

    quit_during(world, setup.GAME)
    assert not world.home.game.exists()

    quit_during(world, setup.ENGINE)
    assert world.home.project.exists()
    assert not world.home.engine_folder().exists()

    quit_during(world, setup.IMPORT)
    assert world.home.engine_folder().exists()
    assert not world.home.marker().exists()


def quit_during(world, step):
    setup.play_until(world, step)
    world.desktop.close(TITLE)
    expect_quit(world)
    world.web.stop()
