# SPDX-License-Identifier: MIT
"""The engine's release files: an archive under its official name and the checksum list with it.
Inside is either a real engine or a small script that behaves as a scenario wants."""

import hashlib
import random
import subprocess
import zipfile
from pathlib import Path

from rig import product

VERSION = product.ENGINE_VERSION
REAL_ENGINE = Path("/usr/bin/godot3")

# How the script gets the assets imported: at once, or never.
IMPORTS = r"""
find . -name '.?*' -prune -o -type f -name '*.*' -print | while read -r asset; do
    case $asset in
        *.png|*.jpg|*.svg|*.webp|*.bmp|*.tga|*.wav|*.obj|*.gltf|*.hdr) ;;
        *) continue ;;
    esac
    name=$(basename "$asset")
    mkdir -p .import && : >".import/$name-0.bin"
    printf '[remap]\n\npath="res://.import/%s-0.bin"\n' "$name" >"$asset.import"
done
echo "Everything is imported."
exec sleep 600
"""
HANGS = 'echo "Working on it."\nexec sleep 600\n'

# What it does as the game: stays open under its own command line, or ends at once.
STAYS = 'echo "The game is on."\nwhile sleep 0.2; do :; done\n'
ENDS = 'echo "A library is missing." >&2\nexit 3\n'


def archive_name(mono: bool = False) -> str:
    return f"Godot_v{VERSION}_mono_x11_64.zip" if mono else f"Godot_v{VERSION}_x11.64.zip"


def make_release(folder: Path, program: Path, mono: bool = False) -> Path:
    """Puts the archive with `program` as the engine into `folder`, and the list beside it."""
    archive = folder / archive_name(mono)
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=1) as contents:
        if mono:
            top = archive.stem
            contents.writestr(f"{top}/GodotSharp/Api/Release/GodotSharp.xml", "<doc />\n")
            contents.write(program, f"{top}/Godot_v{VERSION}_mono_x11.64")
        else:
            contents.write(program, archive.stem)
    write_list(folder)
    return archive


def write_list(folder: Path) -> None:
    """Writes the checksum list over the archives as they are, among others it has never seen."""
    names = {archive_name(mono): None for mono in (False, True)}
    names |= {f"Godot_v{VERSION}_osx.universal.zip": None, f"Godot_v{VERSION}_win64.exe.zip": None}
    lines = []
    for name in sorted(names):
        archive = folder / name
        contents = archive.read_bytes() if archive.exists() else name.encode()
        lines.append(f"{hashlib.sha512(contents).hexdigest()}  {name}\n")
    (folder / "SHA512-SUMS.txt").write_text("".join(lines))


def damage(archive: Path) -> None:
    """Changes one byte in the middle, as a bad disk or line would."""
    contents = bytearray(archive.read_bytes())
    contents[len(contents) // 2] ^= 0x20
    archive.write_bytes(contents)


def script(path: Path, imports: str = IMPORTS, plays: str = STAYS) -> Path:
    """Makes an engine of the two given behaviours. What follows them is never read; with it the
    archive has a size worth downloading."""
    path.write_text(
        f'#!/bin/sh\ncd "$2" || exit 9\ncase " $* " in\n*" --editor "*)\n{imports};;\n'
        f'*)\n{plays};;\nesac\nexit\n')
    with path.open("ab") as program:
        program.write(random.Random(1).randbytes(300_000))
    path.chmod(0o755)
    return path


def run_import(program: Path, project: Path) -> None:
    """Lets the script import the project, and ends it then, as the launcher does."""
    with subprocess.Popen([program, "--path", project, "--editor", "--no-window"],
                          stdout=subprocess.PIPE, text=True) as run:
        assert run.stdout.readline() == "Everything is imported.\n"
        run.terminate()
