# SPDX-License-Identifier: MIT
"""The window is light or dark as the session prefers it, at the start and whenever that changes,
with a sheet open too."""

from rig.appearance import DARK, LIGHT, NO_PREFERENCE, Appearance
from rig.launcher import TITLE
from rig.waiting import wait_for

BACKGROUNDS = {DARK: (30, 30, 32), LIGHT: (244, 244, 246)}


def run(world):
    appearance = Appearance(DARK)
    launcher = world.open_launcher()
    expect_background(world, DARK)
    appearance.change(LIGHT)
    expect_background(world, LIGHT)

    settings = launcher.open_settings()
    appearance.change(DARK)
    settings.close()
    expect_background(world, DARK)
    appearance.change(NO_PREFERENCE)
    expect_background(world, LIGHT)


def expect_background(world, preference):
    """The edge of the window has the colour of its background."""
    wanted = BACKGROUNDS[preference]
    wait_for(f"A window of the colour {wanted}",
             lambda: world.desktop.color_in(TITLE, 5, 5) == wanted)
    world.picture("dark" if preference == DARK else "light")
