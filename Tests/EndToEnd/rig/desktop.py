# SPDX-License-Identifier: MIT
"""A desktop of the scenario's own: a display in memory, a session bus, an accessibility bus."""

import os
import re
import subprocess
from pathlib import Path

from rig import window_manager
from rig.waiting import PATIENCE, wait_for

SCREEN = "1920x1080x24"


class Desktop:
    """Starts with the given environment and adds to it what programs need to find this desktop.
    What the servers print and the pictures taken are kept in `output`.
    The environment becomes this process's own too, since it listens on the same buses.
    `start_windows` starts the window manager or compositor, given the path of its log file."""

    def __init__(self, environment: dict[str, str], output: Path,
                 start_windows=window_manager.start):
        self.environment = environment
        self._output = output
        self._taken = 0
        self._start_display()
        bus = f"unix:path={environment['XDG_RUNTIME_DIR']}/bus"
        _, environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_telling(
            ["dbus-daemon", "--session", "--nofork", f"--address={bus}", "--print-address={}"])
        environment["DBUS_SYSTEM_BUS_ADDRESS"] = environment["DBUS_SESSION_BUS_ADDRESS"]
        environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ.clear()
        os.environ.update(environment)
        self._start_accessibility_bus()
        start_windows(output / "window-manager.txt")

    def lose_display(self) -> None:
        """Ends the display as a crash of its server would."""
        self._display.kill()
        self._display.wait()

    def enlarge_display(self) -> None:
        """Starts a display for windows of twice the scale, in place of the first one."""
        self.lose_display()
        self._start_display("2600x2000x24")
        os.environ["DISPLAY"] = self.environment["DISPLAY"]

    def replace_display(self) -> None:
        """Starts another display after one that was lost."""
        self._start_display()
        os.environ["DISPLAY"] = self.environment["DISPLAY"]
        window_manager.start(self._output / "window-manager.txt")

    def windows(self) -> dict[str, tuple[int, int]]:
        """The sizes of the windows that can be seen on the display, by their titles."""
        found = {}
        for window in self._visible_windows():
            title = self._ask("getwindowname", window).strip()
            size = self._size(window)
            if title and size:
                found[title] = size
        return found

    def move_aside(self, title: str) -> None:
        """Moves a window to the right edge, from under the windows that open at the left."""
        window = self._window(title)
        width, _ = self._size(window)
        x = int(SCREEN.split("x")[0]) - width
        subprocess.run(["xdotool", "windowmove", window, str(x), "0"], check=True)

    def close(self, title: str) -> None:
        """Asks a window to close, as a window manager does when its close button is pressed."""
        from Xlib import X
        from Xlib.display import Display
        from Xlib.protocol.event import ClientMessage
        display = Display(self.environment["DISPLAY"])
        window = display.create_resource_object("window", int(self._window(title)))
        window.send_event(ClientMessage(
            window=window, client_type=display.get_atom("WM_PROTOCOLS"),
            data=(32, [display.get_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0])))
        display.sync()
        display.close()

    def cover(self, title: str) -> None:
        """Opens a window as large as the display in front of all others."""
        from Xlib import X
        from Xlib.display import Display
        # The window lasts as long as the connection.
        self._cover = Display(self.environment["DISPLAY"])
        screen = self._cover.screen()
        window = screen.root.create_window(0, 0, screen.width_in_pixels, screen.height_in_pixels,
                                           0, X.CopyFromParent)
        window.set_wm_name(title)
        window.map()
        self._cover.sync()
        wait_for(f"\"{title}\" in front", lambda: self.front() == title)

    def front(self) -> str:
        """The title of the window that lies over all others."""
        return self._ask("getwindowname", *self._visible_windows()[-1:]).strip()

    def watch_attention(self):
        """Returns a function that says whether a window has asked for attention since."""
        from Xlib import X
        from Xlib.display import Display
        display = Display(self.environment["DISPLAY"])
        display.screen().root.change_attributes(event_mask=X.StructureNotifyMask)
        display.sync()
        wanted = display.get_atom("_NET_WM_STATE_DEMANDS_ATTENTION")

        def was_wanted() -> bool:
            events = [display.next_event() for _ in range(display.pending_events())]
            return any(event.type == X.ClientMessage and wanted in event.data[1]
                       for event in events)
        return was_wanted

    def color_in(self, title: str, x: int, y: int) -> tuple[int, ...]:
        """What a window shows at a point of its own: red, green and blue."""
        from Xlib import X
        from Xlib.display import Display
        display = Display(self.environment["DISPLAY"])
        window = display.create_resource_object("window", int(self._window(title)))
        blue, green, red = window.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data[:3]
        display.close()
        return red, green, blue

    def picture_of(self, title: str) -> bytes:
        """All that a window shows now, three bytes a pixel."""
        return subprocess.run(["import", "-window", self._window(title), "-depth", "8", "rgb:-"],
                              check=True, capture_output=True).stdout

    def clipboard(self) -> str:
        """The text that any other program would now paste: nothing before the first copy."""
        return subprocess.run(["xclip", "-selection", "clipboard", "-out"],
                              capture_output=True, timeout=PATIENCE).stdout.decode()

    def take_picture(self, name: str) -> None:
        """Keeps a picture of the whole display, numbered in the order taken."""
        self._taken += 1
        subprocess.run(
            ["import", "-window", "root", str(self._output / f"{self._taken:02}-{name}.png")],
            check=True)

    def _window(self, title: str) -> str:
        """The window of that title, once there is only one that can be seen."""
        def only_one() -> str | None:
            windows = self._visible_windows(f"^{title}$")
            return windows[0] if len(windows) == 1 else None

        return wait_for(f"The window \"{title}\"", only_one)

    def _visible_windows(self, title: str = ".") -> list[str]:
        """Searches again while windows, of any title, are going: that ends a search."""
        def search() -> subprocess.CompletedProcess | None:
            found = _run_xdotool("search", "--onlyvisible", "--name", title)
            return None if "X Error" in found.stderr else found

        return wait_for("A search among the windows", search).stdout.split()

    def _size(self, window: str) -> tuple[int, int] | None:
        size = re.search(r"Geometry: (\d+)x(\d+)", self._ask("getwindowgeometry", window))
        return (int(size.group(1)), int(size.group(2))) if size else None

    def _ask(self, *question: str) -> str:
        """What xdotool answers: nothing about a window that has gone meanwhile."""
        return _run_xdotool(*question).stdout

    def _start_display(self, screen: str = SCREEN) -> None:
        # A server that resets when its last client leaves refuses clients during the reset.
        # It makes no socket file, which would lie in the machine's own temporary folder.
        self._display, number = self._start_telling(
            ["Xvfb", "-displayfd", "{}", "-screen", "0", screen,
             "-nolisten", "tcp", "-nolisten", "unix", "-noreset"])
        self.environment["DISPLAY"] = f":{number}"

    def _start_telling(self, command: list[str]) -> tuple[subprocess.Popen, str]:
        """Starts a server that writes where it can be reached to a descriptor whose number
        replaces the "{}" of its command, and returns it and that."""
        reader, writer = os.pipe()
        log = (self._output / f"{command[0]}.txt").open("w")
        server = subprocess.Popen([part.format(writer) for part in command], pass_fds=[writer],
                                  env=self.environment, stdout=log, stderr=log)
        os.close(writer)
        with os.fdopen(reader) as told:
            return server, told.readline().strip()

    def _start_accessibility_bus(self) -> None:
        """The session bus starts it when somebody asks for its address."""
        subprocess.run(
            ["dbus-send", "--session", "--print-reply", f"--reply-timeout={PATIENCE * 1000}",
             "--dest=org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress"],
            check=True, capture_output=True)


def _run_xdotool(*command: str) -> subprocess.CompletedProcess:
    return subprocess.run(["xdotool", *command], capture_output=True, text=True)
