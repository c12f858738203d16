# SPDX-License-Identifier: MIT
"""Play is in view from the start on screens that the window is too high for."""

from rig.expect import expect_quit
from rig.keyboard import press_keys
from rig.launcher import TITLE
from rig.waiting import wait_for

PLAY = bytes((0, 122, 255))
PLAY_SIZE = (552, 52)

# The display as a screen of 1366 by 768 at 150 %, of 1920 by 1080 at 200 %, of 1280 by 720.
SCALES = ("2.11", "2", "1.5")


def run(world):
    for scale in SCALES:
        launcher = world.launcher = world.start_launcher(QT_SCALE_FACTOR=scale)
        launcher.wait_for_window()
        wait_for("The focus on the window", launcher.is_active)
        wait_for("Play in view", lambda: shows_play(world, float(scale)))
        world.picture(f"scale-{scale}")
        width, height = world.desktop.windows()[TITLE]
        assert height <= 1080, (width, height)
        press_keys("ctrl+q")
        expect_quit(world)


def shows_play(world, scale):
    """Whether the window shows the colour of Play in nearly all of the button's size."""
    width, height = PLAY_SIZE
    return world.desktop.picture_of(TITLE).count(PLAY) > 0.9 * width * height * scale * scale
