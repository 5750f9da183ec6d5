"""The installed program is started by the session bus, as desktops start it from their lists of applications."""

import os
import pathlib
import subprocess
import tempfile
import unittest.mock

from gi.repository import Gio, GLib

import accessible
import desktop
from desktop import wait_until
from quillon import OBJECT, SERVICE, QuillonTestCase, Overlay, owns_name, request, write_settings

BUILD = desktop.PROGRAMS.parent
SERVICES = pathlib.Path(os.environ.get("HOME", "/nonexistent")).parent / "services"  # where the bus looks
TITLES = {"library": "Quillon Library", "practice": "Practice", "settings": "Quillon Settings"}
WELCOME = "Welcome to Quillon"


def ask_bus(method, arguments=None):
    return accessible.ask(accessible.session_bus(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
                          "org.freedesktop.DBus", method, arguments)


class ActivationTest(QuillonTestCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = tempfile.TemporaryDirectory(prefix="quillon-installed-")
        cls.addClassCleanup(folder.cleanup)
        cls.installed = pathlib.Path(folder.name)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.installed], check=True, capture_output=True,
                       stdin=subprocess.DEVNULL, timeout=60)
        file = cls.installed / f"share/dbus-1/services/{SERVICE}.service"
        (SERVICES / file.name).symlink_to(file)
        cls.addClassCleanup((SERVICES / file.name).unlink)
        ask_bus("ReloadConfig")
        path = unittest.mock.patch.dict(os.environ, PATH=f"{cls.installed}/bin:{os.environ['PATH']}")
        path.start()
        cls.addClassCleanup(path.stop)
        # As a desktop does for what it starts through the bus.
        ask_bus("UpdateActivationEnvironment", GLib.Variant("(a{ss})", (dict(os.environ),)))

    def setUp(self):
        super().setUp()
        self.assertFalse(owns_name(SERVICE))
        self.addCleanup(self.end)
        self.entry = Gio.DesktopAppInfo.new_from_filename(
            str(self.installed / f"share/applications/{SERVICE}.desktop"))

    @staticmethod
    def end():
        if owns_name(SERVICE):
            accessible.ask(accessible.session_bus(), SERVICE, OBJECT, "org.freedesktop.Application", "ActivateAction",
                           GLib.Variant("(sava{sv})", ("quit", [], {})))
            wait_until("the program to end", lambda: not owns_name(SERVICE))

    def pid(self):
        wait_until("the program on the session bus", lambda: owns_name(SERVICE))
        return ask_bus("GetConnectionUnixProcessID", GLib.Variant("(s)", (SERVICE,)))[0]

    def wait_in_front(self, title):
        wait_until(f"{title} in front", lambda: desktop.active_title() == title)

    def launch(self):
        self.assertTrue(self.entry.get_boolean("DBusActivatable"))
        self.assertTrue(self.entry.launch([], None))

    def test_an_action_starts_the_program_and_opens_its_window(self):
        for action, title in TITLES.items():
            with self.subTest(action):
                self.entry.launch_action(action, None)
                self.wait_in_front(title)
                self.assertEqual(pathlib.Path(f"/proc/{self.pid()}/exe").resolve(),
                                 (self.installed / "bin/quillon").resolve())
                self.assertEqual(len(desktop.visible_windows(self.pid())), 1, "and nothing else")
                self.end()

    def test_show_starts_the_program_with_the_sheet_of_the_application_in_front(self):
        self.start_application("geany", "--new-instance", "--no-session")
        self.entry.launch_action("show", None)
        overlay = Overlay(self.pid())
        wait_until("the overlay", overlay.is_open)
        wait_until("geany's commands", lambda: "New, ⌃N" in overlay.rows())

    def test_to_be_launched_is_to_be_started(self):
        self.launch()
        pid = self.pid()
        command = pathlib.Path(f"/proc/{pid}/cmdline").read_bytes().split(b"\0")[:-1]
        self.assertEqual(command, [bytes(self.installed / "bin/quillon"), b"--service"], "by the bus")
        wait_until("it to watch the keyboard", lambda: request("IsWatching")[0])
        desktop.stays("no window", lambda: not desktop.visible_windows(pid), 5)
        self.launch()
        wait_until("the menu of the one that runs", lambda: desktop.visible_windows(pid))
        self.assertEqual(self.pid(), pid)
        desktop.press("Escape")

    def test_whoever_has_not_completed_the_welcome_gets_it(self):
        write_settings()
        self.launch()
        self.wait_in_front(WELCOME)


if __name__ == "__main__":
    desktop.main()
