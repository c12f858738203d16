# SPDX-License-Identifier: MIT
"""Expectations that several scenarios share."""

import re
from pathlib import Path

IMPORTABLE = {".png", ".jpg", ".svg", ".webp", ".bmp", ".tga", ".wav", ".obj", ".gltf", ".hdr"}


def expect_in_order(lines: list[str], expected: list[str]) -> None:
    """All of `expected` are among the lines, in that order; other lines may lie between them."""
    rest = iter(lines)
    for line in expected:
        assert line in rest, f"\"{line}\" is missing, or out of order, in:\n" + "\n".join(lines)


def count_imported(project: Path) -> int:
    """Every asset of the project has a companion and the file that this names; returns how many
    assets these are."""
    assets = [path for path in project.rglob("*")
              if path.suffix in IMPORTABLE and ".import" not in path.parts]
    for asset in assets:
        companion = asset.with_name(asset.name + ".import").read_text()
        imported = re.search(r'^path="res://(.*)"$', companion, re.MULTILINE)
        assert imported, f"{asset} was not imported: {companion}"
        assert (project / imported.group(1)).is_file(), f"{asset} has no {imported.group(1)}"
    return len(assets)


def expect_failure(world, message: str) -> None:
    """The launcher says `message`, and its report ends with the log's last lines."""
    launcher = world.launcher
    launcher.wait_for_label("Needs something", seconds=60)
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
    launcher.wait_for_label("Not downloaded", seconds=5)
    launcher.wait_for_log_line("Cancelled.")
    world.picture("cancelled")
    assert launcher.log()[-1] == "Cancelled.", launcher.log()
    assert launcher.children() == []
    assert launcher.is_enabled("Play")
    assert not launcher.is_enabled("Cancel")
    world.home.expect_nothing_left_over()
