"""What the desktop tests do and see: applications, keys and buttons, windows, accessible trees, the screen.

To be used inside of scripts/private-desktop. Everything that has to be waited for is waited for by looking, with
a deadline; nothing sleeps and hopes.
"""

import contextlib
import faulthandler
import os
import pathlib
import signal
import subprocess
import time
import types
import unittest

from accessible import application_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = pathlib.Path(os.environ.get("QUILLON_BIN", ROOT / "build/dev/bin")).resolve()
SCREENSHOTS = PROGRAMS.parent / "desktop-tests"
MOST_LAST_WORDS = 40


def wait_until(what, condition, within=15.0):
    """The first true value of `condition`; AssertionError naming `what` when there is none in time."""
    deadline = time.monotonic() + within
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"not within {within:g} seconds: {what}")
        time.sleep(0.02)


def happens(condition, within):
    """Whether the condition comes true in that time."""
    try:
        return bool(wait_until("it", condition, within=within))
    except AssertionError:
        return False


def stays(what, condition, seconds):
    """Asserts that `condition` is true for all of that time."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"ceased to be so: {what}")
        time.sleep(0.02)


# --- Keys and buttons ----------------------------------------------------------------------------------------


def xdotool(*arguments, check=True):
    result = subprocess.run(["xdotool", *map(str, arguments)], text=True, capture_output=True, check=False,
                            stdin=subprocess.DEVNULL, timeout=20)
    if check and result.returncode != 0:
        raise AssertionError(f"xdotool {arguments}: {result.stderr or result.returncode}")
    return result.stdout.strip()


@contextlib.contextmanager
def held(key):
    """Holds a key down, such as Super_L."""
    xdotool("keydown", key)
    try:
        yield
    finally:
        xdotool("keyup", key)


def finger_moves():
    """The time that no person is faster than between two keys; input at the very same moment spoils no hold."""
    time.sleep(0.2)


def press(*keys):
    xdotool("key", *keys)


def type_text(text):
    xdotool("type", "--delay", "30", text)


def click(x, y, button=1):
    """The X server takes the move and the button one after the other. xdotool is not told to wait for the move: where
    the pointer is there already, it would wait for fifteen seconds."""
    xdotool("mousemove", x, y, "click", button)


def scroll():
    xdotool("click", 5)


# --- Windows ------------------------------------------------------------------------------------------------


def differing_pixels(before, after):
    """How many pixels differ between two pictures of the screen."""
    result = subprocess.run(["compare", "-metric", "AE", str(before), str(after), "null:"], text=True,
                            capture_output=True, stdin=subprocess.DEVNULL, check=False, timeout=30)
    return int(float(result.stderr.split()[0]))


def brightness(picture, area):
    """From 0, black, to 1, white: the mean of the area (x, y, width, height) of a picture."""
    x, y, width, height = area
    result = subprocess.run(["convert", str(picture), "-crop", f"{width}x{height}+{x}+{y}", "-colorspace", "Gray",
                             "-format", "%[fx:mean]", "info:"], text=True, capture_output=True, check=True,
                            stdin=subprocess.DEVNULL, timeout=30)
    return float(result.stdout)


def visible_windows(pid):
    """The X windows of a process that are on the screen, as (id, x, y, width, height)."""
    windows = []
    for window in xdotool("search", "--onlyvisible", "--pid", pid, check=False).split():
        facts = xdotool("getwindowgeometry", "--shell", window, check=False)
        values = dict(line.split("=", 1) for line in facts.splitlines() if "=" in line)
        if "WIDTH" in values:
            windows.append((int(window), *(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))))
    return windows


def window_property(window, name):
    """A property of a window as xprop prints it; "" when it has none."""
    result = subprocess.run(["xprop", "-id", str(window), name], text=True, capture_output=True,
                            stdin=subprocess.DEVNULL, check=False, timeout=10)
    return result.stdout.partition("=")[2].strip()


def window_types(window):
    """What a window says it is, such as _NET_WM_WINDOW_TYPE_TOOLTIP."""
    return window_property(window, "_NET_WM_WINDOW_TYPE").replace(",", " ").split()


def active_window():
    return xdotool("getactivewindow", check=False)


def focused_window():
    return xdotool("getwindowfocus", check=False)


def active_title():
    return xdotool("getactivewindow", "getwindowname", check=False)


def activate(title):
    """Brings the window with this title to the front, as a click on it in the task list does."""
    wait_until(f"a window called {title}", lambda: xdotool("search", "--onlyvisible", "--name", title, check=False))
    xdotool("search", "--onlyvisible", "--name", title, "windowactivate", "--sync")


def screenshot(name):
    """Takes a picture of the screen for people to look at, and returns its path."""
    SCREENSHOTS.mkdir(parents=True, exist_ok=True)
    path = SCREENSHOTS / f"{name}.png"
    subprocess.run(["import", "-window", "root", str(path)], check=True, stdin=subprocess.DEVNULL, timeout=30)
    return path


# --- Accessible trees -----------------------------------------------------------------------------------------


def showing_windows(pid):
    """The windows of a process that its accessible tree tells to be on the screen."""
    application = application_of(pid)
    if application is None:
        return []
    return [window for window in application.children() if "showing" in window.states()]


def shown(pid):
    """Every accessible object of a process that is on the screen."""
    for window in showing_windows(pid):
        yield from window.showing()


def shown_texts(pid):
    """Every name and text on the screen in the windows of a process, in tree order."""
    texts = []
    for accessible in shown(pid):
        texts += [text for text in (accessible.name(), accessible.text()) if text]
    return texts


# --- Programs ------------------------------------------------------------------------------------------------


class Program:
    """A running program of the test's."""

    def __init__(self, command, environment=None):
        SCREENSHOTS.mkdir(parents=True, exist_ok=True)
        self.command = list(map(str, command))
        self.messages = SCREENSHOTS / f"{pathlib.Path(self.command[0]).name}-{os.getpid()}.log"
        with open(self.messages, "ab") as messages:
            self.earlier = messages.tell()  # what others of its name have said
            self.process = subprocess.Popen(self.command, env=os.environ | (environment or {}),
                                            stdin=subprocess.DEVNULL, stdout=messages, stderr=messages)
        self.pid = self.process.pid

    def is_running(self):
        return self.process.poll() is None

    def said(self):
        """What it has printed and logged so far."""
        return self.messages.read_bytes()[self.earlier:].decode(errors="replace")

    def tell_last_words(self):
        """Prints the end of what it has said, for whoever reads why a test failed."""
        lines = self.said().splitlines()[-MOST_LAST_WORDS:]
        if lines:
            print(f"the last that {self.process.args[0]} said:", *lines, sep="\n    ", flush=True)

    def stop(self):
        """Freezes it, so that it answers nobody."""
        self.process.send_signal(signal.SIGSTOP)

    def go_on(self):
        self.process.send_signal(signal.SIGCONT)

    def end(self):
        if self.is_running():
            self.go_on()
            self.process.terminate()
            try:
                self.process.wait(timeout=5)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()


