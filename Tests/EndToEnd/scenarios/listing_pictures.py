# SPDX-License-Identifier: MIT
"""Not a test: takes the pictures that software centres and the README show, of the window as a desktop
draws it, with its frame and its shadow. Scripts/take-pictures runs it."""

import signal
import subprocess
import time

from rig import setup
from rig.appearance import DARK, LIGHT, Appearance
from rig.launcher import TITLE
from rig.waiting import wait_for
from Xlib import X, Xatom
from Xlib.display import Display

PREFERENCES = {"light": LIGHT, "dark": DARK}
# What the window manager draws beyond the window and its frame.
SHADOW = 60


def run(world):
    appearance = Appearance(LIGHT)
    world.desktop.enlarge_display()
    start_window_manager(world)
    # Without a text of its own the game is described as the launcher knows it.
    plain = {"../README.org": b"", "../LICENSE": b""}
    world.offer_game(more=plain)
    world.offer_scripted_engine()
    world.web.start(release_rate="4k")
    for name, preference in PREFERENCES.items():
        appearance.change(preference)
        open_launcher(world)
        world.launcher.press("Play")
        world.launcher.wait_for_label(setup.ENGINE)
        time.sleep(15)  # For a bar that has got somewhere.
        take(world, f"downloading-{name}")
        world.launcher.press("Cancel")
        world.launcher.wait_for_label("Not downloaded")
        close_launcher(world)

    subprocess.run(["rm", "-r", world.home.root], check=True)
    world.install(more=plain)
    for name, preference in PREFERENCES.items():
        appearance.change(preference)
        open_launcher(world)
        world.launcher.wait_for_label("Ready")
        take(world, f"ready-{name}")
        close_launcher(world)


def start_window_manager(world):
    for name, kind, value in (("theme", "string", "Default-xhdpi"),
                              ("use_compositing", "bool", "true")):
        subprocess.run(["xfconf-query", "--channel", "xfwm4", "--property", f"/general/{name}",
                        "--create", "--type", kind, "--set", value], check=True)
    with (world.output / "xfwm4.txt").open("w") as printed:
        # What waits for the screen's next refresh does not work on a display in memory.
        subprocess.Popen(["xfwm4", "--vblank=off"], stdout=printed, stderr=printed)
    wait_for("The compositor", has_compositor)


def has_compositor():
    display = Display()
    owner = display.get_selection_owner(display.intern_atom("_NET_WM_CM_S0"))
    display.close()
    return owner != X.NONE


def open_launcher(world):
    world.launcher = world.start_launcher(QT_SCALE_FACTOR="2", QT_FONT_DPI="96")
    world.launcher.wait_for_window()
    window = window_on_display()
    subprocess.run(["xdotool", "windowmove", window, "300", "300"], check=True)


def close_launcher(world):
    world.launcher.signal(signal.SIGTERM)
    assert world.launcher.wait_for_end() == 0


def take(world, name):
    """Takes the window on black and on white: what differs between the two is the shadow's and the
    corners' transparency."""
    time.sleep(1)  # For the animation of the window's opening, and of the focus.
    world.launcher.signal(signal.SIGSTOP)
    box = surroundings()
    taken = []
    for color, pixel in (("black", 0), ("white", 0xFFFFFF)):
        taken.append(world.output / f"{name}-on-{color}.png")
        paint_background(pixel)
        time.sleep(1)
        subprocess.run(["import", "-window", "root", "-crop", box, "+repage", taken[-1]],
                       check=True)
    world.launcher.signal(signal.SIGCONT)
    black, white = taken
    alpha = world.output / f"{name}-alpha.png"
    subprocess.run(["convert", white, black, "-compose", "difference", "-composite",
                    "-colorspace", "gray", "-negate", alpha], check=True)
    subprocess.run(["convert", black, alpha, "-compose", "DivideSrc", "-composite",
                    alpha, "-alpha", "off", "-compose", "CopyOpacity", "-composite",
                    "-trim", "+repage", "-strip", world.output / f"{name}.png"], check=True)


def paint_background(pixel):
    """Compositors draw the picture that this property names."""
    display = Display()
    root = display.screen().root
    size = display.screen().width_in_pixels, display.screen().height_in_pixels
    picture = root.create_pixmap(*size, display.screen().root_depth)
    picture.fill_rectangle(picture.create_gc(foreground=pixel), 0, 0, *size)
    root.change_property(display.intern_atom("_XROOTPMAP_ID"), Xatom.PIXMAP, 32, [picture.id])
    display.set_close_down_mode(X.RetainPermanent)
    display.sync()
    display.close()


def window_on_display():
    return ask("search", "--onlyvisible", "--name", f"^{TITLE}$").split()[-1]


def ask(*question):
    return subprocess.run(["xdotool", *question], capture_output=True, text=True,
                          check=True).stdout


def surroundings():
    """The part of the display that the window, its frame and its shadow take up."""
    geometry = ask("getwindowgeometry", "--shell", window_on_display())
    values = dict(line.split("=") for line in geometry.splitlines())
    x, y = int(values["X"]) - SHADOW, int(values["Y"]) - 2 * SHADOW
    width, height = int(values["WIDTH"]) + 2 * SHADOW, int(values["HEIGHT"]) + 3 * SHADOW
    return f"{width}x{height}+{x}+{y}"
