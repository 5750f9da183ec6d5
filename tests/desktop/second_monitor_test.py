"""The overlay leaves the docks of the monitor free that it is on, also at the edge between two monitors."""

import subprocess

import desktop
from desktop import wait_until
from monitors import set_monitors
from quillon import QuillonTestCase

EDGE = 800  # where the second monitor begins
WIDTH = 1600
DOCK = 300  # how wide the dock is


class SecondMonitorTest(QuillonTestCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        set_monitors((0, 0, EDGE, 800), (EDGE, 0, WIDTH - EDGE, 800))

    def setUp(self):
        super().setUp()
        self.dock = self.start_application("mousepad")
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon()
        self.wait_watching()

    def set_strut(self, left=0, right=0):
        """Has mousepad's window keep this much of the screen's left or right edge to itself, as a dock does."""
        window = desktop.visible_windows(self.dock.pid)[0][0]
        numbers = (left, right, 0, 0, 0, 799, 0, 799, 0, 0, 0, 0)
        subprocess.run(["xprop", "-id", str(window), "-f", "_NET_WM_STRUT_PARTIAL", "32c", "-set",
                        "_NET_WM_STRUT_PARTIAL", ",".join(map(str, numbers))], check=True, timeout=20)

    def assert_overlay_is_within(self, begin, end):
        """Holds the key with the pointer in the middle of this part of the screen."""
        desktop.xdotool("mousemove", (begin + end) // 2, 400)
        with self.overlay_held_open() as overlay:
            seen = []

            def is_within():
                seen[:] = overlay.windows()
                return seen and all(begin <= x and x + width <= end for _, x, _, width, _ in seen)

            try:
                wait_until(f"the overlay between {begin} and {end}", is_within, within=5.0)
            except AssertionError as error:
                raise AssertionError(f"{error}; it is {seen}") from None
        self.wait_closed()

    def test_without_docks_each_monitor_is_whole(self):
        self.assert_overlay_is_within(0, EDGE)
        self.assert_overlay_is_within(EDGE, WIDTH)

    def test_a_dock_at_the_inner_edge_of_the_second_monitor_is_left_free(self):
        self.set_strut(left=EDGE + DOCK)
        self.assert_overlay_is_within(EDGE + DOCK, WIDTH)
        self.assert_overlay_is_within(0, EDGE)

    def test_a_dock_at_the_inner_edge_of_the_first_monitor_is_left_free(self):
        self.set_strut(right=WIDTH - EDGE + DOCK)
        self.assert_overlay_is_within(0, EDGE - DOCK)
        self.assert_overlay_is_within(EDGE, WIDTH)


if __name__ == "__main__":
    desktop.main()
