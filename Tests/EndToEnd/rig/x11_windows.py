# SPDX-License-Identifier: MIT
"""The windows on an X11 display, by their titles."""

from dataclasses import dataclass

# In pixels. Without a window manager, Qt leaves ten of them for a frame.
MAX_DEVIATION = 12


@dataclass(frozen=True)
class X11Window:
    """Its place on the screen is without the frame."""

    title: str
    has_icon: bool
    x: int
    y: int
    width: int
    height: int

    def is_centered_over(self, other: "X11Window") -> bool:
        """Whether its middle is on the other window's vertical axis, and inside that window. Some
        desktops put a dialog higher than the middle."""
        x, y = self.x + self.width // 2, self.y + self.height // 2
        return (abs(x - other.x - other.width // 2) <= MAX_DEVIATION
                and other.y < y < other.y + other.height)


def visible_windows(*titles: str) -> list[X11Window]:
    """Returns those with one of the titles, from the back to the front."""
    from Xlib import X
    from Xlib.display import Display
    from Xlib.error import BadDrawable, BadWindow
    display = Display()
    root = display.screen().root

    def read(window, name: str) -> bytes:
        value = window.get_full_property(display.get_atom(name), X.AnyPropertyType)
        return bytes(value.value) if value else b""

    def windows_below(window):
        try:
            if window.get_attributes().map_state == X.IsViewable:
                yield describe(window)
            children = window.query_tree().children
        except (BadDrawable, BadWindow):
            return  # It has closed meanwhile.
        for child in children:
            yield from windows_below(child)

    def describe(window) -> X11Window:
        place, size = root.translate_coords(window, 0, 0), window.get_geometry()
        return X11Window(read(window, "_NET_WM_NAME").decode(), bool(read(window, "_NET_WM_ICON")),
                         place.x, place.y, size.width, size.height)

    try:
        return [window for window in windows_below(root) if window.title in titles]
    finally:
        display.close()
