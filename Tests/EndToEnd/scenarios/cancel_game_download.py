# SPDX-License-Identifier: MIT
"""Cancel while the game is downloading leaves everything as it was."""

from rig.expect import expect_cancelled


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.web.start(branch_rate="4k")

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Downloading")
    launcher.wait_for_label("Step 1 of 4 · Downloading the game")
    world.picture("downloading")
    expect_cancelled(world)
    assert not world.home.game.exists()
    assert not world.home.engines.exists()
