# SPDX-License-Identifier: MIT
"""Cancel during the first-time import ends the engine and leaves no marker behind."""

from rig import setup
from rig.expect import expect_cancelled


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.IMPORT)
    world.launcher.wait_for_label("Setting up")
    world.picture("setting-up")
    expect_cancelled(world)
    assert world.home.engine_folder().exists()
    assert not world.home.marker().exists()
