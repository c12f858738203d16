# SPDX-License-Identifier: MIT
"""What the launcher copies is what another program then pastes."""

from rig import engine
from rig.expect import expect_failed_start
from rig.waiting import wait_for


def run(world):
    world.install(plays=engine.ENDS)

    launcher = world.open_launcher()
    launcher.press("Play")
    expect_failed_start(world)
    assert "A library is missing." in launcher.failure_report()
    expect_copied(world, "Copy", launcher.failure_report())
    expect_copied(world, "Copy log", "\n".join(launcher.log()))
    expect_copied(world, "Copy", launcher.failure_report())


def expect_copied(world, button, text):
    world.launcher.press(button)
    try:
        wait_for(f"\"{button}\"", lambda: world.desktop.clipboard() == text)
    except AssertionError as error:
        raise AssertionError(f"{error}: {world.desktop.clipboard()!r}, not {text!r}") from None
