# SPDX-License-Identifier: MIT
"""A desktop to measure the launcher on: a display, a home, and a session bus where needed."""

import contextlib
import json
import os
import signal
import subprocess

from .bench import Bench


def end(child: subprocess.Popen) -> None:
    child.send_signal(signal.SIGTERM)
    try:
        child.wait(timeout=10)
    except subprocess.TimeoutExpired:
        child.kill()
        child.wait()


@contextlib.contextmanager
def started(command: list[str], **how):
    child = subprocess.Popen(command, stdin=subprocess.DEVNULL, **how)
    try:
        yield child
    finally:
        end(child)


@contextlib.contextmanager
def display():
    """The name of a new display; it chooses a free number itself."""
    reading, writing = os.pipe()
    command = ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-noreset"]
    with started(command, pass_fds=[writing], stderr=subprocess.DEVNULL):
        os.close(writing)
        with os.fdopen(reading) as number:
            yield ":" + number.readline().strip()


@contextlib.contextmanager
def session_bus(environment: dict[str, str]):
    """Adds a session bus with the accessibility service on it to `environment`."""
    bus = ["dbus-daemon", "--session", "--nofork", "--print-address"]
    with started(
        bus, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=environment
    ) as daemon:
        environment["DBUS_SESSION_BUS_ADDRESS"] = daemon.stdout.readline().decode().strip()
        environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        service = ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"]
        with started(
            service, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        ):
            yield


def environment_for(home: str, display_name: str) -> dict[str, str]:
    """A player's environment, with a home in which nothing is installed yet."""
    folders = {
        "HOME": "",
        "XDG_DATA_HOME": "data",
        "XDG_CONFIG_HOME": "config",
        "XDG_CACHE_HOME": "cache",
        "XDG_RUNTIME_DIR": "runtime",
        "TMPDIR": "temporary",
    }
    environment = {name: f"{home}/{folder}" for name, folder in folders.items()}
    for folder in environment.values():
        os.makedirs(folder, mode=0o700, exist_ok=True)
    environment |= {
        "PATH": os.environ["PATH"],
        "LANG": "C.UTF-8",
        "DISPLAY": display_name,
        "QT_QPA_PLATFORM": "xcb",
    }
    return environment


def probe(bench: Bench, environment: dict[str, str], *words: str) -> dict:
    """What the window probe has to say."""
    output = subprocess.check_output([bench.tool("window-probe"), *words], env=environment)
    return json.loads(output)


def press_over_accessibility(environment: dict[str, str], pid: int, name: str) -> None:
    """Presses the control `name` of the program `pid`, as assistive technology does."""
    # The system's own interpreter is the one that the accessibility library's bindings are for.
    subprocess.run(
        ["/usr/bin/python3", "-m", "side_by_side.press", str(pid), name],
        cwd=os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
        env=environment,
        check=True,
    )
