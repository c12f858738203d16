# SPDX-License-Identifier: MIT
"""The display settings outlive the launcher and reach the game. A stored text that is none of the
choices counts as the default."""

from rig.expect import expect_game_starts, expect_quit, expect_stop
from rig.launcher import TITLE


def run(world):
    world.install()

    launcher = world.open_launcher()
    settings = launcher.open_settings()
    assert settings.window_mode() == "Windowed", settings.window_mode()
    assert settings.resolution() == "Game default", settings.resolution()
    settings.choose_window_mode("Fullscreen")
    settings.choose_resolution("1920 × 1080")
    settings.close()
    quit_launcher(world)
    stored = world.home.settings()
    assert stored == {"fullscreen": "true", "resolution": "1920x1080"}, stored

    expect_settings(world, "Fullscreen", "1920 × 1080")
    expect_arguments(world, "--fullscreen", "--resolution", "1920x1080")
    quit_launcher(world)

    world.home.write_settings(fullscreen="false", resolution="12x9")
    expect_settings(world, "Windowed", "Game default")
    expect_arguments(world, "--windowed")


def quit_launcher(world):
    world.desktop.close(TITLE)
    expect_quit(world)


def expect_settings(world, window_mode, resolution):
    settings = world.open_launcher().open_settings()
    assert settings.window_mode() == window_mode, settings.window_mode()
    assert settings.resolution() == resolution, settings.resolution()
    settings.close()


def expect_arguments(world, *arguments):
    world.launcher.press("Play")
    started = expect_game_starts(world)
    assert started == ["--path", str(world.home.project), *arguments], started
    expect_stop(world)
