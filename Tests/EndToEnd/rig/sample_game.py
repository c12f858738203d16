# SPDX-License-Identifier: MIT
"""Makes the sample game: the project kept beside this package, and assets drawn by arithmetic."""

import math
import shutil
import struct
import subprocess
import wave
import zipfile
import zlib
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent / "SampleGame"
ARCHIVE_FOLDER = "tetherwalk-master"
PROJECT_FOLDER = "game"
NAME = "Tetherwalk Sample"
SUMMARY = "A very small game that the launcher's own tests install, import and play."
COPYRIGHT = "Copyright (c) 2026 The Cavernyx Platformer developers"
ASSETS = 72
TILE = 32


def make_archive(path: Path, scratch: Path, csharp: bool, more: dict[str, bytes]) -> None:
    """Writes the branch archive as the web host serves it: all below one folder, the project one
    folder further down. With `csharp` the project also holds a C# project file. `more` are files
    to add to the project."""
    repository = scratch / ARCHIVE_FOLDER
    shutil.copytree(SOURCE, repository)
    project = repository / PROJECT_FOLDER
    make_assets(project)
    if csharp:
        (project / f"{NAME}.csproj").write_text("<Project Sdk=\"Godot.NET.Sdk/3.3.0\" />\n")
    for name, contents in more.items():
        (project / name).parent.mkdir(parents=True, exist_ok=True)
        (project / name).write_bytes(contents)
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
        for entry in [repository, *sorted(repository.rglob("*"))]:
            archive.write(entry, entry.relative_to(scratch))
    shutil.rmtree(repository)


def make_assets(project: Path) -> list[Path]:
    """Makes the ASSETS assets, of ten importable kinds below the project folder."""
    art, sounds, models = (project / name for name in ("art", "sounds", "models"))
    for folder in (art, sounds, models):
        folder.mkdir()
    kinds = [
        (18, lambda i: _png(art / f"tile_{i:02}.png", i)),
        (8, lambda i: _svg(art / f"badge_{i}.svg", i)),
        (5, lambda i: _bmp(art / f"ground_{i}.bmp", i)),
        (5, lambda i: _tga(art / f"wall_{i}.tga", i)),
        (4, lambda i: _hdr(art / f"sky_{i}.hdr", i)),
        (12, lambda i: _wav(sounds / f"step_{i:02}.wav", i)),
        (6, lambda i: _obj(models / f"rock_{i}.obj", i)),
        (2, lambda i: _gltf(models / f"hook_{i}.gltf", i)),
    ]
    made = [make(index) for count, make in kinds for index in range(count)]
    return made + _converted(art, made[:18])


def _pixels(seed: int) -> list[tuple[int, int, int]]:
    """A tile of a colour of its own with a lattice in it, row by row from the top."""
    return [((seed * 53 + x * 5) % 256, (seed * 97 + y * 5) % 256, 200 if (x ^ y) & 8 else 60)
            for y in range(TILE) for x in range(TILE)]


def _rows(seed: int):
    pixels = _pixels(seed)
    return [pixels[row:row + TILE] for row in range(0, len(pixels), TILE)]


def _png(path: Path, seed: int) -> Path:
    def chunk(kind: bytes, data: bytes) -> bytes:
        checksum = zlib.crc32(kind + data)
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)

    lines = b"".join(b"\0" + b"".join(bytes(pixel) for pixel in row) for row in _rows(seed))
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", struct.pack(">IIBBBBB", TILE, TILE, 8, 2, 0, 0, 0))
        + chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b""))
    return path


def _converted(art: Path, tiles: list[Path]) -> list[Path]:
    """The two kinds whose encoders are not a few lines long, from tiles that are there."""
    names = [f"photo_{index}.jpg" for index in range(7)]
    names += [f"cloud_{index}.webp" for index in range(5)]
    made = []
    for tile, name in zip(tiles, names):
        subprocess.run(["convert", str(tile), str(art / name)], check=True)
        made.append(art / name)
    return made


def _svg(path: Path, seed: int) -> Path:
    path.write_text(
        '<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32">'
        f'<circle cx="16" cy="16" r="{6 + seed}" fill="#{seed * 1118481 + 0x402080:06x}"/></svg>\n')
    return path


def _bmp(path: Path, seed: int) -> Path:
    data = b"".join(bytes((blue, green, red))
                    for row in reversed(_rows(seed)) for red, green, blue in row)
    path.write_bytes(
        b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54)
        + struct.pack("<IiiHHIIiiII", 40, TILE, TILE, 1, 24, 0, len(data), 2835, 2835, 0, 0)
        + data)
    return path


def _tga(path: Path, seed: int) -> Path:
    data = b"".join(bytes((blue, green, red)) for red, green, blue in _pixels(seed))
    path.write_bytes(
        struct.pack("<BBBHHBHHHHBB", 0, 0, 2, 0, 0, 0, 0, 0, TILE, TILE, 24, 0x20) + data)
    return path


def _hdr(path: Path, seed: int) -> Path:
    data = b"".join(bytes((*pixel, 128)) for pixel in _pixels(seed))
    header = f"#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y {TILE} +X {TILE}\n"
    path.write_bytes(header.encode() + data)
    return path


def _wav(path: Path, seed: int) -> Path:
    rate = 11025
    samples = (int(9000 * math.sin(index * (seed + 2) * 0.05) * (1 - index / rate * 4))
               for index in range(rate // 4))
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(rate)
        sound.writeframes(b"".join(struct.pack("<h", sample) for sample in samples))
    return path


def _obj(path: Path, seed: int) -> Path:
    height = 1 + seed / 4
    path.write_text(f"v 0 {height} 0\nv -1 0 1\nv 1 0 1\nv 0 0 -1\n"
                    "f 1 2 3\nf 1 3 4\nf 1 4 2\nf 2 4 3\n")
    return path


def _gltf(path: Path, seed: int) -> Path:
    points = struct.pack("<9f", 0, 1 + seed, 0, -1, 0, 0, 1, 0, 0)
    path.with_suffix(".bin").write_bytes(points)
    path.write_text(f"""{{
  "asset": {{"version": "2.0"}}, "scene": 0,
  "scenes": [{{"nodes": [0]}}], "nodes": [{{"mesh": 0, "name": "Hook"}}],
  "meshes": [{{"name": "Hook", "primitives": [{{"attributes": {{"POSITION": 0}}}}]}}],
  "accessors": [{{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",
                  "min": [-1, 0, 0], "max": [1, {1 + seed}, 0]}}],
  "bufferViews": [{{"buffer": 0, "byteOffset": 0, "byteLength": {len(points)}}}],
  "buffers": [{{"uri": "{path.stem}.bin", "byteLength": {len(points)}}}]
}}
""")
    return path
