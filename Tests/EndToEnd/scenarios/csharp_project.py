# SPDX-License-Identifier: MIT
"""A C# project gets the engine's C# edition, with a marker of its own. The scripted engine says
nothing that is not known here, so the log is compared whole."""

from rig.waiting import wait_for


def run(world):
    world.offer_game(csharp=True)
    world.offer_scripted_engine(mono=True)
    world.web.start()

    launcher = world.open_launcher()
    launcher.press("Play")
    launcher.wait_for_label("Starting…", seconds=60)
    launcher.wait_for_log_line("The game is on.")
    world.picture("starting")
    expected = [
        "Downloading the game source from GitHub (branch master)…",
        "Unpacking the game with ditto…",
        f"Game ready at {world.home.project}",
        "project.godot: config_version=4 → Godot 3.x, C#: yes, main scene: res://Main.tscn",
        "Reading the official checksum list (SHA512-SUMS.txt)…",
        "Downloading Godot_v3.5.3-stable_mono_x11_64.zip from godotengine/godot releases…",
        "Checking the download against the official SHA-512 checksum…",
        "Checksum OK.",
        "Importing the game's assets (Godot 3 has no --headless flag; using --editor --no-window "
        "--quit).",
        "Everything is imported.",
        "Import progress: 0 assets still to import",
        "All assets imported, closing the setup run.",
        f"Step 4 of 4 · Starting: Godot --path {world.home.project} --windowed",
        "The game is on.",
    ]
    # On a slow machine a count may come while the engine is not done yet.
    log = [line for line in launcher.log()
           if not line.startswith("Import progress: ") or line.startswith("Import progress: 0 ")]
    assert log == expected, "\n".join(launcher.log())
    assert world.home.marker(mono=True).exists()
    assert not world.home.marker().exists()
    program = (world.home.engine_folder(mono=True) / "Godot_v3.5.3-stable_mono_x11_64"
               / "Godot_v3.5.3-stable_mono_x11.64")
    assert program.exists()

    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    wait_for("The end of the game", lambda: not launcher.children())
    world.home.expect_nothing_left_over()
