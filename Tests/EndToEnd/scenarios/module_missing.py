# SPDX-License-Identifier: MIT
"""Without the module of the installation Play fails with one sentence, and a game that is installed
starts all the same."""

from rig.expect import expect_failure


def run(world):
    prefix = world.copy_program()
    module, = prefix.glob("lib*/**/*-install-*.so")
    away = module.with_suffix(".away")
    module.rename(away)

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_failure(
        world, f"A part of the launcher, “{module.name}”, cannot be loaded. Close the launcher and "
        "start it again, or install it again.")
    assert not world.home.game.exists()
    world.home.expect_nothing_left_over()

    world.install()
    launcher.press("Play")
    launcher.wait_for_label("Starting…")
