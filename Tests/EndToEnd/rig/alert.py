# SPDX-License-Identifier: MIT
"""A question of the launcher's that has to be answered before anything else."""

from rig import product
from rig.controls import Controls
from rig.waiting import wait_for


class Alert:
    """Waits for the alert that is opening, until the keyboard speaks to it."""

    def __init__(self, controls: Controls):
        self._controls = controls
        self._alert = wait_for("An alert", lambda: controls.active(product.NAME, "ALERT"))

    def texts(self) -> list[str]:
        """Its title and its message."""
        return self._controls.labels(within=self._alert)

    def buttons(self) -> list[str]:
        return [button.get_name()
                for button in self._controls.showing(role="PUSH_BUTTON", within=self._alert)]

    def answer(self, button: str) -> None:
        self._controls.press(button, within=self._alert)
        self.wait_until_gone()

    def wait_until_gone(self) -> None:
        wait_for("The end of the alert", lambda: not self._controls.showing(role="ALERT"))
