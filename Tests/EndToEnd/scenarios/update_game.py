# SPDX-License-Identifier: MIT
"""Updating downloads and imports the game again, and keeps the engine and the saves."""

from rig.expect import expect_game_starts, expect_in_order, expect_question, expect_stop

GAME_REQUESTS = [
    "github.com /brindlework-demos/tetherwalk/archive/refs/heads/master.zip 302",
    "codeload.github.com /brindlework-demos/tetherwalk/zip/refs/heads/master 200",
]


def run(world):
    world.offer_game(more={"news.txt": b"The second chapter.\n"})
    world.offer_scripted_engine()
    world.install()
    news = world.home.project / "news.txt"
    news.write_text("The first chapter.\n")
    gone = world.home.project / "removed-since.txt"
    gone.touch()
    saved = world.home.save_a_game()
    world.web.start()

    launcher = world.open_launcher()
    launcher.wait_for_label("Ready")
    before = world.home.snapshot()
    ask(launcher, "Cancel")
    assert launcher.shows("Ready")
    assert world.home.snapshot() == before
    assert world.web.requests() == []

    ask(launcher, "Update")
    launcher.wait_for_label("Setting up")
    assert not world.home.marker().exists()
    world.picture("setting-up")
    expect_game_starts(world)
    assert world.web.requests() == GAME_REQUESTS, world.web.requests()
    assert news.read_text() == "The second chapter.\n"
    assert not gone.exists()
    assert saved.read_text() == "The third cave.\n"
    assert world.home.marker().read_bytes() == b""
    engine = {path: entry for path, entry in before.items()
              if path.startswith(str(world.home.engines))}
    assert engine.items() <= world.home.snapshot().items()
    expect_in_order(launcher.log(), [
        "Downloading the game source from GitHub (branch master)…",
        f"Game ready at {world.home.project}",
        "Step 2 of 4 · Engine already installed, skipping.",
        "All assets imported, closing the setup run.",
    ])
    expect_stop(world)


def ask(launcher, answer):
    settings = launcher.open_settings()
    settings.press("Update the game")
    expect_question(
        launcher, "Update the game?",
        "The game is downloaded again from GitHub. Your save files are kept.", "Update",
    ).answer(answer)
    settings.wait_until_closed()
