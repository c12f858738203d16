# SPDX-License-Identifier: MIT
"""Cancel while the engine is downloading keeps the game that is there already, and no more."""

from rig import setup
from rig.expect import expect_cancelled


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.ENGINE)
    world.launcher.wait_for_label("Downloading")
    world.picture("downloading")
    expect_cancelled(world)
    assert world.home.project.exists()
    assert not world.home.engine_folder().exists()
