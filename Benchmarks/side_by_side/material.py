# SPDX-License-Identifier: MIT
"""What the contenders work on, made again for each run."""

import os
import random
import shutil
import subprocess

from rig import product

VERSION = product.ENGINE_VERSION
ENGINE_PROGRAM = f"Godot_v{VERSION}_x11.64"
MARKER = f".setup-v2-{VERSION}"

PROJECT = """config_version=4

[application]

config/name="Sample"
run/main_scene="res://main.tscn"
"""

COMPANION = """[remap]

importer="texture"
type="StreamTexture"
path="res://.import/{name}-0.stex"
metadata={{
"vram_texture": false
}}

[deps]

source_file="res://{folder}/{name}"
dest_files=[ "res://.import/{name}-0.stex" ]

[params]

compress/mode=0
compress/lossy_quality=0.7
flags/repeat=0
flags/filter=true
process/premult_alpha=false
size_limit=0
"""


def random_file(path: str, size: int) -> str:
    """A file of bytes that cannot be compressed."""
    with open(path, "wb") as file:
        while size > 0:
            piece = min(size, 1 << 24)
            file.write(os.urandom(piece))
            size -= piece
    return path


def project(folder: str, assets: int, others: int) -> str:
    """A game whose assets are all imported, a hundred of them to a folder, among other files."""
    os.makedirs(f"{folder}/.import")
    write(f"{folder}/project.godot", PROJECT)
    for number in range(max(assets, others)):
        below = f"part{number // 100:04}"
        if number % 100 == 0:
            os.makedirs(f"{folder}/{below}")
        if number < assets:
            name = f"asset{number:06}.png"
            write(f"{folder}/{below}/{name}", "")
            write(f"{folder}/{below}/{name}.import", COMPANION.format(name=name, folder=below))
            write(f"{folder}/.import/{name}-0.stex", "")
        if number < others:
            write(f"{folder}/{below}/script{number:06}.gd", "extends Node\n")
    return folder


def installed_game(data_home: str, engine: str) -> None:
    """What a finished setup leaves: a small imported game and `engine` in the engine's place."""
    root = f"{data_home}/Cavernyx Platformer"
    project(f"{root}/Game/tetherwalk-master", assets=60, others=40)
    write(f"{root}/Game/{MARKER}", "")
    os.makedirs(f"{root}/Engine/{VERSION}")
    shutil.copy(engine, f"{root}/Engine/{VERSION}/{ENGINE_PROGRAM}")


def engine_archive(folder: str) -> str:
    """An archive of one large program, as the engine's is: Debian's build of the same engine."""
    shutil.copy("/usr/bin/godot3", f"{folder}/{ENGINE_PROGRAM}")
    return zipped(folder, "engine.zip", ENGINE_PROGRAM)


def archive_of_small_files(folder: str, count: int) -> str:
    """An archive of files from 100 bytes to 8 KB, half of their bytes compressible."""
    chance = random.Random(1)
    for number in range(count):
        below = f"{folder}/many/part{number // 100:03}"
        if number % 100 == 0:
            os.makedirs(below)
        length = chance.randint(50, 4000)
        with open(f"{below}/file{number:05}.dat", "wb") as file:
            file.write(chance.randbytes(length) + b"a line of a script\n" * (length // 19))
    return zipped(folder, "many.zip", "many")


def zipped(folder: str, archive: str, content: str) -> str:
    subprocess.run(["zip", "-q", "-r", archive, content], cwd=folder, check=True)
    return f"{folder}/{archive}"


def write(path: str, text: str) -> None:
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
