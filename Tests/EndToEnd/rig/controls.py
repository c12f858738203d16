# SPDX-License-Identifier: MIT
"""What the windows of a program show, as a screen reader meets it on the accessibility bus."""

from rig.waiting import wait_for

BUTTONS = ("PUSH_BUTTON", "TOGGLE_BUTTON", "CHECK_BOX")


def load_atspi():
    """The accessibility library. It connects to the bus, which has to be there by then."""
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    # By default it takes a program that is silent for 0.8 s for one without controls.
    Atspi.set_timeout(30_000, 30_000)
    return Atspi


class Controls:
    """The controls of the program with the process number `pid`. Roles, states and actions go by
    their names on the bus."""

    def __init__(self, pid: int):
        self._atspi = load_atspi()
        self._pid = pid
        self._application = None

    def find_program(self) -> bool:
        """Whether the program is on the bus. It has to be, before anything else is asked."""
        desktop = self._atspi.get_desktop(0)
        desktop.clear_cache()
        applications = [self._if_there(lambda: desktop.get_child_at_index(index))
                        for index in range(self._if_there(desktop.get_child_count) or 0)]
        # A program that has just ended is still listed for a moment.
        self._application = next(
            (application for application in applications
             if application and self._if_there(application.get_process_id) == self._pid), None)
        if self._application:
            self._application.set_cache_mask(self._atspi.Cache.NONE)
        return self._application is not None

    def showing(self, name: str | None = None, role: str | None = None, within=None) -> list:
        """The controls that are showing now, of that name and role where given."""
        wanted = getattr(self._atspi.Role, role) if role else None

        def matches(control) -> bool:
            return ((name is None or control.get_name() == name)
                    and (wanted is None or control.get_role() == wanted)
                    and self.has(control, "SHOWING"))

        return [control for control in self._below(within or self._application)
                if self._if_there(lambda: matches(control))]

    def active(self, name: str, role: str):
        """The window of that name and role, if the keyboard speaks to it now."""
        return next((window for window in self.showing(name, role) if self.has(window, "ACTIVE")),
                    None)

    def button(self, name: str, within=None):
        """The button of that name that can be pressed, if there is one."""
        buttons = [button for role in BUTTONS for button in self.showing(name, role, within)]
        return next((button for button in buttons if self.has(button, "ENABLED")), None)

    def press(self, name: str, within=None) -> None:
        """Presses the button of that name, once it is there and enabled."""
        button = wait_for(f"A button \"{name}\" that can be pressed",
                          lambda: self.button(name, within))
        button.get_action_iface().do_action(0)

    def right_end(self, name: str) -> tuple[int, int]:
        """A point of the screen at the right end of the button of that name."""
        button = wait_for(f"A button \"{name}\" that can be pressed", lambda: self.button(name))
        place = self._atspi.Component.get_extents(button, self._atspi.CoordType.SCREEN)
        return place.x + place.width - 8, place.y + place.height // 2

    def labels(self, within=None) -> list[str]:
        return [label.get_name() for label in self.showing(role="LABEL", within=within)]

    def text(self, name: str) -> str:
        control = wait_for(f"The text \"{name}\"", lambda: self.showing(name, "TEXT"))[0]
        return self._atspi.Text.get_text(control, 0, -1)

    def focused(self) -> str:
        """The name of the control that the keyboard speaks to, in the window that it speaks to."""
        def is_in_closed_list(control) -> bool:
            # Qt 6.8 says of the current item of a closed list that it shows and has the focus.
            return (control.get_role() == self._atspi.Role.LIST_ITEM
                    and not self.has(control.get_parent(), "SHOWING"))

        names = [self._if_there(control.get_name) for control in self._below(self._application)
                 if self.has(control, "FOCUSED") and self.has(control, "SHOWING")
                 and not self._if_there(lambda: is_in_closed_list(control))]
        return next((name for name in reversed(names) if name), "")

    def has(self, control, state: str) -> bool:
        return bool(self._if_there(lambda: control.get_state_set().contains(
            getattr(self._atspi.StateType, state))))

    def act(self, control, action: str) -> None:
        actions = control.get_action_iface()
        names = [actions.get_action_name(index) for index in range(actions.get_n_actions())]
        actions.do_action(names.index(action))

    def _below(self, control):
        yield control
        for index in range(self._if_there(control.get_child_count) or 0):
            child = self._if_there(lambda: control.get_child_at_index(index))
            if child:
                yield from self._below(child)

    @staticmethod
    def _if_there(ask):
        """What `ask` returns, or nothing where the control has gone meanwhile."""
        from gi.repository import GLib
        try:
            return ask()
        except GLib.Error:
            return None
