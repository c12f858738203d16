# SPDX-License-Identifier: MIT
"""While the game runs nothing can be taken away from under it. All else in the settings works."""

from rig.expect import expect_game_starts, expect_maintenance, expect_stop
from rig.waiting import wait_for


def run(world):
    world.install()
    world.home.save_a_game()
    manager = world.start_file_manager()

    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    launcher.press("Play")
    expect_game_starts(world)
    settings = launcher.open_settings()
    world.picture("playing")
    expect_maintenance(settings, offered=False)

    settings.choose_resolution("1600 × 900")
    settings.press("Reveal in Finder")
    wait_for("A call of the file manager", manager.shown)
    settings.press("Show saves")
    wait_for("The opening of the saves", world.opener.opened)
    wait_for("The end of all other programs", lambda: len(launcher.children()) == 1)
    settings.close()

    expect_stop(world)
    settings = launcher.open_settings()
    expect_maintenance(settings, offered=True)
    settings.close()
    launcher.press("Play")
    wait_for("The second start in the log",
             lambda: launcher.log().count("The game is on.") == 2)
    assert expect_game_starts(world) == [
        "--path", str(world.home.project), "--windowed", "--resolution", "1600x900"]
