"""Clicking commands of real applications counts them, and says which keys would have done it."""

import json
import re
import time

import desktop
from desktop import wait_until
from menus import Menus, press_and_let_go
from quillon import LEARNED, QuillonTestCase, longest_stall, measure_stalls, request, sheet

APPLICATIONS = {
    "geany": ["geany", "--new-instance", "--no-session"],
    "mousepad": ["mousepad"],
    "featherpad": ["featherpad"],
    "designer": ["/usr/lib/qt6/bin/designer"],
}
DESIGNER_TITLES = ("Qt Designer", "Qt Widgets Designer")  # by version
READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
SAVED_WITHIN = 15.0  # seconds, of which the program waits one after the last change


def counts():
    """How often each command was clicked, as the program has saved it: {bundle id: {command: clicks}}."""
    try:
        usage = json.loads((LEARNED / "usage.json").read_text(encoding="utf-8"))
    except FileNotFoundError:
        return {}
    return {app: {command: record["clicked"] for command, record in commands.items() if record["clicked"]}
            for app, commands in usage["apps"].items()}


class ClickTestCase(QuillonTestCase):
    """A test with one application and the program that watches it."""

    application = "geany"
    scale = 1
    environment = {}

    def setUp(self):
        super().setUp()
        command = APPLICATIONS[self.application]
        self.editor = self.start(*command, environment=self.environment)
        wait_until("its window in front", lambda: self.has_front_window(self.editor))
        wait_until("it on the bus", lambda: desktop.showing_windows(self.editor.pid))
        if self.application == "designer":
            wait_until("its first dialog", lambda: "New Form" in desktop.active_title())
            desktop.press("Escape")
            wait_until("its window", lambda: desktop.active_title() in DESIGNER_TITLES)
        self.menus = self.menus_of_editor()
        self.addCleanup(desktop.xdotool, "mouseup", 1, "mouseup", 3, check=False)
        self.start_watching()
        self.bundle = self.application

    def menus_of_editor(self):
        return Menus(self.editor.pid, self.scale, rest=self.wait_ready_at)

    def start_watching(self):
        self.start_quillon("--verbose", environment=READABLE)
        wait_until("quillon to watch for clicks", lambda: request("IsWatchingClicks")[0])

    def wait_ready_at(self, place):
        """Until the program has seen that the pointer rests on an item: from then on no click is too short."""
        x, y = place
        areas = re.compile(r"ready for a click in ([-.\d]+), ([-.\d]+), ([-.\d]+) x ([-.\d]+)")

        def is_ready():
            for match in areas.finditer(self.quillon.said()):
                left, top, width, height = map(float, match.groups())
                if left <= x < left + width and top <= y < top + height:
                    return True
            return False

        wait_until("quillon to be ready for a click", is_ready)

    def assert_counted(self, expected):
        """That these and no other commands are counted, `expected` being {title path: clicks}."""
        wanted = {self.bundle: {" › ".join(path): clicks for path, clicks in expected.items()}}
        try:
            wait_until("the clicks to be saved", lambda: counts() == wanted, within=SAVED_WITHIN)
        except AssertionError:
            raise AssertionError(f"counted {counts()}, not {wanted}") from None

    def assert_nothing_counted(self):
        desktop.stays("nothing is counted", lambda: not any(counts().values()), 2.5)

    def assert_is_on_the_sheet(self, *path):
        self.assertIn(list(path), [entry["path"] for entry in sheet("--pid", self.editor.pid)["entries"]])

    def toast_windows(self):
        return desktop.visible_windows(self.quillon.pid)

    def toast_says(self, text):
        return any(text in shown for shown in desktop.shown_texts(self.quillon.pid))


class Counts:
    """What every toolkit's application has to show."""

    command = ("Edit", "Select All")
    keys = "Control A"

    def test_a_click_is_counted_and_answered(self):
        self.menus.choose(*self.command)
        wait_until("the toast", lambda: self.toast_says(self.keys))
        self.assertTrue(self.toast_says(self.command[-1]))
        self.assert_counted({self.command: 1})
        self.assert_is_on_the_sheet(*self.command)

    def test_dragging_from_the_title_to_the_command_counts(self):
        self.menus.drag_to(*self.command)
        self.assert_counted({self.command: 1})

    def test_a_click_of_an_instant_counts(self):
        self.menus.point_at(*self.command)
        desktop.xdotool("click", 1)
        self.assert_counted({self.command: 1})

    def test_nothing_but_a_chosen_command_counts(self):
        self.menus.point_at(*self.command)
        desktop.press("Escape", "Escape")
        self.menus.point_at(*self.command)
        desktop.press("Up", "Down", "Return")
        wait_until("the menus to close", lambda: not self.menus.is_open())
        self.menus.open(self.command[0])
        desktop.xdotool("mousemove", 3, 3)
        press_and_let_go()
        wait_until("the menus to close", lambda: not self.menus.is_open())
        self.assert_nothing_counted()
        self.assertEqual(self.toast_windows(), [])


