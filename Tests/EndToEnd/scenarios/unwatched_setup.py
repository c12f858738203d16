# SPDX-License-Identifier: MIT
"""A setup while the player is elsewhere: the computer stays awake until it ends, also by a crash,
the task bar shows how far it is, and a click on the one notification leads back to the window."""

from rig import product, setup
from rig.launcher import TITLE
from rig.waiting import wait_for

APPLICATION = f"application://{product.APPLICATION}.desktop"


def run(world):
    services = world.start_session_services()
    kill_during_the_setup(world, services)
    finish_the_setup(world, services)


def kill_during_the_setup(world, services):
    setup.offer(world)
    setup.play_until(world, setup.GAME)
    wait_for("The inhibition", lambda: services.noted("Inhibit"))
    assert services.noted("Update") == [], "the window is in front"
    world.desktop.cover("Something else")
    wait_for("The progress", lambda: services.noted("Update"))
    assert services.noted("Release") == []
    world.launcher.kill()
    wait_for("The end of the inhibition", lambda: len(services.noted("Release")) == 1)
    assert services.noted("Notify") == []
    world.web.stop()


def finish_the_setup(world, services):
    world.offer_scripted_engine()
    world.web.start()
    launcher = world.open_launcher()
    world.desktop.cover("Something else")
    attention = world.desktop.watch_attention()
    launcher.press("Play")
    wait_for("The notification", lambda: services.noted("Notify"))
    launcher.wait_for_label("The game is running in its own window.")

    (_, _, icon, title, sentence, actions, hints, _), = services.noted("Notify")
    assert (title, sentence) == (TITLE, "The game is ready and starting."), (title, sentence)
    assert actions[0] == "default"
    assert hints == {"desktop-entry": icon} and f"application://{icon}.desktop" == APPLICATION
    assert attention(), "the window was not marked"
    expect_progress(services.noted("Update"))
    assert [len(services.noted(what)) for what in ("Inhibit", "Release")] == [2, 2]

    assert world.desktop.front() != TITLE
    services.click()
    wait_for("The window in front", lambda: world.desktop.front() == TITLE)
    wait_for("The withdrawal", lambda: services.noted("CloseNotification"))
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    assert len(services.noted("Notify")) == 1


def expect_progress(updates):
    """The first setup was killed, and so hid nothing; the second one's progress grew and went."""
    assert {application for application, _ in updates} == {APPLICATION}
    assert [shown["progress-visible"] for _, shown in updates].count(False) == 1, updates
    assert not updates[-1][1]["progress-visible"], updates
    start = max(index for index, (_, shown) in enumerate(updates) if shown["progress"] == 0 and
                shown["progress-visible"])
    grown = [shown["progress"] for _, shown in updates[start:-1]]
    assert grown == sorted(grown) and grown[-1] == 0.66, grown
