"""Practice rounds, answered by real keys over a real window manager."""

import json

import desktop
from desktop import wait_until
from keyboard import chord, is_keyboard_free, layout
from own_windows import OwnWindowsTestCase
from quillon import LEARNED, Ran

CONTROL, OPTION, COMMAND = 1, 2, 8
APP = "org.example.sketch"
EVERY_KEY = "Every key comes here while a question waits. Hold Esc to let go."
LET_GO = "The keyboard is free: your desktop’s own keys work again."

# Two of the shortcuts are the window manager's own: it closes the window, and shows the desktop.
COMMANDS = {
    "Save": (CONTROL, {"char": {"_0": "S"}}),
    "Close": (OPTION, {"special": {"_0": "f4"}}),
    "Desktop": (COMMAND, {"char": {"_0": "D"}}),
    "Find": (CONTROL, {"char": {"_0": "F"}}),
    "Print": (CONTROL, {"char": {"_0": "P"}}),
}


def write_sheet(commands):
    """What an earlier run has read of an application."""
    entries = [{"enabled": True, "path": ["File", title], "shortcut": {"key": key, "modifiers": modifiers}}
               for title, (modifiers, key) in commands.items()]
    sheet = {"appName": "Sketch", "bundleID": APP, "entries": entries, "readAt": "2026-05-01T09:30:00Z"}
    LEARNED.mkdir(parents=True, exist_ok=True)
    (LEARNED / "menus.json").write_text(json.dumps({APP: sheet}), encoding="utf-8")


def answers():
    """How often each command was answered right and wrong, as the file has it."""
    records = json.loads((LEARNED / "usage.json").read_text(encoding="utf-8"))["apps"][APP]
    return {name.split(" › ")[-1]: (record["practiceRight"], record["practiceWrong"])
            for name, record in records.items()}


