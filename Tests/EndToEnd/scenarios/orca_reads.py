# SPDX-License-Identifier: MIT
"""A player who hears the screen through Orca, and has the keyboard only, plays the game: the window,
each phase, the progress, the settings with their values, the log's disclosure and a failure."""

import shutil

from rig.keyboard import go_to, press_keys
from rig.orca import Orca


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.web.start(release_rate="60k")
    orca = Orca(world.output / "said.txt")
    world.launcher = world.start_launcher()
    world.launcher.wait_for_window()

    heard = orca.wait_for("Cavernyx Platformer", "frame")
    heard = orca.wait_for("Play", "button", after=heard)
    orca.wait_for("Downloads the game and the Godot engine once", after=heard)

    press_keys("Return")
    heard = orca.wait_for("Status: Downloading", "Step 2 of 4", after=heard)
    heard = expect_progress(orca, heard)
    heard = orca.wait_for("Status: Setting up", "Step 3 of 4", after=heard)
    heard = orca.wait_for("Status: Starting", after=heard)
    heard = orca.wait_for("Status: Playing", after=heard)

    heard = expect_disclosure(world, orca, heard)
    heard = expect_settings(world, orca, heard)
    expect_failure(world, orca, heard)


def expect_progress(orca, heard):
    """Each tenth of the download at most once, in order."""
    for _ in range(2):
        heard = orca.wait_for("percent", after=heard)
    orca.wait_for("Status: Setting up", after=heard)
    percent = [int(said.split()[0]) for said in orca.said() if "percent" in said]
    assert percent == sorted(set(percent)), percent
    assert all(value % 10 == 0 for value in percent), percent
    return heard


def expect_disclosure(world, orca, heard):
    go_to(world.launcher, "Show log")
    heard = orca.wait_for("Show log", "not checked", after=heard)
    press_keys("space")
    return orca.wait_for("checked", after=heard)


def expect_settings(world, orca, heard):
    go_to(world.launcher, "Settings…")
    press_keys("space")
    heard = orca.wait_for("Settings", "dialog", after=heard)
    heard = orca.wait_for("Done", "button", after=heard)
    press_keys("Tab")
    heard = orca.wait_for("Window panel", "Windowed", "selected radio button", after=heard)
    press_keys("Right")
    heard = orca.wait_for("Fullscreen", "selected radio button", after=heard)
    press_keys("Tab")
    heard = orca.wait_for("Resolution", "combo box", "Game default", after=heard)
    for name in ("Reveal in Finder", "Done"):
        press_keys("Tab")
        heard = orca.wait_for(name, "button", after=heard)
    press_keys("Escape")
    return heard


def expect_failure(world, orca, heard):
    go_to(world.launcher, "Stop")
    press_keys("space")
    heard = orca.wait_for("Status: Ready", after=heard)
    shutil.rmtree(world.home.engine_folder())
    world.web.stop()
    press_keys("Return")
    orca.wait_for("Status: Needs something", after=heard)
