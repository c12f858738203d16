# SPDX-License-Identifier: MIT
"""With nothing going on, closing the window ends the launcher without a question."""

from rig.expect import expect_quit
from rig.keyboard import press_keys
from rig.launcher import TITLE


def run(world):
    world.open_launcher()
    world.desktop.close(TITLE)
    expect_quit(world)
    assert not world.home.root.exists()

    world.open_launcher()
    press_keys("ctrl+q")
    expect_quit(world)
