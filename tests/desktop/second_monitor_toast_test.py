"""The toast appears on the monitor that was clicked on, and stays inside of it beside the edge between two."""

import desktop
from monitors import set_monitors
from toast import MARGIN, SIZE, ToastTestCase

EDGE = 800  # where the second monitor begins


def setUpModule():
    set_monitors((0, 0, EDGE, 800), (EDGE, 0, 800, 800))


class FirstMonitor(ToastTestCase):
    def test_it_does_not_reach_over_the_edge(self):
        self.place(EDGE - 330, 100)  # the menu opens up to the edge
        self.click_command("Edit", "Select All", 0.9)
        self.assertEqual(self.wait_toast()[0], EDGE - SIZE[0] - MARGIN)


class SecondMonitor(ToastTestCase):
    """With Qt: GTK opens the menus of a window on such a monitor on the first one."""

    application = "featherpad"

    def test_it_appears_there(self):
        self.place(EDGE + 300, 400)
        self.click_command("Edit", "Select All")
        x, y, width, height = self.wait_toast()
        self.assertGreater(x, EDGE + MARGIN)
        self.assertLess(x + width, 2 * EDGE - MARGIN)
        self.assertGreaterEqual(y, MARGIN)
        self.assertLessEqual(y + height, 800 - MARGIN)

    def test_it_does_not_reach_over_the_edge(self):
        self.place(EDGE, 100)
        self.click_command("Edit", "Select All", 0.1)
        self.assertEqual(self.wait_toast()[0], EDGE + MARGIN)


if __name__ == "__main__":
    desktop.main()
