"""The toast stays on the monitor that was clicked on, beside the edge between two monitors."""

import desktop
from monitors import set_monitors
from toast import MARGIN, SIZE, ToastTestCase

EDGE = 800  # where the second monitor begins


class SecondMonitorToastTest(ToastTestCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        set_monitors((0, 0, EDGE, 800), (EDGE, 0, 800, 800))

    def test_it_does_not_reach_over_the_edge(self):
        self.place(EDGE - 330, 100)  # the menu opens up to the edge
        self.click_command("Edit", "Select All", 0.9)
        self.assertEqual(self.wait_toast()[0], EDGE - SIZE[0] - MARGIN)


if __name__ == "__main__":
    desktop.main()
