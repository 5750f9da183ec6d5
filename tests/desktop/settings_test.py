"""The settings, used as people use them: real clicks and keys, and what follows from them."""

import configparser
import os
import pathlib
import subprocess

import desktop
from desktop import wait_until
from own_windows import OwnWindowsTestCase
from quillon import LEARNED, Ran, request

CONFIG = pathlib.Path(os.environ.get("XDG_CONFIG_HOME", pathlib.Path.home() / ".config"))
SETTINGS = CONFIG / "app.quillon.Quillon/settings.ini"
AUTOSTART = CONFIG / "autostart/app.quillon.Quillon.desktop"

NUDGE = "Nudge me when I click a menu command that has a shortcut"
COUNT = "Count the shortcuts I type (to know which ones I already use)"
START = "Start with the session"


def stored(key):
    """A setting as the file has it; None when it is not there."""
    parser = configparser.ConfigParser()
    parser.optionxform = str
    parser.read(SETTINGS)
    return parser.get("General", key, fallback=None)


class SettingsTest(OwnWindowsTestCase):
    def setUp(self):
        super().setUp()
        SETTINGS.unlink(missing_ok=True)
        SETTINGS.parent.mkdir(parents=True, exist_ok=True)
        SETTINGS.write_text("[General]\nonboarded=true\n", encoding="utf-8")
        AUTOSTART.unlink(missing_ok=True)
        self.editor = self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon()
        self.wait_watching()

    def open_tab(self, label):
        self.click_control("page tab", label)
        self.wait_state("page tab", label, "focused")

    def choose_trigger(self, downs):
        """Opens the choices by a click and takes the one that is so many below."""
        self.click_control("combo box", "Command")
        wait_until("the choices", lambda: len(desktop.visible_windows(self.quillon.pid)) > 1)
        desktop.press(*["Down"] * downs, "Return")
        wait_until("the choices to close", lambda: len(desktop.visible_windows(self.quillon.pid)) == 1)

    def close_window(self):
        desktop.press("ctrl+w")
        wait_until("the window to close", lambda: not desktop.visible_windows(self.quillon.pid))
        wait_until("the editor in front", lambda: self.has_front_window(self.editor))

    def test_another_key_is_held_at_once(self):
        self.open_window("settings")
        self.choose_trigger(2)
        wait_until("the setting", lambda: stored("trigger") == "control")
        self.close_window()
        with desktop.held("Control_L"):
            wait_until("the overlay", self.overlay.is_open)
        self.wait_closed()
        with desktop.held("Super_L"):
            self.assert_stays_closed()

    def test_the_hold_time_is_moved_by_the_keyboard(self):
        self.open_window("settings")
        slider = self.control("slider", "Hold time")
        self.assertEqual(slider.description(), "0.8 s")
        desktop.click(*self.control("combo box", "Symbols").centre())
        desktop.press("Escape")
        desktop.press("shift+Tab", "Left", "Left")
        wait_until("the time to be told", lambda: slider.description() == "0.6 s")
        wait_until("the setting", lambda: float(stored("holdDelay") or 0) == 0.6)

    def test_erase_empties_the_files_and_keeps_the_settings(self):
        wait_until("the editor's menus to be known", (LEARNED / "menus.json").exists)
        self.open_window("settings")
        self.choose_trigger(1)
        wait_until("the setting", lambda: stored("trigger") == "option")
        self.open_tab("Privacy")
        self.click_control("push button", "Erase Stats, Pins and Notes…")
        self.click_control("push button", "Cancel")
        wait_until("the question to be gone", lambda: not self.controls("dialog"))
        self.assertTrue((LEARNED / "menus.json").exists())
        self.click_control("push button", "Erase Stats, Pins and Notes…")
        self.click_control("push button", "Erase")
        wait_until("everything to be erased", lambda: not list(LEARNED.glob("*.json")))
        self.assertEqual(stored("trigger"), "option")
        self.assertEqual(stored("onboarded"), "true")
        self.assertNotIn("geany", Ran("stats").output)

    def test_the_coachs_switches_stop_and_start_what_is_noticed(self):
        self.open_window("settings")
        self.open_tab("Coach")
        for name, method in ((NUDGE, "IsWatchingClicks"), (COUNT, "IsWatchingTyping")):
            self.wait_state("check box", name, "checked")
            self.assertTrue(request(method)[0], method)
            self.click_control("check box", name)
            wait_until(f"not {method}", lambda: not request(method)[0])
            self.wait_state("check box", name, "checked", False)
            self.click_control("check box", name)
            wait_until(method, lambda: request(method)[0])

    def test_the_tab_is_remembered(self):
        self.open_window("settings")
        self.wait_state("page tab", "General", "focused")
        self.open_tab("Coach")
        self.assertEqual(Ran("quit").status, 0)
        self.quillon.process.wait(timeout=30)
        self.start_quillon()
        self.open_window("settings")
        self.wait_state("page tab", "Coach", "focused")

    def test_starting_with_the_session_is_an_entry_that_comes_and_goes(self):
        self.open_window("settings")
        self.wait_state("check box", START, "checked", False)
        self.assertFalse(AUTOSTART.exists())
        self.click_control("check box", START)
        wait_until("the entry", AUTOSTART.exists)
        valid = subprocess.run(["desktop-file-validate", str(AUTOSTART)], text=True, capture_output=True, check=False,
                               timeout=20)
        self.assertEqual((valid.returncode, valid.stdout), (0, ""))
        self.click_control("check box", START)
        wait_until("no entry", lambda: not AUTOSTART.exists())


if __name__ == "__main__":
    desktop.main()
