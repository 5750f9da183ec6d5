"""The toast after a click on a menu command, over a real application."""

import time

import desktop
from desktop import wait_until
from screen_reader import ScreenReader
from toast import MARGIN, SHOWN_FOR, SIZE, ToastTestCase

SCREEN = 1280, 800


class ToastTest(ToastTestCase):
    def assert_shown_for_a_while(self, began):
        """Some tenths of a second pass before it is found to be there and to be gone; on a busy machine, more."""
        shown = time.monotonic() - began
        self.assertGreater(shown, SHOWN_FOR - 0.8)
        self.assertLess(shown, 2 * SHOWN_FOR)

    def test_it_leaves_focus_and_pointer_to_the_application_and_goes_by_itself(self):
        desktop.type_text("some words to put the cursor between")
        active, focused = desktop.active_window(), desktop.focused_window()
        self.click_command("Edit", "Select All")
        x, y, width, height = self.wait_toast()
        began = time.monotonic()
        self.assertEqual(desktop.active_window(), active)
        self.assertEqual(desktop.focused_window(), focused)

        desktop.click(x + width // 2, y + height // 2)
        desktop.type_text("x")
        self.assertFalse(self.is_gone())
        desktop.screenshot("toast")
        self.assertEqual(desktop.focused_window(), focused)
        text = next(found for found in desktop.shown(self.editor.pid) if found.role() == "text").text()
        self.assertIn("some words", text, "the click took the selection away, or the key had replaced all")

        wait_until("the toast to go", self.is_gone)
        self.assert_shown_for_a_while(began)

    def test_a_newer_one_takes_its_place_and_each_is_read(self):
        reader = ScreenReader()
        self.click_command("Edit", "Select All")
        wait_until("the first to be read", reader.notices)
        self.click_command("Search", "Find")
        began = time.monotonic()
        wait_until("both to be read", lambda: len(reader.notices()) >= 2)
        self.assertEqual(reader.notices(), ["Next time: Control A for Select All", "Next time: Control F for Find"])
        wait_until("the toast to go", self.is_gone)
        self.assert_shown_for_a_while(began)

    def test_at_the_screens_edges_it_stays_inside(self):
        at_the_right = SCREEN[0] - 330, SCREEN[1] - 230, "Edit", "Select All", 0.9, SCREEN[0] - SIZE[0] - MARGIN
        at_the_left = 0, 0, "File", "Save As...", 0.1, MARGIN
        for left, top, menu, command, at, expected in (at_the_right, at_the_left):
            self.place(left, top)
            self.click_command(menu, command, at)
            wait_until(f"the toast at {expected}", lambda left=expected: self.wait_toast()[0] == left)
            _, y, _, height = self.wait_toast()
            self.assertGreaterEqual(y, MARGIN)
            self.assertLessEqual(y + height, SCREEN[1] - MARGIN)


if __name__ == "__main__":
    desktop.main()
