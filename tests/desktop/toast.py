"""The toast of a running program, and the clicks that make it appear."""

import time

import desktop
from desktop import wait_until
from quillon import LEARNED, QuillonTestCase

SIZE = 360, 92
MARGIN = 12  # from the edges of the screen
REST = 0.6  # seconds that a hand rests on what it is about to click
SHADOW = 36  # what it reaches beyond the toast, where windows are blended
SHOWN_FOR = 2.8 + 0.4  # seconds, fading out included


TITLE = "menu", "menu item"  # GTK's roles of what opens a menu, and Qt's


class ToastTestCase(QuillonTestCase):
    application = "mousepad"

    def setUp(self):
        super().setUp()
        self.editor = self.start_application(self.application)
        self.start_quillon()
        wait_until("the editor's menus to be known", (LEARNED / "menus.json").exists)

    def tearDown(self):
        desktop.xdotool("mousemove", 5, 5)
        super().tearDown()

    def element(self, role, name):
        """The element on the screen of the editor's; waits for it."""
        return wait_until(f"{name} of the editor", lambda: next(
            (found for found in desktop.shown(self.editor.pid)
             if found.role() in role and found.name().strip() == name and found.extents()[2] > 0), None))

    def place(self, left, top):
        """Makes the editor's window small and moves it there."""
        desktop.xdotool("getactivewindow", "windowsize", 320, 200, "windowmove", left, top)
        wait_until("the editor's window to be moved", lambda: (
            left <= self.element(TITLE, "File").extents()[0] < left + 40
            and top <= self.element(TITLE, "File").extents()[1] < top + 60))

    def click_command(self, menu, command, at=0.5):
        """Opens the menu and clicks the command: in the middle of its line, or nearer to its begin (0) or end (1)."""
        desktop.click(*self.element(TITLE, menu).centre())
        x, y, width, height = self.element(("menu item", "check menu item"), command).extents()
        desktop.xdotool("mousemove", x + int(at * width), y + height // 2)
        time.sleep(REST)
        desktop.xdotool("click", 1)

    def toasts(self):
        """The toast without its shadow as (x, y, width, height), in a list that is empty while there is none."""
        windows = [box for _, *box in desktop.visible_windows(self.quillon.pid)]
        inner = [(x + reach, y + reach, width - 2 * reach, height - 2 * reach)
                 for x, y, width, height in windows for reach in (0, SHADOW)]
        return [box for box in inner if box[2:] == SIZE]

    def wait_toast(self):
        return wait_until("the toast", self.toasts)[0]

    def is_gone(self):
        return not self.toasts()
