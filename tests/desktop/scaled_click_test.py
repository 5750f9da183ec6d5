"""Clicks on commands of applications that are drawn larger count all the same."""

import desktop
from click_test import ClickTestCase


class Scaled:
    command = ("Edit", "Select All")

    def test_clicks_and_drags_count(self):
        self.menus.choose(*self.command)
        self.assert_counted({self.command: 1})

    def test_dragging_counts(self):
        self.menus.drag_to(*self.command)
        self.assert_counted({self.command: 1})


class Gtk3Twice(Scaled, ClickTestCase):
    scale, environment = 2, {"GDK_SCALE": "2"}


class Qt5Twice(Scaled, ClickTestCase):
    application, scale, environment = "featherpad", 2, {"QT_SCALE_FACTOR": "2"}


class Qt5AndAHalf(Scaled, ClickTestCase):
    application, scale, environment = "featherpad", 1.5, {"QT_SCALE_FACTOR": "1.5"}


class Qt6Twice(Scaled, ClickTestCase):
    application, scale, environment = "designer", 2, {"QT_SCALE_FACTOR": "2"}
    command = ("File", "New...")


class Qt6AndAHalf(Scaled, ClickTestCase):
    application, scale, environment = "designer", 1.5, {"QT_SCALE_FACTOR": "1.5"}
    command = ("File", "New...")


if __name__ == "__main__":
    desktop.main()
