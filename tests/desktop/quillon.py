"""The program as its user meets it: the overlay, and the command line."""

import contextlib
import json
import os
import pathlib
import re
import shutil
import subprocess

from gi.repository import GLib

import accessible
import desktop
from desktop import wait_until

QUILLON = str(desktop.PROGRAMS / "quillon")
LEARNED = pathlib.Path(os.environ.get("XDG_DATA_HOME", "/nonexistent"), "app.quillon.Quillon")
SETTINGS = pathlib.Path(os.environ.get("XDG_CONFIG_HOME", "/nonexistent"), "app.quillon.Quillon", "settings.ini")
PRIVATE_PREFIX = "quillon-desktop-"  # of the folder that scripts/private-desktop makes
HOLD_DELAY = 0.8  # seconds, the default
NO_OVERLAY_FOR = HOLD_DELAY + 0.7  # to be sure that none comes

SERVICE, OBJECT, INTERFACE = "app.quillon.Quillon", "/app/quillon/Quillon", "app.quillon.Quillon1"
STALL_METER = "/app/quillon/StallMeter", "app.quillon.StallMeter1"


class Ran:
    """What a command returned."""

    def __init__(self, *arguments, environment=None, without=(), within=30):
        variables = {name: value for name, value in (os.environ | (environment or {})).items() if name not in without}
        result = subprocess.run([QUILLON, *map(str, arguments)], env=variables, text=True, capture_output=True,
                                stdin=subprocess.DEVNULL, check=False, timeout=within)
        self.status, self.output, self.errors = result.returncode, result.stdout, result.stderr

    def __repr__(self):
        return f"status {self.status}\n{self.output}\n{self.errors}"


def sheet(*arguments):
    """The sheet that the program prints for such as `--app NAME`; AssertionError when it prints none."""
    for _ in range(5):  # on a busy machine an application may fall silent for a second
        ran = Ran("sheet", *arguments, "--format", "json")
        if "the sheet is not complete" not in ran.errors:
            break
    if ran.status != 0:
        raise AssertionError(f"quillon sheet {arguments}: {ran}")
    return json.loads(ran.output)


def doctor(**options):
    """What the checkup found, by subject: "ok answers", "missing cannot be reached"."""
    lines = Ran("doctor", **options).output.splitlines()
    found = (re.fullmatch(r"(ok|limited|missing) +(.+?)  +(.+)", line) for line in lines)
    return {match[2]: f"{match[1]} {match[3]}" for match in found if match}


SIGNS = ((1, "⌃"), (2, "⌥"), (4, "⇧"), (8, "⌘"))
KEY_SIGNS = {
    "returnKey": "↩", "enter": "⌤", "tab": "⇥", "backTab": "⇤", "space": "Space", "delete": "⌫",
    "forwardDelete": "⌦", "escape": "⎋", "clear": "⌧", "left": "←", "right": "→", "up": "↑", "down": "↓",
    "pageUp": "⇞", "pageDown": "⇟", "home": "↖", "end": "↘", "help": "Help", "eject": "⏏",
}


def display(shortcut):
    """⇧⌃S from a shortcut in its stored form."""
    (kind, value), = shortcut["key"].items()
    key = value["_0"] if kind == "char" else KEY_SIGNS.get(value["_0"], value["_0"].upper())
    return "".join(sign for bit, sign in SIGNS if shortcut["modifiers"] & bit) + key


def row(entry):
    """How the overlay reads a command aloud: title, submenus, keys."""
    path = entry["path"]
    return ", ".join([path[-1], *([" › ".join(path[1:-1])] if len(path) > 2 else []), display(entry["shortcut"])])


