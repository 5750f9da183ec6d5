"""A dark desktop with a compositor: the overlay is dark too, and what lies below it shows around it."""

import desktop
from desktop import wait_until
from quillon import QuillonTestCase

SHADOW_REACH = 36  # pixels of the panel's window around the panel itself


class DarkTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon()

    def test_the_overlay_is_as_dark_as_the_desktop(self):
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", bool)
            area = overlay.windows()[0][1:]
            wait_until("a dark overlay", lambda: desktop.brightness(desktop.screenshot("dark"), area) < 0.35)
        self.wait_closed()

    def test_its_corners_are_not_black_boxes(self):
        before = desktop.screenshot("dark-before")
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", bool)
            _, x, y, width, height = overlay.windows()[0]
            wait_until("the overlay's picture", lambda: desktop.differing_pixels(
                before, desktop.screenshot("dark-corner")) > width * height / 4)
            corner = (x + SHADOW_REACH, y + SHADOW_REACH, 3, 3)
            self.assertAlmostEqual(desktop.brightness(desktop.screenshot("dark-corner"), corner),
                                   desktop.brightness(before, corner), delta=0.05)


if __name__ == "__main__":
    desktop.main()
