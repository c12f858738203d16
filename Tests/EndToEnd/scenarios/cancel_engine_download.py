# SPDX-License-Identifier: MIT
"""Cancel while the engine is downloading keeps the game that is there already, and no more."""

from rig.expect import expect_cancelled


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.web.start(release_rate="8k")

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Step 2 of 4 · Downloading the Godot engine (3.5.3-stable)")
    launcher.wait_for_log_line(
        "Downloading Godot_v3.5.3-stable_x11.64.zip from godotengine/godot releases…")
    world.picture("downloading")
    expect_cancelled(world)
    assert world.home.project.exists()
    assert not world.home.engine_folder().exists()
