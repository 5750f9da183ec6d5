"""What the other desktop tests rely on: that keys, windows and accessible trees are seen as they are."""

import json
import pathlib

import desktop
from accessible import application_of
from desktop import wait_until
from independent_sheet import entries, read_menu_bar


class HelpersTest(desktop.DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.geany = self.start_application("geany", "--new-instance", "--no-session")

    def test_typing_reaches_the_front_application(self):
        desktop.press("ctrl+n")
        desktop.type_text("seen and read")
        wait_until("the text in the editor", lambda: "*untitled" in desktop.active_title().replace("• ", "*"))

    def test_a_stopped_application_is_not_seen_and_comes_back(self):
        self.geany.stop()
        self.assertEqual(desktop.showing_windows(self.geany.pid), [])
        self.geany.go_on()
        wait_until("its window", lambda: desktop.showing_windows(self.geany.pid))

    def test_menus_are_read_as_recorded(self):
        recording = json.loads((pathlib.Path(__file__).parents[1] / "data/menus/geany.json").read_text())
        live = read_menu_bar(application_of(self.geany.pid))
        self.assertEqual([menu["name"] for menu in live], [menu["name"] for menu in recording["menuBar"]])
        read, recorded = ({tuple(entry["path"]): entry["shortcut"] for entry in entries(bar, "gtk")}
                          for bar in (live, recording["menuBar"]))
        self.assertEqual(read, recorded)

    def test_a_picture_of_the_screen_is_taken(self):
        self.assertGreater(desktop.screenshot("helpers").stat().st_size, 10_000)


if __name__ == "__main__":
    desktop.main()
