# SPDX-License-Identifier: MIT
"""A question stays until it is answered, also when assistive technology closes the settings behind
it."""


def run(world):
    world.install()
    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    before = world.home.snapshot()
    for action in ("Update the game", "Reinstall", "Remove everything"):
        ask_and_close_settings(launcher, action).answer("Cancel")
        assert launcher.shows("Ready"), launcher.labels()
    assert world.home.snapshot() == before

    ask_and_close_settings(launcher, "Remove everything").answer("Remove")
    launcher.wait_for_label("Not downloaded")


def ask_and_close_settings(launcher, action):
    settings = launcher.open_settings()
    settings.press(settings.remove_button() if action == "Remove everything" else action)
    alert = launcher.wait_for_alert()
    settings.close()
    assert launcher.has_alert()
    return alert