class Overlay:
    """The panel of a running program, read from the screen and from its accessible tree."""

    def __init__(self, pid):
        self.pid = pid

    def windows(self):
        """The panel's window as (id, x, y, width, height), in a list that is empty while it is closed."""
        return [window for window in desktop.visible_windows(self.pid) if window[3] > 300 and window[4] > 300]

    def is_open(self):
        return bool(self.windows())

    def is_closed(self):
        return not self.windows()

    def texts(self):
        return desktop.shown_texts(self.pid)

    def says(self, text):
        return any(text == shown for shown in self.texts())

    def rows(self):
        """Every command in the panel, also those that have to be scrolled to."""
        for found in desktop.shown(self.pid):
            if found.role() == "list" and found.name() == "Shortcuts":
                return [item.name() for item in found.children() if item.role() == "list item"]
        return []

    def centre(self):
        _, x, y, width, height = self.windows()[0]
        return x + width // 2, y + height // 2

    def footer(self):
        """A point of the panel where there is no command."""
        hint = next(found for found in desktop.shown(self.pid) if " to close" in found.name())
        return hint.centre()


def is_private(path):
    """Whether it lies in a private desktop's own folder, and not in that of whoever runs a test without one."""
    home = pathlib.Path(os.environ.get("HOME", "/")).resolve()
    base = home.parent
    return base.name.startswith(PRIVATE_PREFIX) and path.resolve().is_relative_to(home)


def write_settings(**values):
    """The settings that the next start finds, and no others."""
    SETTINGS.parent.mkdir(parents=True, exist_ok=True)
    SETTINGS.write_text("\n".join(["[General]", *(f"{name}={value}" for name, value in values.items()), ""]),
                        encoding="utf-8")


class QuillonTestCase(desktop.DesktopTestCase):
    def setUp(self):
        """What an earlier test's program has learned is none of this test's business; its user knows the welcome."""
        super().setUp()
        self.assertTrue(is_private(LEARNED), "these tests delete what was learned: run them by scripts/private-desktop")
        shutil.rmtree(LEARNED, ignore_errors=True)
        write_settings(onboarded="true")

    @staticmethod
    def program():
        return QUILLON

    def start_quillon(self, *arguments, environment=None):
        """Starts the program and waits until other programs can call it."""
        program = self.start(QUILLON, *arguments, environment=environment)
        wait_until("quillon on the session bus", lambda: owns_name(SERVICE) or not program.is_running())
        self.assertTrue(program.is_running(), program.messages.read_text())
        return self.adopt(program)

    def adopt(self, program):
        """Takes a program that was started for the one that the test looks at."""
        self.quillon, self.overlay = program, Overlay(program.pid)
        return program

    def wait_watching(self):
        """Until held keys are noticed: what is pressed before takes a quarter of a second to be found."""
        wait_until("quillon to watch the keyboard", lambda: request("IsWatching")[0])

    @contextlib.contextmanager
    def overlay_held_open(self):
        with desktop.held("Super_L"):
            wait_until("the overlay", self.overlay.is_open)
            yield self.overlay

    def wait_closed(self):
        wait_until("the overlay to close", self.overlay.is_closed)

    def assert_stays_closed(self):
        desktop.stays("the overlay is closed", self.overlay.is_closed, NO_OVERLAY_FOR)

    def wait_for_rows(self, what, condition):
        """Waits for commands in the overlay that fulfil `condition`; shows what was there if they do not come."""
        seen = []

        def looked():
            seen[:] = self.overlay.rows()
            return condition(seen)

        try:
            wait_until(what, looked)
        except AssertionError as error:
            raise AssertionError(f"{error}; the overlay holds {seen or self.overlay.texts()}") from None
        return seen


def owns_name(name):
    """Whether someone on the session bus has this name."""
    return accessible.ask(accessible.session_bus(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
                          "org.freedesktop.DBus", "NameHasOwner", GLib.Variant("(s)", (name,)))[0]


def request(method):
    """Calls the running program; GLib.Error when it does not answer in time."""
    return accessible.ask(accessible.session_bus(), SERVICE, OBJECT, INTERFACE, method)


def measure_stalls():
    """Begins to measure how long the running program keeps its user waiting."""
    accessible.ask(accessible.session_bus(), SERVICE, *STALL_METER, "Start")


def longest_stall():
    """The longest time since then, in milliseconds."""
    return accessible.ask(accessible.session_bus(), SERVICE, *STALL_METER, "LongestMilliseconds")[0]
