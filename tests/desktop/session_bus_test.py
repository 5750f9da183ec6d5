"""A session bus that does not answer, and one that is lost and comes back."""

import contextlib
import pathlib
import socket
import subprocess
import tempfile

from gi.repository import Gio, GLib

import desktop
from desktop import wait_until
from quillon import INTERFACE, OBJECT, QUILLON, SERVICE, QuillonTestCase, Ran, doctor

BOUND = 10.0  # seconds that a command may take where the bus does not answer


class Bus:
    """A session bus at a place of its own, where it can end and come again."""

    def __init__(self, folder):
        self.path = pathlib.Path(folder, "bus")
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.path}"}
        self.process = None

    def start(self):
        self.process = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={self.path}"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until("the bus", self.path.exists)

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.path.unlink(missing_ok=True)

    def connect(self):
        return Gio.DBusConnection.new_for_address_sync(
            f"unix:path={self.path}", Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)

    @staticmethod
    def ask(connection, method, arguments):
        return connection.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                                    arguments, None, 0, 5000, None).unpack()[0]

    def owner(self):
        """The process that is the instance on this bus; None when none is."""
        with contextlib.suppress(GLib.Error):
            return self.ask(self.connect(), "GetConnectionUnixProcessID", GLib.Variant("(s)", (SERVICE,)))
        return None

    def instance_answers(self):
        """Whether the instance has begun to answer, with all of its own and Qt's start behind it."""
        with contextlib.suppress(GLib.Error):
            self.connect().call_sync(SERVICE, OBJECT, INTERFACE, "IsWatching", None, None, 0, 5000, None)
            return True
        return False


class SilentBusTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        folder = self.enterContext(tempfile.TemporaryDirectory())
        listening = socket.socket(socket.AF_UNIX)
        self.addCleanup(listening.close)
        listening.bind(f"{folder}/bus")
        listening.listen(16)
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={folder}/bus"}

    def ran(self, *arguments):
        return Ran(*arguments, environment=self.environment, within=BOUND)

    def test_commands_say_so_in_time(self):
        for command in ("sheet", "apps"):
            ran = self.ran(command)
            self.assertEqual((ran.status, ran.output), (4, ""), ran)
            self.assertIn("the session bus does not answer", ran.errors)
        ran = self.ran("quit")
        self.assertEqual(ran.status, 1)
        self.assertIn("the session cannot be reached", ran.errors)

    def test_the_checkup_says_so_in_time(self):
        found = doctor(environment=self.environment, within=BOUND)
        self.assertEqual(found["Session bus"], "missing takes connections and does not answer")

    def test_the_program_starts_all_the_same_and_says_so(self):
        program = self.start(QUILLON, "show", "--sample", environment=self.environment)
        wait_until("the overlay", lambda: desktop.visible_windows(program.pid), within=BOUND)
        self.assertIn("the session bus cannot be reached", program.messages.read_text())
        second = self.ran()
        self.assertEqual(second.status, 1, second)
        self.assertIn("the running instance does not answer", second.errors)
        self.assertTrue(program.is_running())


class LostBusTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.bus = Bus(self.enterContext(tempfile.TemporaryDirectory()))
        self.bus.start()
        self.addCleanup(self.bus.kill)
        self.first = self.start(QUILLON, "--verbose", environment=self.bus.environment)
        wait_until("the instance", self.bus.instance_answers)

    def test_the_program_comes_back_to_a_bus_that_was_lost(self):
        self.bus.kill()
        desktop.stays("the program runs", self.first.is_running, 0.5)
        self.bus.start()
        earlier = self.first.messages.stat().st_size
        wait_until("the same process on the new bus", lambda: self.bus.owner() == self.first.pid)
        self.assertIn("held keys are noticed", self.first.messages.read_text()[earlier:], "it tells as much as before")
        ran = Ran("quit", environment=self.bus.environment)
        self.assertEqual(ran.status, 0, ran)
        self.assertEqual(self.first.process.wait(timeout=30), 0)

    def test_a_new_start_takes_over(self):
        self.bus.kill()
        self.first.stop()  # or it would come back by itself
        self.bus.start()
        second = self.start(QUILLON, environment=self.bus.environment)
        wait_until("the second on the new bus", lambda: self.bus.owner() == second.pid)
        wait_until("the first to end", lambda: not self.first.is_running(), within=5)
        desktop.stays("the second runs", second.is_running, 0.5)

    def test_whoever_finds_another_on_the_bus_gives_way(self):
        self.bus.kill()
        self.bus.start()
        other = self.bus.connect()
        self.assertEqual(self.bus.ask(other, "RequestName", GLib.Variant("(su)", (SERVICE, 4))), 1)
        self.assertEqual(self.first.process.wait(timeout=10), 0)


if __name__ == "__main__":
    desktop.main()
