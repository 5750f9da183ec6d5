"""The private desktop comes up whole, passes on what its command returns, and leaves nothing behind."""

import os
import pathlib
import signal
import subprocess
import tempfile
import time
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts/private-desktop"


def processes_marked(mark):
    """The processes that carry QUILLON_TEST_MARK=`mark` in their environment, by id, with their command."""
    found = {}
    for entry in pathlib.Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        try:
            if f"QUILLON_TEST_MARK={mark}".encode() in (entry / "environ").read_bytes().split(b"\0"):
                found[int(entry.name)] = (entry / "cmdline").read_bytes().replace(b"\0", b" ").decode()
        except OSError:
            continue
    return found


class PrivateDesktopTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="quillon-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.mark = self.folder.name
        self.environment = os.environ | {
            "TMPDIR": str(self.folder),
            "QUILLON_TEST_MARK": self.mark,
            "DISPLAY": ":12345",
            "WAYLAND_DISPLAY": "wayland-of-the-caller",
            "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent",
            "AT_SPI_BUS_ADDRESS": "unix:path=/nonexistent",
        }

    def run_in(self, *command, options=()):
        return subprocess.run([SCRIPT, *options, "--", *command], env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=60)

    def shell(self, script, options=()):
        return self.run_in("sh", "-c", script, options=options)

    def assert_nothing_left(self):
        self.assertEqual(processes_marked(self.mark), {})
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_passes_on_output_and_status(self):
        result = self.shell("echo to output; echo to errors >&2; exit 7")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (7, "to output\n", "to errors\n"))
        self.assert_nothing_left()

    def test_status_of_a_killed_command_is_that_of_a_shell(self):
        self.assertEqual(self.shell("kill -KILL $$").returncode, 128 + signal.SIGKILL)

    def test_a_command_that_does_not_exist_is_status_127(self):
        self.assertEqual(self.run_in("no-such-command-here").returncode, 127)
        self.assert_nothing_left()

    def test_nothing_of_the_callers_desktop_is_seen(self):
        seen = self.shell("env; stat -c %a $HOME $XDG_RUNTIME_DIR").stdout
        for leaked in ("12345", "wayland-of-the-caller", "/nonexistent", f"HOME={os.environ.get('HOME')}\n"):
            self.assertNotIn(leaked, seen)
        self.assertIn("QT_QPA_PLATFORM=xcb\n", seen)
        self.assertTrue(seen.endswith("700\n700\n"), seen)

    def test_window_manager_test_extension_and_accessibility_are_there(self):
        result = self.shell("""
            xprop -root _NET_SUPPORTING_WM_CHECK &&
            xdpyinfo -queryExtensions | grep -E 'XTEST|XKEYBOARD|XInputExtension' &&
            xdpyinfo | grep dimensions &&
            dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
                org.freedesktop.DBus.Properties.Get string:org.a11y.Status string:IsEnabled""",
                            options=["--size", "800x600"])
        self.assertEqual(result.returncode, 0, result.stderr)
        for expected in ("window id #", "XTEST", "XKEYBOARD", "XInputExtension", "800x600", "boolean true"):
            self.assertIn(expected, result.stdout)

    def test_without_window_manager_and_accessibility(self):
        result = self.shell("""
            xprop -root _NET_SUPPORTING_WM_CHECK
            dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress""",
                            options=["--no-wm", "--accessibility", "absent"])
        self.assertNotIn("window id #", result.stdout)
        self.assertIn("org.freedesktop.DBus.Error.ServiceUnknown", result.stderr)

    def test_processes_that_hide_or_refuse_to_end_are_ended(self):
        result = self.shell("""
            (trap '' TERM; while :; do sleep 1; done) &
            setsid sh -c 'sh -c "sleep 600" & sleep 0.1' &
            sleep 600 & kill -STOP $!""")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assert_nothing_left()

    def start(self, until, *command):
        """Starts the desktop and returns its process as soon as `until` holds."""
        process = subprocess.Popen([SCRIPT, "--", *command], env=self.environment, stdin=subprocess.DEVNULL)
        deadline = time.monotonic() + 30
        while not until():
            self.assertLess(time.monotonic(), deadline, "the desktop did not get that far")
            time.sleep(0.005)
        return process

    def assert_ends_by(self, number, process):
        process.send_signal(number)
        self.assertEqual(process.wait(timeout=30), 128 + number)
        self.assert_nothing_left()

    def test_signals_take_everything_down(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(signal=number.name):
                command_runs = lambda: "sleep 654 " in processes_marked(self.mark).values()
                self.assert_ends_by(number, self.start(command_runs, "sleep", "654"))

    def test_a_signal_while_it_is_coming_up_takes_everything_down(self):
        def exists(pattern):
            return lambda: any(self.folder.glob(pattern))

        for stage in ("quillon-desktop-*", "*/log", "*/session.conf", "*/run/bus", "*/run/at-spi"):
            with self.subTest(stage=stage):
                self.assert_ends_by(signal.SIGTERM, self.start(exists(stage), "sleep", "600"))

    def test_a_desktop_that_cannot_come_up_is_status_125(self):
        bare = self.folder / "bin"
        bare.mkdir()
        self.environment["PATH"] = str(bare)
        result = self.run_in("true")
        (bare).rmdir()
        self.assertEqual(result.returncode, 125)
        self.assertIn("Xvfb", result.stderr)
        self.assert_nothing_left()


if __name__ == "__main__":
    unittest.main()
