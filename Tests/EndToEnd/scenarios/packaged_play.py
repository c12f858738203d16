# SPDX-License-Identifier: MIT
"""From nothing to the running game, and a second Play without the network: what Scripts/test-packages
asks of a package. The engine is a script, so nothing of a real one has to be installed."""

from rig import engine
from rig.waiting import wait_for


def run(world):
    world.offer_game()
    world.offer_scripted_engine()
    world.web.start()

    launcher = world.open_launcher()
    launcher.wait_for_label("Not downloaded")
    launcher.press("Play")
    launcher.wait_for_label("Playing", seconds=90)
    launcher.wait_for_log_line("The game is on.")
    world.picture("playing")
    assert world.web.requests()[-1].endswith(f"{engine.archive_name()}?signature=1 200")
    stop(world)

    world.web.stop()
    launcher.press("Play")
    launcher.wait_for_label("Playing")
    stop(world)
    world.home.expect_nothing_left_over()


def stop(world):
    world.launcher.press("Stop")
    world.launcher.wait_for_label("Ready")
    wait_for("The end of the game", lambda: not world.launcher.children())
