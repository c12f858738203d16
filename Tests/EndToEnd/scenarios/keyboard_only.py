# SPDX-License-Identifier: MIT
"""Everything can be reached and used without a mouse. The log stays closed, as it is at first."""

from rig.expect import expect_quit
from rig.keyboard import go_to, press_keys
from rig.waiting import wait_for


def run(world):
    world.install()
    launcher = world.launcher = world.start_launcher()
    launcher.wait_for_window()
    launcher.wait_for_label("Ready")

    expect_focus(world, "Play")
    for name in ("Show log", "Settings…", "About", "Play"):
        press_keys("Tab")
        expect_focus(world, name)
    press_keys("shift+Tab")
    expect_focus(world, "About")
    go_to(world.launcher, "Play")

    press_keys("Return")
    launcher.wait_for_label("Starting…")
    wait_for("The game", launcher.children)
    press_keys("Escape")
    go_to(world.launcher, "Stop")
    assert launcher.children(), "Escape ended the game."
    press_keys("space", "space", "space")
    launcher.wait_for_label("Ready")
    wait_for("The end of the game", lambda: not world.home.processes())
    expect_focus(world, "Play")

    expect_sheet_closes(world, "Escape")
    expect_question_declined(world)
    expect_sheet_closes(world, "Return")
    expect_sheet_closes(world, "ctrl+w")
    assert launcher.shows("Ready"), launcher.labels()
    open_settings(world)
    press_keys("ctrl+q")
    expect_quit(world)


def open_settings(world):
    go_to(world.launcher, "Settings…")
    press_keys("space")
    return world.launcher.wait_for_settings()


def expect_sheet_closes(world, key):
    settings = open_settings(world)
    press_keys(key)
    settings.wait_until_closed()
    expect_focus(world, "Settings…")


def expect_question_declined(world):
    before = world.home.snapshot()
    settings = open_settings(world)
    go_to(world.launcher, settings.remove_button())
    world.picture("settings")
    press_keys("space")
    alert = world.launcher.wait_for_alert()
    press_keys("Escape")
    alert.wait_until_gone()
    assert settings.is_open()
    assert world.home.snapshot() == before
    expect_focus(world, settings.remove_button())
    go_to(world.launcher, "Done")
    press_keys("space")
    settings.wait_until_closed()
    expect_focus(world, "Settings…")


def expect_focus(world, name):
    wait_for(f"The focus on \"{name}\"", lambda: world.launcher.focused() == name)