class DesktopTestCase(unittest.TestCase):
    """Starts programs that end with the test, and keeps a picture of the screen when one fails."""

    def __init__(self, name):
        super().__init__(name)
        self.programs = []
        test = getattr(self, name)

        def test_with_picture(self):
            try:
                test()
            except Exception:
                print(f"{self.id()} failed; the screen: {screenshot(self.id())}", flush=True)
                for program in self.programs:
                    program.tell_last_words()
                raise

        setattr(self, name, types.MethodType(test_with_picture, self))

    def setUp(self):
        self.addCleanup(self.release_everything)

    def release_everything(self):
        """A test that failed half-way must not leave a key down for the next."""
        xdotool("keyup", "Super_L", "keyup", "Control_L", "keyup", "Shift_L", "keyup", "Alt_L", check=False)

    def start(self, *command, environment=None):
        program = Program(command, environment)
        self.programs.append(program)
        self.addCleanup(program.end)
        return program

    def start_application(self, *command, environment=None):
        """Starts an application and waits until its window is in front and its menus can be read."""
        program = self.start(*command, environment=environment)
        wait_until(f"the window of {command[0]}", lambda: self.has_front_window(program))
        wait_until(f"{command[0]} on the accessibility bus", lambda: showing_windows(program.pid))
        return program

    @staticmethod
    def has_front_window(program):
        return xdotool("getactivewindow", "getwindowpid", check=False) == str(program.pid)


def main():
    """Runs the tests of the calling file; where they hang, says where, before the time is up."""
    faulthandler.dump_traceback_later(870, exit=True)
    unittest.main(verbosity=2)
