# SPDX-License-Identifier: MIT
"""During a setup nothing can be taken away from under it, and the display can be chosen."""

from rig import setup
from rig.expect import expect_maintenance


def run(world):
    setup.offer(world)
    setup.play_until(world, setup.IMPORT)
    launcher = world.launcher
    settings = launcher.open_settings()
    expect_maintenance(settings, offered=False)
    settings.choose_window_mode("Fullscreen")
    settings.close()
    assert launcher.shows(setup.IMPORT), launcher.labels()

    launcher.press("Cancel")
    launcher.wait_for_label("Not downloaded")
    settings = launcher.open_settings()
    expect_maintenance(settings, offered=True)
    assert settings.window_mode() == "Fullscreen", settings.window_mode()
