# SPDX-License-Identifier: MIT
"""A session that lacks what a desktop usually has: without a display the launcher says one
sentence, without any bus or a writable place for its settings it still sets the game up, and
without a file browser it says where the folder is."""

import signal

from rig.keyboard import press_keys
from rig.launcher import TITLE
from rig.waiting import wait_for

NO_DISPLAY = "Cavernyx Platformer needs a graphical desktop, and no display could be opened.\n"


def run(world):
    for variables in ({"DISPLAY": None}, {"DISPLAY": ":4711"}):
        printed = world.output / "launcher-output.txt"
        before = printed.read_text() if printed.exists() else ""
        assert world.start_launcher(**variables).wait_for_end() == 1
        assert printed.read_text().removeprefix(before) == NO_DISPLAY

    world.install()
    world.home.marker().unlink()
    settings = world.home.block_settings()
    launcher = world.start_launcher(
        DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere",
        DBUS_SYSTEM_BUS_ADDRESS="unix:path=/nowhere", XDG_RUNTIME_DIR=None)
    wait_for("The window", lambda: TITLE in world.desktop.windows())
    world.picture("no-session-bus")
    press_keys("Return")
    wait_for("The end of the setup", world.home.marker().exists)
    wait_for("The game", launcher.children)
    launcher.signal(signal.SIGTERM)
    assert launcher.wait_for_end() == 0

    launcher = world.open_launcher(PATH="/nowhere")
    sheet = launcher.open_settings()
    sheet.choose_window_mode("Fullscreen")
    sheet.close()
    sheet = launcher.open_settings()
    assert sheet.window_mode() == "Fullscreen", "the setting lasts as long as the window is open"
    assert settings.is_file()

    sheet.press("Reveal in Finder")
    alert = launcher.wait_for_alert()
    title, message = alert.texts()
    assert title == "The folder could not be opened."
    assert message.startswith("This desktop has no file browser. The folder is “/"), message
    world.picture("no-file-browser")
    alert.answer("OK")
    sheet.close()
