# SPDX-License-Identifier: MIT
"""A game that ends within its first seconds is a failed start: the launcher says so, and the next
Play goes through the import again."""

from rig import engine
from rig.expect import expect_failed_start


def run(world):
    world.offer_game()
    world.offer_scripted_engine(plays=engine.ENDS)
    world.web.start()

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_failed_start(world)
    assert "A library is missing." in launcher.log()
    assert not world.home.marker().exists()
    world.home.expect_nothing_left_over()

    launcher.press("Play")
    launcher.wait_for_label("Setting up")
