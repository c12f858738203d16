#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""assemble.py INSTALLED BUNDLE: makes of the launcher that is installed below a prefix a folder that
runs on any usual Linux desktop, wherever it lies. Qt and what else this Debian system brought is
copied beside it and found relative to it. Left out is what every desktop has and what has to fit
its graphics driver. The licences of all that is inside lie with it."""

import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).parent
PROGRAM = "cavernyx-platformer"

# What the desktop brings: the C and C++ libraries, the graphics driver's side, X and Wayland as
# that driver knows them, fonts, and libraries that those are linked with.
OF_THE_SYSTEM = re.compile(r"""(
    ld-linux.* | lib(c|m|dl|rt|pthread|resolv|util|stdc\+\+|gcc_s) |
    lib(GL|EGL|GLX|GLdispatch|OpenGL|GLESv2|drm|gbm|glapi) |
    lib(X11|X11-xcb|xcb|xcb-dri[23]|Xau|Xdmcp) | libwayland-(client|server) |
    lib(fontconfig|freetype|harfbuzz|expat|z|uuid)
)\.so.*""", re.VERBOSE)

PLUGINS = """
    platforms/libqxcb.so platforms/libqwayland-generic.so platforms/libqwayland-egl.so
    xcbglintegrations/libqxcb-egl-integration.so xcbglintegrations/libqxcb-glx-integration.so
    wayland-shell-integration/libxdg-shell.so
    wayland-decoration-client/libbradient.so
    wayland-graphics-integration-client/libqt-plugin-wayland-egl.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so
    platformthemes/libqxdgdesktopportal.so
""".split()


def main() -> None:
    installed, bundle = map(Path, sys.argv[1:])
    shutil.copytree(installed, bundle, symlinks=True)
    (bundle / "games").rename(bundle / "bin")
    (bundle / PROGRAM).symlink_to(f"bin/{PROGRAM}")
    for file in ("integrate", "README.txt"):
        shutil.copy(HERE / file, bundle)
    (bundle / "bin" / "qt.conf").write_text("[Paths]\nPrefix = ..\nPlugins = plugins\n")

    own = binaries(bundle)
    taken = copy_plugins(bundle) | copy_libraries(bundle) | copy_translations(bundle)
    for binary in binaries(bundle):
        point_to_libraries(binary, bundle / "lib", strip=binary not in own)
    copy_licences(taken, bundle / "licenses")


def output(*command: str | Path) -> str:
    return subprocess.run(list(map(str, command)), check=True, capture_output=True,
                          text=True).stdout


def binaries(folder: Path) -> list[Path]:
    """The programs and libraries below the folder, in a fixed order."""
    def is_binary(file: Path) -> bool:
        with file.open("rb") as contents:
            return contents.read(4) == b"\x7fELF"

    return sorted(file for file in folder.rglob("*")
                  if file.is_file() and not file.is_symlink() and is_binary(file))


def copy_plugins(bundle: Path) -> set[Path]:
    """Returns what was copied, by its path in the system."""
    folder = Path(output("qmake6", "-query", "QT_INSTALL_PLUGINS").strip())
    for plugin in PLUGINS:
        copy = bundle / "plugins" / plugin
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(folder / plugin, copy)
    return {folder / plugin for plugin in PLUGINS}


def copy_translations(bundle: Path) -> set[Path]:
    """Qt's own texts, such as those of a context menu. Returns what was copied."""
    folder = Path(output("qmake6", "-query", "QT_INSTALL_TRANSLATIONS").strip())
    texts = set(folder.glob("qtbase_*.qm"))
    (bundle / "translations").mkdir()
    for text in texts:
        shutil.copy(text, bundle / "translations")
    return texts


def copy_libraries(bundle: Path) -> set[Path]:
    """Copies all that the bundle's binaries need, and what that needs in turn, except for what the
    system brings. Returns what was copied, by its path in the system."""
    folder = bundle / "lib"
    folder.mkdir(exist_ok=True)
    copied = set()
    waiting = binaries(bundle)
    while waiting:
        for path in needed(waiting.pop()):
            if path not in copied and not OF_THE_SYSTEM.fullmatch(path.name):
                waiting.append(Path(shutil.copy(path, folder / path.name)))
                copied.add(path)
    return copied


def needed(binary: Path) -> list[Path]:
    """The libraries that it names itself, where the system has them."""
    found = dict(re.findall(r"(\S+) => (/\S+)", output("ldd", binary)))
    names = output("patchelf", "--print-needed", binary).split()
    missing = [name for name in names if name not in found and not OF_THE_SYSTEM.fullmatch(name)]
    if missing:
        sys.exit(f"assemble: {binary} needs {missing}, which are not there.")
    return [Path(found[name]) for name in names if name in found]


def point_to_libraries(binary: Path, libraries: Path, strip: bool) -> None:
    """Every binary looks here first, whatever loaded it, and then where it looked before: the launcher
    for its own module. No variable of the environment is set for that, which the engine would
    inherit."""
    if strip:
        output("strip", "--strip-unneeded", binary)
    places = [f"$ORIGIN/{os.path.relpath(libraries, binary.parent)}",
              *re.findall(r"\$ORIGIN[^:\n]*", output("patchelf", "--print-rpath", binary))]
    output("patchelf", "--force-rpath", "--set-rpath", ":".join(places), binary)
    binary.chmod(0o755)


def package_of(file: Path) -> str:
    """Some packages list their files below /lib, which is a link to /usr/lib."""
    merged = Path("/") / file.relative_to("/usr")
    found = subprocess.run(["dpkg", "-S", file, merged], capture_output=True, text=True).stdout
    return found.split(":")[0]


def copy_licences(files: set[Path], folder: Path) -> None:
    """For each package of Debian's that a file came from: its copyright file, the licences' texts
    that this refers to, and a line that says where its sources are."""
    packages = {package_of(file.resolve()) for file in files}
    sources = []
    for package in sorted(packages):
        (folder / package).mkdir(parents=True)
        shutil.copy(f"/usr/share/doc/{package}/copyright", folder / package)
        sources.append(output("dpkg-query", "--show", "--showformat",
                              "${Package}: ${source:Package}=${source:Version}\n",
                              package))
    text = "".join((folder / package / "copyright").read_text(errors="replace")
                   for package in packages)
    common = Path("/usr/share/common-licenses")
    (folder / "common-licenses").mkdir()
    for name in sorted(set(re.findall(rf"{common}/([A-Za-z0-9.+-]*[A-Za-z0-9])", text))):
        if (common / name).exists():
            shutil.copy((common / name).resolve(), folder / "common-licenses" / name)
    (folder / "SOURCES.txt").write_text(
        "The libraries in lib and plugins are those of Debian 12, unchanged but for the path on\n"
        "which they look for each other. Each may be replaced by another build of the same\n"
        "library. Their sources are Debian's source packages, which `apt-get source NAME=VERSION`\n"
        "fetches:\n\n" + "".join(sources))


if __name__ == "__main__":
    main()
