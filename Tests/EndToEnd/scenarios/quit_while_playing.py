# SPDX-License-Identifier: MIT
"""Closing the window while the game starts or runs asks first, and takes the game along only when
that is wanted."""

from rig.expect import expect_game_starts, expect_question, expect_quit
from rig.keyboard import press_keys
from rig.launcher import TITLE
from rig.waiting import wait_for


def run(world):
    world.install()

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_game_starts(world)
    close(world).answer("Cancel")
    expect_goes_on(world)

    launcher.wait_for_label("Playing")
    close(world)
    world.picture("question")
    press_keys("Escape")
    wait_for("The end of the question", lambda: not launcher.has_alert())
    expect_goes_on(world)
    assert launcher.shows("Playing"), launcher.labels()

    close(world).answer("Quit")
    expect_quit(world)
    assert world.home.marker().exists()

    # The next start finds everything as it was, and a game that is quit at once is no failure.
    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    launcher.press("Play")
    expect_game_starts(world)
    close(world).answer("Quit")
    expect_quit(world)
    assert world.home.marker().exists()


def close(world):
    world.desktop.close(TITLE)
    return expect_question(
        world.launcher, "Quit and close the game?",
        "The game is still running. Quitting will close it.", "Quit")


def expect_goes_on(world):
    assert world.launcher.is_running()
    assert TITLE in world.desktop.windows()
    assert len(world.launcher.children()) == 1, world.launcher.children()
    assert world.launcher.is_enabled("Stop")
