# SPDX-License-Identifier: MIT
"""The window is light or dark and of as much contrast as the session prefers it, at the start and
whenever that changes, with a sheet open too. Without animations, the bar stands still."""

from rig import setup
from rig.appearance import DARK, LIGHT, NO_PREFERENCE, Appearance
from rig.launcher import TITLE
from rig.waiting import wait_for

DARK_WINDOW, LIGHT_WINDOW = (30, 30, 32), (244, 244, 246)
BLACK, WHITE = (0, 0, 0), (255, 255, 255)


def run(world):
    appearance = Appearance(DARK)
    setup.offer(world)
    setup.play_until(world, setup.IMPORT)
    launcher = world.launcher
    expect_background(world, DARK_WINDOW)
    expect_motion(world, True)
    appearance.change(LIGHT)
    expect_background(world, LIGHT_WINDOW)

    settings = launcher.open_settings()
    appearance.change(DARK)
    settings.close()
    expect_background(world, DARK_WINDOW)
    appearance.ask_for_contrast(True)
    expect_background(world, BLACK)
    appearance.change(NO_PREFERENCE)
    expect_background(world, WHITE)
    appearance.enable_animations(False)
    expect_motion(world, False)
    appearance.ask_for_contrast(False)
    expect_background(world, LIGHT_WINDOW)
    appearance.enable_animations(True)
    expect_motion(world, True)


def expect_background(world, wanted):
    """The edge of the window has the colour of its background."""
    wait_for(f"A window of the colour {wanted}",
             lambda: world.desktop.color_in(TITLE, 5, 5) == wanted)
    world.picture("appearance")


def expect_motion(world, wanted):
    """The bar, which is indeterminate, changes from one picture to the next."""
    def moves():
        first, second = (world.desktop.picture_of(TITLE) for _ in range(2))
        return first != second

    wait_for(f"An animation that is {wanted}",
             lambda: [moves() for _ in range(5)] == [wanted] * 5)
