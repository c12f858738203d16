# SPDX-License-Identifier: MIT
"""Where the launcher is installed in two ways, both use one installation, and one at a time: a
start of the other one brings the first one's window to the front and ends."""

import signal

from rig.launcher import TITLE
from rig.waiting import wait_for


def run(world):
    world.install()
    for first, second in ((None, world.other), (world.other, None)):
        launcher = world.launcher = world.start_launcher(first)
        launcher.wait_for_window()
        launcher.wait_for_label("Ready")
        world.desktop.cover("Something else")
        assert world.start_launcher(second).wait_for_end() == 0
        wait_for("The first window in front", lambda: world.desktop.front() == TITLE)
        launcher.signal(signal.SIGTERM)
        assert launcher.wait_for_end() == 0
