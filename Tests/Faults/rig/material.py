# SPDX-License-Identifier: MIT
"""The game and the engine in two versions, as they are served and as they stand installed.

A tree is a dictionary from a path below a folder, "." for the folder itself, to ("folder", mode),
("file", mode, contents) or ("link", target)."""

import hashlib
import re
import stat
import subprocess
import tempfile
from pathlib import Path

OLD, NEW = "old", "new"
FACTS = Path(__file__).resolve().parents[3] / "Sources/App/Project/GameFacts.h"
BUILD = re.search(r' engineVersion = u"([^"]+)";', FACTS.read_text()).group(1)
ENGINE = f"Godot_v{BUILD}_x11.64"
MARKER = f".setup-v2-{BUILD}"
PROJECT = "tetherwalk-master/game"
ASSETS = {OLD: ["art/badge.svg", "art/tile.png", "sounds/step.wav"],
          NEW: ["art/tile.png", "models/rock.obj", "sounds/step.wav"]}

# What the engine's program does: imports the project and stays, or plays what is imported.
SCRIPT = r"""#!/bin/sh
# The {version} engine.
cd "$2" || exit 9
case " $* " in
*" --editor "*)
    test -d .import || mkdir "$2/.import"
    while read -r asset; do
        test -e "$asset.import" && continue
        name=${{asset##*/}}
        echo imported >".import/$name-0.bin"
        printf '[remap]\n\npath="res://.import/%s-0.bin"\n' "$name" >"$asset.new"
        mv "$asset.new" "$asset.import"  # A record without a path would count as complete.
    done <assets.txt
    exec sleep 60 ;;
*)
    while read -r asset; do
        test -s ".import/${{asset##*/}}-0.bin" || exit 8
    done <assets.txt
    read -r version <version.txt
    echo "Playing the $version game."
    exec sleep 0.1 ;;
esac
"""

Tree = dict[str, tuple]


def shipped_game(version: str) -> Tree:
    """The game as it is in its archive."""
    files = {f"{PROJECT}/{asset}": f"{version} {asset}\n" for asset in ASSETS[version]}
    return _tree(files | {
        "tetherwalk-master/LICENSE": "MIT License\n",
        "tetherwalk-master/README.org": f"#+DESCRIPTION: The {version} sample.\n",
        f"{PROJECT}/project.godot": "config_version=4\nconfig/name=\"Tetherwalk Sample\"\n",
        f"{PROJECT}/assets.txt": "".join(f"{asset}\n" for asset in ASSETS[version]),
        f"{PROJECT}/version.txt": f"{version}\n",
        # Takes several writes, though its archive is small.
        f"{PROJECT}/maps/level.dat": f"{version} wall, " * 60_000,
        "tetherwalk-master/tools/check.sh": "#!/bin/sh\n",
    }, {f"{PROJECT}/CREDITS": "../LICENSE"})


def complete_game(version: str) -> Tree:
    """The game with every asset imported, and marked so."""
    files = {MARKER: ""}
    for asset in ASSETS[version]:
        imported = f".import/{Path(asset).name}-0.bin"
        files[f"{PROJECT}/{imported}"] = "imported\n"
        files[f"{PROJECT}/{asset}.import"] = f"[remap]\n\npath=\"res://{imported}\"\n"
    return shipped_game(version) | _tree(files)


def engine(version: str) -> Tree:
    return _tree({"share/manual.txt": f"The {version} manual.\n", "share/icons/icon.txt": "*\n",
                  ENGINE: SCRIPT.format(version=version)}, {"manual.txt": "share/manual.txt"})


def _tree(files: dict[str, str], links: dict[str, str] | None = None) -> Tree:
    tree = {path: ("file", 0o755 if text.startswith("#!") else 0o644, text.encode())
            for path, text in files.items()}
    tree |= {path: ("link", target) for path, target in (links or {}).items()}
    return tree | {str(folder): ("folder", 0o755) for path in tree for folder in Path(path).parents}


def write(tree: Tree, folder: Path) -> None:
    for path, entry in sorted(tree.items()):
        place = folder / path
        if entry[0] == "folder":
            place.mkdir(parents=True, exist_ok=True)
        elif entry[0] == "link":
            place.symlink_to(entry[1])
        else:
            place.write_bytes(entry[2])
            place.chmod(entry[1])


def snapshot(folder: Path) -> Tree:
    """What stands at `folder`: an empty dictionary when nothing does."""
    paths = [folder, *folder.rglob("*")] if folder.exists() else []
    return {str(path.relative_to(folder)): _entry(path) for path in paths}


def _entry(path: Path) -> tuple:
    if path.is_symlink():
        return "link", str(path.readlink())
    mode = stat.S_IMODE(path.stat().st_mode)
    return ("folder", mode) if path.is_dir() else ("file", mode, path.read_bytes())


def publish(folder: Path) -> None:
    """Makes a web host's folder with the downloads of the new version."""
    release = folder / "godotengine/godot/releases/download" / BUILD
    branch = folder / "brindlework-demos/tetherwalk/archive/refs/heads"
    _pack(shipped_game(NEW), branch / "master.zip")
    _pack(engine(NEW), release / f"{ENGINE}.zip")
    digest = hashlib.sha512((release / f"{ENGINE}.zip").read_bytes()).hexdigest()
    (release / "SHA512-SUMS.txt").write_text(f"{digest}  {ENGINE}.zip\n")


def _pack(tree: Tree, archive: Path) -> None:
    archive.parent.mkdir(parents=True)
    with tempfile.TemporaryDirectory() as folder:
        write(tree, Path(folder))
        names = "\n".join(sorted(tree.keys() - {"."}))
        subprocess.run(["zip", "-qy", archive, "-@"], cwd=folder, input=names, text=True,
                       check=True)
