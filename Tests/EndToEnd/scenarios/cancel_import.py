# SPDX-License-Identifier: MIT
"""Cancel during the first-time import ends the engine and leaves no marker behind."""

from rig import engine
from rig.expect import expect_cancelled
from rig.waiting import wait_for


def run(world):
    world.offer_game()
    world.offer_scripted_engine(imports=engine.HANGS)
    world.web.start()

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Setting up")
    launcher.wait_for_label("Step 3 of 4 · First-time setup, this can take a minute or more")
    wait_for("The engine's import run", launcher.children)
    launcher.wait_for_log_line("Working on it.")
    world.picture("setting-up")
    expect_cancelled(world)
    assert world.home.engine_folder().exists()
    assert not world.home.marker().exists()
