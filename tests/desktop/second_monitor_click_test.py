"""Clicks on commands of a window on the second monitor count."""

import desktop
from click_test import ClickTestCase
from desktop import wait_until
from monitors import set_monitors


def setUpModule():
    set_monitors((0, 0, 1000, 900), (1000, 0, 1000, 900))


class SecondMonitor:
    command = ("Edit", "Select All")

    def setUp(self):
        super().setUp()
        window = desktop.active_window()
        desktop.xdotool("windowmove", window, 1100, 60)
        wait_until("the window on the second monitor", lambda: self.menus.place(self.menus.titles["Edit"])[0] > 1100)

    def test_clicks_count(self):
        self.menus.choose(*self.command)
        self.assert_counted({self.command: 1})


class Gtk3(SecondMonitor, ClickTestCase):
    pass


class Qt5(SecondMonitor, ClickTestCase):
    application = "featherpad"


if __name__ == "__main__":
    desktop.main()
