"""A desktop where the focus goes where the pointer goes: the overlay comes and goes under it and moves nothing."""

import time

import desktop
from desktop import wait_until
from quillon import QuillonTestCase

SETTLED = 0.6  # seconds in which a window manager has long answered what happened
PATIENCE = 3  # seconds in which it has done what it will do


class FocusFollowsPointerTest(QuillonTestCase):
    """Two windows beside each other; the pointer is in one of them, another one has the focus."""

    def setUp(self):
        super().setUp()
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_application("mousepad")
        for title, x in (("Geany", 0), ("Mousepad", 640)):
            window = desktop.xdotool("search", "--onlyvisible", "--name", title).split()[0]
            desktop.xdotool("windowmove", window, x, 0, "windowsize", window, 640, 760)
        self.pointer_comes_to_mousepad()
        desktop.activate("Geany")
        wait_until("the other window to have the focus", lambda: "Geany" in desktop.active_title())
        self.start_quillon()
        self.wait_watching()

    @staticmethod
    def pointer_comes_to_mousepad():
        """Crosses the edge anew when the window manager overlooked it, as it may while it raises a window."""
        crossed = 0.0

        def has_come():
            nonlocal crossed
            if "Mousepad" in desktop.active_title():
                return True
            if time.monotonic() > crossed + PATIENCE:
                desktop.xdotool("mousemove", 300, 300, "mousemove", 905, 310, "mousemove", 900, 300)
                crossed = time.monotonic()
            return False

        wait_until("the window under the pointer to have the focus", has_come)

    def assert_geany_keeps_the_focus(self):
        desktop.stays("geany has the focus", lambda: "Geany" in desktop.active_title(), SETTLED)

    def test_the_focus_really_follows_the_pointer(self):
        self.pointer_comes_to_mousepad()

    def test_a_hold_over_another_window_leaves_the_focus_where_it_is(self):
        with self.overlay_held_open():
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)
        self.wait_closed()
        self.assert_geany_keeps_the_focus()

    def test_so_does_an_overlay_that_was_kept_open(self):
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)
            desktop.click(*overlay.footer())
            wait_until("the overlay to be kept open", lambda: overlay.says("Esc closes"))
        desktop.xdotool("mousemove", 900, 300)
        desktop.press("Escape")
        self.wait_closed()
        self.assert_geany_keeps_the_focus()


if __name__ == "__main__":
    desktop.main()
