# SPDX-License-Identifier: MIT
"""What is tried of the packages of one release of Debian. Each step raises what it finds wrong, and
may return a sentence about what it found."""

import re
import subprocess
from pathlib import Path

from bare_system import BUILD, ENVIRONMENT, BareSystem, base_archive

ROOT = Path(__file__).resolve().parents[2]
RELEASES = ["bookworm", "trixie"]
NAME = "cavernyx-platformer"
INSTALLED = "/usr/games/cavernyx-platformer"

# What the bundle uses of a desktop: the graphics driver's side, X, fonts and certificates.
DESKTOP = ["libgl1", "libegl1", "libopengl0", "libx11-6", "libx11-xcb1", "libharfbuzz0b",
           "fontconfig", "fonts-dejavu-core", "ca-certificates"]

# What the official build of the engine loads by these names when it needs it.
ENGINE_LIBRARIES = ["libGL.so.1", "libX11.so.6", "libXcursor.so.1", "libXinerama.so.1",
                    "libXrandr.so.2", "libXrender.so.1", "libXi.so.6", "libasound.so.2",
                    "libpulse.so.0", "libudev.so.1"]

# Where each family of systems keeps the certificates that it trusts.
LAYOUTS = {
    "debian": "/etc/ssl/certs/ca-certificates.crt",
    "fedora": "/etc/pki/tls/certs/ca-bundle.crt",
    "opensuse": "/etc/ssl/ca-bundle.pem",
    "arch": "/etc/ssl/cert.pem",
}


def build(release: str) -> str:
    """builds all packages in a bare system, from a clean clone"""
    make_packages(release, "/root/clone", dist(release))
    return ", ".join(f"{file.name} {file.stat().st_size:,} bytes"
                     for file in sorted(dist(release).iterdir()))


def rebuild(release: str) -> None:
    """builds them once more, in another folder, and compares every byte"""
    again = BUILD / f"again-{release}"
    make_packages(release, "/var/tmp/a longer name/of the clone", again)
    expect_success("diffoscope", "--exclude-directory-metadata=yes", dist(release), again)


def lint(release: str) -> None:
    """asks the release's own lintian, appstreamcli and desktop-file-validate"""
    system = BareSystem(release, "lint")
    system.install("lintian", "appstream", "desktop-file-utils")
    package = system.put(deb(release))
    said = system.run("lintian", "--pedantic", "--fail-on=pedantic", package).stdout
    assert not re.search("^[EWIP]: ", said, re.MULTILINE), said
    system.run("dpkg", "--force-depends", "--install", package)
    said = system.run("sh", "-c", "desktop-file-validate /usr/share/applications/*.desktop && "
                      "appstreamcli validate --pedantic --no-net /usr/share/metainfo/io.*").stdout
    assert "Validation was successful." in said, said
    system.remove()


def install(release: str) -> str:
    """installs the .deb with apt-get and nothing else, and plays"""
    system = BareSystem(release, "install")
    system.install(system.put(deb(release)), recommends=True)
    expect_engine_libraries(system)
    play(system, "packaged_play", INSTALLED)
    play(system, "packaged_wayland", INSTALLED)
    system.remove()
    return "installed, played, and the engine's libraries are there"


def upgrade(release: str) -> None:
    """upgrades over an older package while a game is installed and runs"""
    system = BareSystem(release, "upgrade")
    older = system.root / "older"
    subprocess.run(["dpkg-deb", "--raw-extract", deb(release), older], check=True)
    control = older / "DEBIAN" / "control"
    control.write_text(re.sub("^Version: .*", "Version: 0.9", control.read_text(), flags=re.M))
    subprocess.run(["dpkg-deb", "--build", "--root-owner-group", older, system.root / "older.deb"],
                   check=True, stdout=subprocess.DEVNULL)
    newer = system.put(deb(release))
    system.install("/older.deb")
    play(system, "packaged_upgrade", INSTALLED, "--upgrade", "/usr/sbin/chroot",
         str(system.root), "env", f"PATH={ENVIRONMENT['PATH']}", "dpkg", "--install", newer)
    version = system.run("dpkg-query", "--show", "--showformat=${Version}", NAME).stdout
    assert version in deb(release).name, version
    system.remove()


def purge(release: str) -> None:
    """installs and purges with piuparts, which looks for what is left"""
    # The folder is debconf's, which leaves it behind when apt-get configures other packages.
    expect_success("piuparts", "--distribution", release, "--basetgz",
                   compressed(base_archive(release)), "--no-eatmydata", "--no-upgrade-test",
                   "--ignore-regex", "/var/cache/debconf/tmp.ci/?", deb(release))


