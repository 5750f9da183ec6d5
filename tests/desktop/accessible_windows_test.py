"""Whether the program's own windows can be used without seeing them and without a pointer."""

import desktop
from desktop import wait_until
from own_windows import OwnWindowsTestCase
from quillon import Ran

NAMES = "welcome", "settings", "library", "practice"
TABS = {"settings": ("General", "Coach", "Privacy")}
MOST_CONTROLS = 60
LINE = 12  # pixels that the middles of controls of one line may differ by


def box(control):
    x, y, width, height = control.extents()
    return x, y, x + width, y + height


def reads_before(one, other):
    """Whether a control comes before another one for who reads from left to right, line by line."""
    left, top, right, bottom = box(one)
    other_left, other_top, other_right, other_bottom = box(other)
    middle, other_middle = (top + bottom) / 2, (other_top + other_bottom) / 2
    overlap = min(bottom, other_bottom) - max(top, other_top)
    if overlap > 0 and (right <= other_left or other_right <= left):
        return left < other_left
    return middle < other_middle + LINE


class AccessibleWindowsTest(OwnWindowsTestCase):
    def setUp(self):
        super().setUp()
        self.start_quillon()

    def focused(self):
        """The control that has the keyboard; the tab that is open always tells so, its list when it is true."""
        return next((found for found in desktop.shown(self.quillon.pid)
                     if {"focused", "focusable"} <= set(found.states())
                     and found.role() not in ("frame", "dialog", "window", "page tab")), None)

    def focusable(self):
        """Qt calls a control that cannot be used just now focusable too; the keyboard passes it over."""
        return [found for found in desktop.shown(self.quillon.pid)
                if {"focusable", "enabled"} <= set(found.states()) and found.role() not in ("frame", "dialog", "window", "page tab")]

    def front_box(self):
        window = int(desktop.active_window())
        return next((x, y, x + width, y + height)
                    for number, x, y, width, height in desktop.visible_windows(self.quillon.pid) if number == window)

    def check_names(self, where):
        for found in desktop.shown(self.quillon.pid):
            self.assertNotIn(found.role(), ("role 0", "role 67"), f"{where}: {found}")  # invalid, unknown
        for control in self.focusable():
            self.assertTrue(control.name(), f"{where}: {control} has no name")

    def check_places(self, where):
        left, top, right, bottom = self.front_box()
        for control in self.focusable():
            x, y, end, below = box(control)
            self.assertTrue(end > x and below > y, f"{where}: {control} has no size")
            self.assertTrue(x < right and end > left and y < bottom and below > top,
                            f"{where}: {control} at {box(control)} lies outside of {self.front_box()}")

    def press_tab(self, before):
        desktop.press("Tab")
        return wait_until("the keyboard to go on", lambda: next(
            (now for now in [self.focused()] if now and (not before or now.path != before.path)), None))

    def check_tab(self, where):
        """Tab goes through every control from the top to the bottom, and comes back to the first one."""
        begin = self.focused() or self.press_tab(None)
        if len(self.focusable()) == 1:  # there is nowhere to go
            self.assertEqual([control.path for control in self.focusable()], [begin.path], where)
            return
        visited = [begin]
        while len(visited) < MOST_CONTROLS:
            control = self.press_tab(visited[-1])
            if control.path == begin.path:
                break
            visited.append(control)
        paths = [control.path for control in visited]
        self.assertLess(len(visited), MOST_CONTROLS, f"{where}: Tab does not come back")
        self.assertEqual(len(set(paths)), len(paths), f"{where}: visited twice: {visited}")
        self.assertEqual(sorted(paths), sorted(control.path for control in self.focusable()),
                         f"{where}: visited {visited} of {self.focusable()}")
        steps = list(zip(visited, visited[1:] + visited[:1]))
        backwards = [(one, other) for one, other in steps if not reads_before(one, other)]
        self.assertLessEqual(len(backwards), 1, f"{where}: against the order of reading: {backwards}")

    def check(self, where):
        self.check_names(where)
        self.check_places(where)
        if self.focusable():
            self.check_tab(where)

    def test_every_window(self):
        checked = []
        for name in NAMES:
            if Ran(name).status != 0:
                continue
            self.open_window(name)
            for tab in TABS.get(name, (None,)):
                if tab:
                    self.click_control("page tab", tab)
                    self.wait_state("page tab", tab, "focused")  # Qt's word for the tab that is open
                self.check(f"{name} {tab or ''}")
            checked.append(name)
            desktop.press("ctrl+w")
            wait_until(f"{name} to close", lambda: not desktop.visible_windows(self.quillon.pid))
        self.assertLessEqual({"welcome", "settings"}, set(checked))

    def test_the_question_before_erasing(self):
        self.open_window("settings")
        self.click_control("page tab", "Privacy")
        self.click_control("push button", "Erase Stats, Pins and Notes…")
        self.control("dialog", "Erase everything Quillon has learned?")
        self.wait_state("push button", "Cancel", "focused")
        desktop.press("Escape")
        wait_until("the question to be gone", lambda: not self.controls("dialog"))


if __name__ == "__main__":
    desktop.main()
