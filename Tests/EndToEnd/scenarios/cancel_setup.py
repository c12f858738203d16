# SPDX-License-Identifier: MIT
"""Cancel during each step of a setup leaves what the steps before it have installed, and no more."""

from rig import setup
from rig.expect import expect_cancelled, expect_quit
from rig.launcher import TITLE


def run(world):
    home = world.home
    setup.offer(world)
    cancel(world, setup.GAME, "Downloading", "downloading-the-game")
    assert not home.game.exists()
    assert not home.engines.exists()
    cancel(world, setup.ENGINE, "Downloading", "downloading-the-engine")
    assert home.project.exists()
    assert not home.engine_folder().exists()
    cancel(world, setup.IMPORT, "Setting up", "setting-up")
    assert home.engine_folder().exists()
    assert not home.marker().exists()


def cancel(world, step, status, picture):
    setup.play_until(world, step)
    world.launcher.wait_for_label(status)
    world.picture(picture)
    expect_cancelled(world)
    world.desktop.close(TITLE)
    expect_quit(world)
    world.web.stop()