def bundle(release: str) -> str:
    """unpacks the bundle beside no Qt at all, puts it on the list of programs, and plays"""
    system = BareSystem(release, "bundle")
    system.install(*DESKTOP)
    program = unpack_bundle(system)
    play(system, "packaged_play", program)
    play(system, "packaged_wayland", program)
    integrate = str(Path(program).parent / "integrate")
    for argument, entries in ((), 1), (("--remove",), 0):
        system.run(integrate, *argument)
        listed = list((system.root / "root/.local/share/applications").glob("*.desktop"))
        assert len(listed) == entries, listed
    packages = system.run("dpkg-query", "--show", "--showformat=${Package}\n").stdout
    assert "qt" not in packages, packages
    system.remove()
    return "played without any package of Qt's"


def layouts(release: str) -> str:
    """plays from the bundle over HTTPS where other families of systems keep their certificates"""
    for family, file in LAYOUTS.items():
        system = BareSystem(release, f"layout-{family}")
        system.install(*DESKTOP)
        subprocess.run(["rm", "-r", system.root / "etc/ssl"], check=True)
        (system.root / file[1:]).parent.mkdir(parents=True)
        (system.root / file[1:]).touch()
        play(system, "packaged_play", unpack_bundle(system), "--trust", file)
        system.remove()
    return ", ".join(LAYOUTS)


def beside(release: str) -> None:
    """starts the .deb's and the bundle's launcher beside each other"""
    system = BareSystem(release, "beside")
    system.install(system.put(deb(release)))
    play(system, "packaged_twice", INSTALLED, "--other", unpack_bundle(system))
    system.remove()


def sign(release: str) -> None:
    """signs the checksums with a key made for it, and checks them"""
    key, public = BUILD / "trial.key", BUILD / "trial.pub"
    expect_success("minisign", "-G", "-W", "-f", "-s", key, "-p", public)
    sums = dist(release) / "SHA256SUMS"
    signature = BUILD / "SHA256SUMS.minisig"
    expect_success("minisign", "-S", "-W", "-s", key, "-m", sums, "-x", signature)
    expect_success("minisign", "-V", "-p", public, "-m", sums, "-x", signature)
    expect_success("sha256sum", "--strict", "--check", "SHA256SUMS", folder=dist(release))


def make_packages(release: str, folder: str, result: Path) -> None:
    system = BareSystem(release, "builder")
    system.install("git")
    clone = system.root / folder[1:]
    subprocess.run(["git", "clone", "--quiet", "--no-local", ROOT, clone], check=True)
    system.run("Scripts/package", folder=folder)
    subprocess.run(["rm", "-rf", result], check=True)
    (clone / "build" / "dist").rename(result)
    system.remove()


def dist(release: str) -> Path:
    return BUILD / f"dist-{release}"


def deb(release: str) -> Path:
    package, = dist(release).glob("*.deb")
    return package


def unpack_bundle(system: BareSystem) -> str:
    """Returns the launcher's path inside. The bundle is always that of Debian 12."""
    archive, = dist("bookworm").glob("*-x86_64.tar.xz")
    folder = system.root / "opt/a folder"
    folder.mkdir()
    subprocess.run(["tar", "-C", folder, "-xf", archive], check=True)
    return f"/opt/a folder/{archive.name.removesuffix('.tar.xz')}/{NAME}"


def expect_engine_libraries(system: BareSystem) -> None:
    known = system.run("ldconfig", "-p").stdout
    missing = [library for library in ENGINE_LIBRARIES if f"{library} (" not in known]
    assert not missing, f"Recommended packages do not bring {missing}."
    assert "godot" not in system.run("dpkg-query", "--show").stdout


def play(system: BareSystem, scenario: str, program: str, *more: str) -> None:
    """Runs a scenario against the program in the system; the display, the servers and the hand that
    presses are outside."""
    output = BUILD / "played" / system.root.name
    expect_success("/usr/bin/python3", ROOT / "Tests" / "EndToEnd" / "run_scenario.py", scenario,
                   "--root", system.root, "--program", program, "--output", output, *more)


def compressed(archive: Path) -> Path:
    packed = archive.with_suffix(".tar.gz")
    if not packed.exists():
        with packed.open("wb") as file:
            subprocess.run(["gzip", "--fast", "--stdout", archive], stdout=file, check=True)
    return packed


def expect_success(*command: str | Path, folder: Path | None = None) -> None:
    ended = subprocess.run(["nice", *command], cwd=folder, stdin=subprocess.DEVNULL, text=True,
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert ended.returncode == 0, f"{command} ended with {ended.returncode}:\n{ended.stdout[-8000:]}"


ALL = {step.__name__: step for step in
       (build, rebuild, lint, install, upgrade, purge, bundle, layouts, beside, sign)}
