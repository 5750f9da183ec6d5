"""The overlay over real applications, with real keys and buttons."""

import desktop
from accessible import application_of
from desktop import wait_until
from independent_sheet import entries, read_menu_bar
from quillon import HOLD_DELAY, QuillonTestCase, row


class OverlayTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.geany = self.start_application("geany", "--new-instance", "--no-session")
        desktop.press("ctrl+n")
        self.start_quillon()
        self.wait_watching()

    def rows_of_geany(self):
        return sorted(row(entry) for entry in entries(read_menu_bar(application_of(self.geany.pid)), "gtk"))

    def typing_reaches_geany(self):
        before = desktop.active_title()
        desktop.type_text("x")
        return wait_until("geany's title to tell of a change", lambda: desktop.active_title() != before)

    # Holding and letting go

    def test_holding_super_shows_the_commands_of_the_application_in_front(self):
        expected = self.rows_of_geany()
        with self.overlay_held_open() as overlay:
            rows = self.wait_for_rows("geany's commands", lambda rows: len(rows) >= len(expected))
            self.assertEqual(sorted(rows), expected)
            texts = overlay.texts()
            self.assertIn("Geany", texts)
            self.assertIn(f"{len(expected)} shortcuts from its menus", texts)
            self.assertIn("Let go of ⌘ to close · click to keep it open", texts)
        self.wait_closed()

    def test_the_overlay_is_drawn_over_the_application_and_gone_again(self):
        before = desktop.screenshot("before")
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", bool)
            _, _, _, width, height = overlay.windows()[0]
            wait_until("the overlay's picture", lambda: desktop.differing_pixels(
                before, desktop.screenshot("overlay")) > width * height / 4)
            self.assertGreater(desktop.brightness(desktop.screenshot("overlay"), overlay.windows()[0][1:]), 0.8)
        self.wait_closed()
        wait_until("geany's picture", lambda: desktop.differing_pixels(
            before, desktop.screenshot("after")) < 2000)  # its text cursor blinks

    def test_a_held_overlay_leaves_the_keyboard_where_it_is(self):
        focused = desktop.focused_window()
        with self.overlay_held_open():
            self.assertEqual(desktop.focused_window(), focused)
        self.wait_closed()
        self.assertTrue(self.typing_reaches_geany())

    def test_it_opens_again_and_again(self):
        for _ in range(3):
            with self.overlay_held_open():
                self.wait_for_rows("geany's commands", bool)
            self.wait_closed()

    def test_another_key_pressed_with_an_open_overlay_leaves_it_open(self):
        with self.overlay_held_open() as overlay:
            with desktop.held("Shift_L"):
                desktop.stays("the overlay is open", overlay.is_open, 0.4)
        self.wait_closed()

    # What spoils a hold

    def test_super_in_a_shortcut_shows_nothing(self):
        with desktop.held("Super_L"):
            desktop.finger_moves()
            desktop.press("s")
            self.assert_stays_closed()
        self.assert_stays_closed()

    def test_super_with_another_modifier_shows_nothing(self):
        with desktop.held("Super_L"), desktop.held("Shift_L"):
            self.assert_stays_closed()

    def test_a_click_while_holding_shows_nothing(self):
        with desktop.held("Super_L"):
            desktop.finger_moves()
            desktop.click(640, 500)
            self.assert_stays_closed()

    def test_the_wheel_while_holding_shows_nothing(self):
        with desktop.held("Super_L"):
            desktop.finger_moves()
            desktop.scroll()
            self.assert_stays_closed()

    def test_a_tap_shows_nothing(self):
        desktop.press("Super_L")
        self.assert_stays_closed()

    def test_a_spoiled_hold_does_not_spoil_the_next(self):
        with desktop.held("Super_L"):
            desktop.finger_moves()
            desktop.scroll()
            desktop.stays("the overlay is closed", self.overlay.is_closed, HOLD_DELAY / 2)
        with self.overlay_held_open():
            pass
        self.wait_closed()

    # Keeping it open

    def keep_open(self):
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", bool)
            desktop.click(*overlay.footer())
            wait_until("the overlay to be kept open", lambda: overlay.says("Esc closes"))

    def test_a_click_keeps_it_open_and_typing_searches(self):
        all_rows = self.rows_of_geany()
        self.keep_open()
        desktop.stays("the overlay is open", self.overlay.is_open, 0.5)
        desktop.type_text("find next")
        found = [line for line in all_rows if "find" in line.lower() and "next" in line.lower()]
        self.assertTrue(found)
        rows = self.wait_for_rows("fewer commands", lambda rows: 0 < len(rows) < len(all_rows) / 4)
        self.assertLessEqual(set(found), set(rows))
        wait_until("the number of matches", lambda: any(
            text.endswith(f" of {len(all_rows)} shortcuts") for text in self.overlay.texts()))

    def test_a_search_that_finds_nothing_says_so(self):
        self.keep_open()
        desktop.type_text("zzz")
        wait_until("the message", lambda: self.overlay.says("Nothing matches “zzz”"))

    def test_escape_closes_it_and_geany_has_the_keyboard_again(self):
        self.keep_open()
        desktop.press("Escape")
        self.wait_closed()
        self.assertTrue(self.typing_reaches_geany())

    def test_a_click_elsewhere_closes_it(self):
        self.keep_open()
        desktop.click(5, 790)
        self.wait_closed()

    def test_the_search_is_empty_when_it_opens_again(self):
        self.keep_open()
        desktop.type_text("find")
        self.wait_for_rows("matches", lambda rows: 0 < len(rows) < 30)
        desktop.press("Escape")
        self.wait_closed()
        with self.overlay_held_open():
            self.wait_for_rows("all commands", lambda rows: len(rows) > 30)
        self.wait_closed()

    # Several applications

    def test_it_follows_the_application_in_front(self):
        mousepad = self.start_application("mousepad")
        expected = sorted(row(entry) for entry in entries(read_menu_bar(application_of(mousepad.pid)), "gtk"))
        desktop.activate("Geany")
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)
            desktop.activate("Mousepad")
            rows = self.wait_for_rows("mousepad's commands", lambda rows: len(rows) == len(expected))
            self.assertEqual(sorted(rows), expected)
            self.assertTrue(overlay.says("Mousepad"))
        self.wait_closed()

    def test_an_application_that_is_still_being_read_fills_in_place(self):
        self.quillon.end()
        mousepad = self.start_application("mousepad")
        mousepad.stop()
        self.start_quillon()
        with self.overlay_held_open() as overlay:  # the reading that began with the program ends here
            wait_until("the end of a reading", lambda: overlay.says("No menu shortcuts in Mousepad"))
        self.wait_closed()
        for _ in range(6):  # and another begins with each hold; a busy machine may show it after its second is over
            with self.overlay_held_open() as overlay:
                if not desktop.happens(lambda: overlay.says("Reading Mousepad’s menus…"), within=1.5):
                    continue
                mousepad.go_on()
                window = overlay.windows()
                self.wait_for_rows("mousepad's commands", lambda rows: "Save, ⌃S" in rows)
                self.assertEqual(overlay.windows(), window)
            return self.wait_closed()
        return self.fail("no reading was ever shown")


if __name__ == "__main__":
    desktop.main()
