# SPDX-License-Identifier: MIT
"""A C# project gets the engine's C# edition, with a marker of its own. The scripted engine says
nothing that is not known here, so the log is compared whole."""

from rig import engine
from rig.waiting import wait_for


def run(world):
    world.offer_game(csharp=True)
    world.offer_scripted_engine(mono=True)
    world.web.start()

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Starting…")
    launcher.wait_for_log_line("The game is on.")
    world.picture("starting")
    expected = [
        "Downloading the game source from GitHub (branch master)…",
        "Unpacking the game with ditto…",
        f"Game ready at {world.home.project}",
        "project.godot: config_version=4 → Godot 3.x, C#: yes, main scene: res://Main.tscn",
        "Reading the official checksum list (SHA512-SUMS.txt)…",
        f"Downloading {engine.archive_name(mono=True)} from godotengine/godot releases…",
        "Checking the download against the official SHA-512 checksum…",
        "Checksum OK.",
        "Importing the game's assets (Godot 3 has no --headless flag; using --editor --no-window "
        "--quit).",
        "Import progress: 0 assets still to import",
        "All assets imported, closing the setup run.",
        f"Step 4 of 4 · Starting: Godot --path {world.home.project} --windowed",
        "The game is on.",
    ]
    # Where the engine's line and the first counts stand depends on the machine.
    log = [line for line in launcher.log()
           if not line.startswith("Import progress: ") or line.startswith("Import progress: 0 ")]
    log.remove("Everything is imported.")
    assert log == expected, "\n".join(launcher.log())
    assert world.home.marker(mono=True).exists()
    assert not world.home.marker().exists()
    program = f"Godot_v{engine.VERSION}_mono_x11"
    assert (world.home.engine_folder(mono=True) / f"{program}_64" / f"{program}.64").exists()

    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    wait_for("The end of the game", lambda: not launcher.children())
    world.home.expect_nothing_left_over()
