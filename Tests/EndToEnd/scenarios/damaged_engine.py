# SPDX-License-Identifier: MIT
"""An engine archive that is not what its makers published is discarded, and a good one is taken
at the next Play."""

from rig import engine
from rig.expect import expect_failure


def run(world):
    world.offer_game()
    archive = world.offer_scripted_engine()
    engine.damage(archive)
    world.web.start()

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_failure(
        world, "The engine download did not match its official checksum, so it was discarded.")
    assert "Checksum OK." not in launcher.log()
    assert not world.home.engine_folder().exists()
    assert world.home.project.exists()
    world.home.expect_nothing_left_over()

    world.offer_scripted_engine()
    launcher.press("Play")
    launcher.wait_for_label("Starting…")
    assert "Step 1 of 4 · Game already downloaded, skipping." in launcher.log()