class PracticeTest(OwnWindowsTestCase):
    def setUp(self):
        super().setUp()
        write_sheet(COMMANDS)

    def open_practice(self, commands=None):
        if commands:
            write_sheet(commands)
        self.start_quillon("practice", "--app", "sketch")
        wait_until("the practice window in front", lambda: self.has_front_window(self.quillon))

    def begin_round(self):
        self.wait_state("push button", "New Round", "focused")
        desktop.press("Return")
        self.wait_says(EVERY_KEY)

    def says(self, text):
        return text in desktop.shown_texts(self.quillon.pid)

    def wait_says(self, text):
        wait_until(f"{text!r}", lambda: self.says(text))

    def question(self, commands=COMMANDS):
        """The command that is asked for."""
        return wait_until("a question", lambda: next(
            (title for title in commands if self.says(title) and self.says("Press the shortcut")), None))

    def go_on(self):
        """Presses Next, or whatever else is due."""
        desktop.press("Return")

    def wait_grabbed(self):
        self.wait_says(EVERY_KEY)
        self.assertFalse(is_keyboard_free())

    def quit(self):
        self.assertEqual(Ran("quit").status, 0)
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)

    def test_a_round_is_answered_right_wrong_and_revealed(self):
        self.open_practice()
        self.begin_round()
        for number in range(1, 6):
            self.wait_says(f"{number} of 5")
            command = self.question()
            self.wait_grabbed()
            if command == "Find":
                desktop.press("ctrl+alt+x")
                self.wait_says("You pressed ⌃⌥X")
            elif command == "Print":
                self.click_control("push button", "Show Answer")
            else:
                desktop.press({"Save": "ctrl+s", "Close": "alt+F4", "Desktop": "super+d"}[command])
                self.wait_says("Right")
            self.control("push button", "See Results" if number == 5 else "Next")
            wait_until("the keyboard to be free", is_keyboard_free)
            self.go_on()
        self.wait_says("3 of 5 right")
        self.wait_says("These come up more next time:")
        self.assertTrue(self.says("Find") and self.says("Print") and not self.says("Save"))
        self.quit()
        self.assertEqual(answers(), {
            "Save": (1, 0), "Close": (1, 0), "Desktop": (1, 0), "Find": (0, 1), "Print": (0, 1)})

    def test_the_keyboard_is_given_back_with_the_focus(self):
        editor = self.start_application("geany", "--new-instance", "--no-session")
        self.open_practice()
        self.begin_round()
        self.wait_grabbed()
        desktop.activate("geany")
        wait_until("the editor in front", lambda: self.has_front_window(editor))
        wait_until("the keyboard to be free", is_keyboard_free)
        desktop.activate("Practice")
        wait_until("the window in front again", lambda: self.has_front_window(self.quillon))
        self.wait_grabbed()

    def test_a_click_elsewhere_is_enough(self):
        editor = self.start_application("geany", "--new-instance", "--no-session")
        self.open_practice()
        self.begin_round()
        self.wait_grabbed()
        desktop.click(*self.beside_the_window(editor))
        wait_until("the editor in front", lambda: self.has_front_window(editor))
        wait_until("the keyboard to be free", is_keyboard_free)

    def beside_the_window(self, program):
        """A point of the program's window that the practice window does not cover."""
        _, left, top, width, height = desktop.visible_windows(program.pid)[0]
        _, x, y, w, h = desktop.visible_windows(self.quillon.pid)[0]
        points = [(left + 10, top + height // 2), (left + width - 10, top + height // 2),
                  (left + width // 2, top + height - 10), (left + width // 2, top + 10)]
        return next((px, py) for px, py in points if not (x - 10 <= px <= x + w + 10 and y - 40 <= py <= y + h + 10))

    def test_holding_escape_gives_the_keyboard_back(self):
        self.open_practice()
        self.begin_round()
        self.wait_grabbed()
        with desktop.held("Escape"):
            self.wait_says(LET_GO)
        self.assertTrue(is_keyboard_free())
        command = self.question()
        desktop.press("alt+F4")  # the window manager's again
        wait_until("the window to close", lambda: not desktop.visible_windows(self.quillon.pid))
        self.quit()
        self.assertFalse((LEARNED / "usage.json").exists() and command in answers())

    def test_a_window_that_closes_leaves_nothing_taken(self):
        self.open_practice()
        self.begin_round()
        self.wait_grabbed()
        desktop.xdotool("getactivewindow", "windowclose")
        wait_until("the window to close", lambda: not desktop.visible_windows(self.quillon.pid))
        wait_until("the keyboard to be free", is_keyboard_free)

    def test_the_held_trigger_key_shows_no_answers(self):
        self.open_practice()
        self.begin_round()
        self.wait_watching()
        with desktop.held("Super_L"):
            desktop.stays("there is no overlay", lambda: len(desktop.visible_windows(self.quillon.pid)) == 1, 1.5)
        self.question()

    def test_keys_are_read_by_the_layout(self):
        commands = {"Undo": (CONTROL, {"char": {"_0": "Z"}}), "Zoom": (CONTROL, {"char": {"_0": "+"}}),
                    "Slash": (CONTROL, {"char": {"_0": "/"}})}
        keys = {"Undo": ("y",), "Zoom": ("]",), "Slash": ("7", "Ctrl", "Shift")}
        with layout("de"):
            self.open_practice(commands)
            self.begin_round()
            for _ in commands:
                command = self.question(commands)
                self.wait_grabbed()
                chord(*keys[command])
                self.wait_says("Right")
                self.go_on()
            self.wait_says("3 of 3 right")

    def test_the_command_line_practises_one_application(self):
        unknown = Ran("practice", "--app", "nobody")
        self.assertEqual((unknown.status, unknown.errors),
                         (3, "quillon: the shortcuts of an application called 'nobody' have not been read yet\n"))
        self.start_quillon()
        self.assertEqual(Ran("practice", "--app", "nobody").status, 3)
        self.assertFalse(desktop.visible_windows(self.quillon.pid))
        self.assertEqual(Ran("practice", "--app", APP).status, 0)
        wait_until("the window in front", lambda: self.has_front_window(self.quillon))
        self.begin_round()
        self.question()


if __name__ == "__main__":
    desktop.main()
