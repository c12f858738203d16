# SPDX-License-Identifier: MIT
"""From nothing to the running game on real parts, and a second Play without the network."""

from rig import engine, sample_game, setup
from rig.expect import count_imported, expect_in_order
from rig.private_world import network_activity
from rig.waiting import wait_for

GAME_WINDOW = f"{sample_game.NAME} (DEBUG)"
SIZE = (1280, 720)
PROJECT_LINE = "project.godot: config_version=4 → Godot 3.x, C#: no, main scene: res://Main.tscn"


def run(world):
    world.offer_game()
    world.offer_real_engine()
    world.web.start(branch_rate="200k", release_rate="20m")
    world.home.write_settings(resolution="1280x720")

    launcher = world.open_launcher()
    launcher.wait_for_label("Not downloaded")
    world.picture("not-downloaded")

    launcher.press("Play")
    launcher.wait_for_label("Downloading")
    assert not launcher.is_enabled("Play")
    launcher.wait_for_label(setup.ENGINE)
    world.picture("downloading")
    launcher.wait_for_label("Setting up")
    launcher.wait_for_label(setup.IMPORT)
    world.picture("setting-up")
    expect_game_opens(world, "starting")
    expect_first_log(world)
    expect_installed(world)
    expect_real_requests(world)

    launcher.wait_for_label("Playing")
    launcher.wait_for_label("The game is running in its own window.")
    world.picture("playing")
    expect_stop(world)
    world.picture("ready")
    expect_second_play_without_network(world)


def expect_game_opens(world, picture):
    launcher = world.launcher
    launcher.wait_for_label("Starting…", seconds=120)
    launcher.wait_for_label(
        "The game was launched. Waiting 10 seconds to make sure it stays open.")
    wait_for("The game's own window in the chosen size",
             lambda: world.desktop.windows().get(GAME_WINDOW) == SIZE)
    world.picture(picture)
    assert not launcher.is_enabled("Play")
    assert launcher.children() == [[
        str(world.home.engine_program()),
        "--path", str(world.home.project), "--windowed", "--resolution", "1280x720",
    ]], launcher.children()


def start_line(world):
    return (f"Step 4 of 4 · Starting: Godot --path {world.home.project} --windowed "
            "--resolution 1280x720")


def expect_first_log(world):
    expect_in_order(world.launcher.log(), [
        "Downloading the game source from GitHub (branch master)…",
        "Unpacking the game with ditto…",
        f"Game ready at {world.home.project}",
        PROJECT_LINE,
        "Reading the official checksum list (SHA512-SUMS.txt)…",
        setup.LOG_LINES[setup.ENGINE],
        "Checking the download against the official SHA-512 checksum…",
        "Checksum OK.",
        "Importing the game's assets (Godot 3 has no --headless flag; using --editor --no-window "
        "--quit).",
        "Import progress: 0 assets still to import",
        "All assets imported, closing the setup run.",
        start_line(world),
    ])


def expect_installed(world):
    assert count_imported(world.home.project) == sample_game.ASSETS
    assert world.home.marker().read_bytes() == b""
    assert world.launcher.shows(sample_game.SUMMARY)
    assert world.launcher.shows(f"MIT License · {sample_game.COPYRIGHT}")
    world.home.expect_nothing_left_over()


def expect_real_requests(world):
    release = f"github.com /godotengine/godot/releases/download/{engine.VERSION}/"
    asset = "objects.githubusercontent.com /release-asset/"
    expected = [
        "github.com /brindlework-demos/tetherwalk/archive/refs/heads/master.zip 302",
        "codeload.github.com /brindlework-demos/tetherwalk/zip/refs/heads/master 200",
        f"{release}SHA512-SUMS.txt 302",
        f"{asset}SHA512-SUMS.txt?signature=1 200",
        f"{release}{engine.archive_name()} 302",
        f"{asset}{engine.archive_name()}?signature=1 200",
    ]
    assert world.web.requests() == expected, world.web.requests()


def expect_stop(world):
    launcher = world.launcher
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    launcher.wait_for_label("Everything is installed. Press Play.")
    launcher.wait_for_log_line("Game stopped by you.")
    wait_for("The end of the game's window", lambda: GAME_WINDOW not in world.desktop.windows())
    assert launcher.children() == []
    assert world.home.marker().exists()


def expect_second_play_without_network(world):
    launcher = world.launcher
    world.web.stop()
    requests = world.web.requests()
    activity = network_activity()
    lines_before = len(launcher.log())

    launcher.press("Play")
    expect_game_opens(world, "second-play")
    expect_in_order(launcher.log()[lines_before:], [
        "Step 1 of 4 · Game already downloaded, skipping.",
        PROJECT_LINE,
        "Step 2 of 4 · Engine already installed, skipping.",
        "Step 3 of 4 · Already set up, skipping.",
        start_line(world),
    ])
    expect_stop(world)
    assert launcher.log().count("Game stopped by you.") == 2
    assert world.web.requests() == requests
    assert network_activity() == activity, (activity, network_activity())
    world.home.expect_nothing_left_over()
