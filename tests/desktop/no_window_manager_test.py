"""A desktop without a window manager: the application that has the keyboard is the one in front."""

import desktop
from accessible import application_of
from desktop import wait_until
from quillon import QuillonTestCase, Ran, doctor


class NoWindowManagerTest(QuillonTestCase):
    def test_the_overlay_shows_the_application_that_has_the_keyboard(self):
        geany = self.start("geany", "--new-instance", "--no-session")
        window = wait_until("geany's window", lambda: desktop.visible_windows(geany.pid))[0][0]
        wait_until("geany's menus", lambda: application_of(geany.pid))
        desktop.xdotool("windowfocus", "--sync", window)
        self.start_quillon()
        with self.overlay_held_open():
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)
        self.wait_closed()

    def test_without_any_application_the_overlay_asks_for_one(self):
        self.start_quillon()
        with self.overlay_held_open() as overlay:
            wait_until("the message", lambda: overlay.says("Switch to an app, then hold ⌘"))
        self.wait_closed()

    def test_the_panel_that_is_kept_open_takes_the_keyboard(self):
        self.start_quillon("show", "--sample")
        wait_until("the sample's commands", lambda: len(self.overlay.rows()) >= 59)
        desktop.type_text("bring to front")
        self.wait_for_rows("a match", lambda rows: len(rows) == 1)
        desktop.press("Escape")
        self.wait_closed()

    def test_the_checkup_says_what_is_missing(self):
        checks = doctor()
        self.assertEqual(checks["Window manager"].split()[0], "limited")
        self.assertEqual(checks["Display"].split()[0], "ok")

    def test_no_application_is_in_front(self):
        self.assertEqual(Ran("sheet").status, 3)


if __name__ == "__main__":
    desktop.main()
