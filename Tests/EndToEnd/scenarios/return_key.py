# SPDX-License-Identifier: MIT
"""Return is the default button's wherever the focus is, also on a desktop whose other programs
press whatever has the focus with it."""

from rig.keyboard import go_to, press_keys
from rig.waiting import wait_for


def run(world):
    world.install()
    launcher = world.launcher = world.start_launcher(XDG_CURRENT_DESKTOP="GNOME")
    launcher.wait_for_window()
    launcher.wait_for_label("Ready")
    before = world.home.snapshot()

    for name in ("Windowed", "Game default", "Reinstall", "Remove everything", "Done"):
        expect_return_closes_the_settings(world, name)
    expect_return_closes_about(world)
    assert world.home.snapshot() == before

    go_to(launcher, "Show log")
    press_keys("Return")
    launcher.wait_for_label("Starting…")
    wait_for("The game", launcher.children)
    go_to(launcher, "Stop")
    press_keys("Return")
    go_to(launcher, "Settings…")
    press_keys("Return")
    go_to(launcher, "Stop")
    assert launcher.children(), "Return ended the game."
    press_keys("space")
    launcher.wait_for_label("Ready")
    assert not launcher.has_alert()


def expect_return_closes_the_settings(world, name):
    go_to(world.launcher, "Settings…")
    press_keys("space")
    settings = world.launcher.wait_for_settings()
    go_to(world.launcher, settings.remove_button() if name == "Remove everything" else name)
    press_keys("Return")
    settings.wait_until_closed()
    assert not world.launcher.has_alert()


def expect_return_closes_about(world):
    go_to(world.launcher, "About")
    press_keys("space")
    address = "https://github.com/brindlework-demos/tetherwalk"
    wait_for("The about sheet", lambda: world.launcher.focused() == "Done")
    go_to(world.launcher, address)
    press_keys("Return")
    wait_for("The end of the about sheet", lambda: world.launcher.focused() == "About")
    assert not world.opener.opened(), "Return opened the address."
