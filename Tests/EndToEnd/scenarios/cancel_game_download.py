# SPDX-License-Identifier: MIT
"""Cancel while the game is downloading leaves everything as it was."""

from rig import setup
from rig.expect import expect_cancelled


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.GAME)
    world.launcher.wait_for_label("Downloading")
    world.picture("downloading")
    expect_cancelled(world)
    assert not world.home.game.exists()
    assert not world.home.engines.exists()