class GeanyClickTest(Counts, ClickTestCase):
    def test_a_submenus_command_counts(self):
        path = next(tuple(entry["path"]) for entry in sheet("--pid", self.editor.pid)["entries"]
                    if len(entry["path"]) == 3 and entry["path"][0] == "Edit" and entry["enabled"])
        self.menus.choose(*path)
        self.assert_counted({path: 1})

    def test_a_second_click_within_a_second_is_the_same(self):
        item = self.menus.point_at(*self.command)
        place = self.menus.place(item)
        press_and_let_go()
        self.menus.move_to(self.menus.titles[self.command[0]])
        desktop.xdotool("click", 1)
        wait_until("the menu", self.menus.is_open)
        desktop.xdotool("mousemove", *place)
        time.sleep(0.05)
        press_and_let_go()
        self.assert_counted({self.command: 1})

    def test_a_command_without_a_shortcut_does_not_count(self):
        self.menus.choose("Help", "Keyboard Shortcuts")
        self.assert_nothing_counted()

    def test_a_disabled_command_does_not_count(self):
        self.menus.open("Edit")
        undo = next(item for item in self.menus.titles["Edit"].children() if item.name().strip() == "Undo")
        self.menus.move_to(undo)
        time.sleep(0.2)
        press_and_let_go()
        self.menus.close()
        self.assert_nothing_counted()

    def test_a_muted_command_counts_in_silence(self):
        LEARNED.mkdir(parents=True, exist_ok=True)
        self.quillon.process.terminate()
        self.quillon.process.wait(timeout=30)
        (LEARNED / "notes.json").write_text(json.dumps(
            {"apps": {self.bundle: {" › ".join(self.command): {"muted": True, "note": "", "pinned": False}}}}))
        self.start_watching()
        self.menus.choose(*self.command)
        self.assert_counted({self.command: 1})
        self.assertEqual(self.toast_windows(), [])

    def test_an_application_that_dies_with_its_menu_open_counts_nothing_and_the_next_one_does(self):
        self.menus.point_at(*self.command)
        self.editor.process.kill()
        self.editor.process.wait()
        wait_until("its menus to go", lambda: not desktop.visible_windows(self.editor.pid))
        self.assert_nothing_counted()
        self.editor = self.start_application(*APPLICATIONS["geany"])
        self.menus = self.menus_of_editor()
        self.menus.choose(*self.command)
        self.assert_counted({self.command: 1})

    def test_an_application_that_hangs_under_the_pointer_keeps_nobody(self):
        self.menus.open(self.command[0])
        measure_stalls()
        self.editor.stop()
        desktop.xdotool("mousemove_relative", "--", 5, 40)
        time.sleep(0.4)
        press_and_let_go()
        self.assertLess(longest_stall(), 400, "half of what waiting for the application would take")
        self.editor.go_on()
        self.menus.close()
        self.menus.choose(*self.command)
        wait_until("the command to be counted",
                   lambda: counts().get(self.bundle, {}).get(" › ".join(self.command)) == 1, within=SAVED_WITHIN)


class MousepadClickTest(Counts, ClickTestCase):
    application = "mousepad"

    def setUp(self):
        super().setUp()
        self.bundle = sheet("--pid", self.editor.pid)["bundleID"]


class FeatherpadClickTest(Counts, ClickTestCase):
    application = "featherpad"


class DesignerClickTest(Counts, ClickTestCase):
    application = "designer"
    command = ("File", "New...")
    keys = "Control N"

    def setUp(self):
        super().setUp()
        self.bundle = sheet("--pid", self.editor.pid)["bundleID"]

    def test_nothing_but_a_chosen_command_counts(self):
        self.menus.point_at("Edit", "Select All")
        desktop.press("Escape", "Escape")
        self.assert_nothing_counted()


if __name__ == "__main__":
    desktop.main()
