# SPDX-License-Identifier: MIT
"""Expectations that several scenarios share."""

import re
from pathlib import Path

from rig.waiting import wait_for

IMPORTABLE = {".png", ".jpg", ".svg", ".webp", ".bmp", ".tga", ".wav", ".obj", ".gltf", ".hdr"}


def expect_in_order(lines: list[str], expected: list[str]) -> None:
    """All of `expected` are among the lines, in that order; other lines may lie between them."""
    rest = iter(lines)
    for line in expected:
        assert line in rest, f"\"{line}\" is missing, or out of order, in:\n" + "\n".join(lines)


def assets(project: Path) -> list[Path]:
    """The files of the project that the engine imports."""
    return [path for path in project.rglob("*")
            if path.suffix in IMPORTABLE and ".import" not in path.parts]


def imported_file(project: Path, asset: Path) -> Path | None:
    """The file that the asset's companion names, if there is one."""
    companion = asset.with_name(asset.name + ".import")
    text = companion.read_text() if companion.exists() else ""
    imported = re.search(r'^path="res://(.*)"$', text, re.MULTILINE)
    return project / imported.group(1) if imported else None


def count_imported(project: Path) -> int:
    """Every asset of the project has a companion and the file that this names; returns how many
    assets these are."""
    found = assets(project)
    for asset in found:
        imported = imported_file(project, asset)
        assert imported and imported.is_file(), f"{asset} was not imported to {imported}"
    return len(found)


def failure_in_log(launcher, count: int = 1) -> str:
    """The sentence of the newest failure, once there are so many."""
    def errors() -> list[str]:
        lines = [line for line in launcher.log() if line.startswith("Error: ")]
        return lines if len(lines) == count else []

    return wait_for(f"Error {count} in the log", errors)[-1].removeprefix("Error: ")


def expect_failed_start(world) -> None:
    """The launcher says that the scripted game which ends at once did not start."""
    message = failure_in_log(world.launcher)
    assert re.fullmatch(r"The game closed after \d+ seconds? \(exit code 3\), so it did not start "
                        r"properly\.", message), message
    expect_failure(world, message)


def expect_failure(world, message: str) -> None:
    """The launcher says `message`, and its report ends with the log's last lines."""
    launcher = world.launcher
    launcher.wait_for_label("Needs something")
    launcher.wait_for_label(message)
    world.picture("needs-something")
    report = launcher.failure_report()
    assert report.startswith(f"What happened: {message}\n\nLast log lines:\n"), report
    assert report.endswith(f"\nError: {message}"), report
    assert launcher.is_enabled("Play")
    assert launcher.is_enabled("Copy")


def expect_cancelled(world) -> None:
    """The launcher is back where it was before the first Play, and says so in the log."""
    launcher = world.launcher
    launcher.press("Cancel")
    launcher.wait_for_label("Not downloaded", seconds=10)
    launcher.wait_for_log_line("Cancelled.")
    world.picture("cancelled")
    assert launcher.log()[-1] == "Cancelled.", launcher.log()
    assert launcher.children() == []
    assert launcher.is_enabled("Play")
    assert not launcher.is_enabled("Cancel")
    world.home.expect_nothing_left_over()


def expect_question(launcher, title: str, message: str, button: str):
    """The launcher asks exactly this, with the action first, and returns the open alert."""
    alert = launcher.wait_for_alert()
    assert alert.texts() == [title, message], alert.texts()
    assert alert.buttons() == [button, "Cancel"], alert.buttons()
    return alert


def expect_game_starts(world) -> list[str]:
    """The scripted game opens; returns what it was started with."""
    launcher = world.launcher
    launcher.wait_for_label("Starting…")
    launcher.wait_for_log_line("The game is on.")
    (shell, program, *arguments), = launcher.children()
    assert program == str(world.home.engine_program()), (shell, program)
    return arguments


def expect_stop(world) -> None:
    """The game ends when the player presses Stop, and that is all that happens."""
    launcher = world.launcher
    launcher.press("Stop")
    launcher.wait_for_label("Ready")
    launcher.wait_for_log_line("Game stopped by you.")
    wait_for("The end of the game", lambda: not world.home.processes())
    world.home.expect_nothing_left_over()


def expect_quit(world) -> None:
    """The launcher that was told to quit does so, and leaves nothing behind that is at work or
    half done."""
    status = world.launcher.wait_for_end()
    assert status == 0, status
    wait_for("The end of all that it started", lambda: not world.home.processes())
    world.home.expect_nothing_left_over()


def expect_maintenance(settings, offered: bool) -> None:
    """What changes the installation can be pressed, or not; all else in the settings always can."""
    for button in ("Update the game", "Reinstall", settings.remove_button()):
        assert settings.is_enabled(button) == offered, button
    for button in ("Reveal in Finder", "Done"):
        assert settings.is_enabled(button), button
    assert settings.pickers_are_enabled()
