# SPDX-License-Identifier: MIT
"""The folders of the installation and of the saves are shown by the desktop's own programs,
or by the portal where a sandbox hides those."""

from rig.waiting import wait_for

NO_SAVES = "No saves yet (Godot's user folder does not exist)."


def run(world):
    world.install()

    launcher = world.open_launcher()
    settings = launcher.open_settings()
    assert not settings.is_enabled("Show saves")
    assert settings.shows(NO_SAVES)
    settings.press("Reveal in Finder")
    expect_opened(world, world.home.root.parent)
    settings.close()

    world.home.save_a_game()
    settings = launcher.open_settings()
    assert not settings.shows(NO_SAVES)
    settings.press("Show saves")
    expect_opened(world, world.home.saves)

    portal = world.start_portal()
    settings.press("Reveal in Finder")
    wait_for("A call of the portal", portal.shown)
    assert portal.shown() == [str(world.home.root)], portal.shown()

    manager = world.start_file_manager()
    settings.press("Reveal in Finder")
    wait_for("A call of the file manager", manager.shown)
    assert manager.shown() == [[[world.home.root.as_uri()], ""]], manager.shown()

    settings.press(settings.remove_button())
    launcher.wait_for_alert().answer("Remove")
    wait_for("The removal", lambda: not world.home.root.exists())
    settings.press("Reveal in Finder")
    wait_for("A second call of the file manager", lambda: len(manager.shown()) == 2)
    assert manager.shown()[1] == [[world.home.root.parent.as_uri()], ""], manager.shown()
    assert len(portal.shown()) == 1, portal.shown()
    assert len(world.opener.opened()) == 2, world.opener.opened()
    assert settings.is_open()


def expect_opened(world, folder):
    wait_for(f"The opening of {folder}",
             lambda: world.opener.opened()[-1:] == [folder.as_uri()])
