"""The program's icon in a tray of the X server (XEmbed), that of i3's bar: it comes however late the tray does, and gives
way to a tray on the session bus."""

import os
import pathlib
import re
import subprocess

import desktop
from desktop import wait_until
from quillon import QuillonTestCase, doctor, request
from tray_host import TrayWatcher

I3_CONFIGURATION = pathlib.Path(os.environ.get("HOME", "/nonexistent")).parent / "window-manager"
BAR = """
bar {{
    id {name}
    i3bar_command true
    position bottom
    font pango:monospace 12
    colors {{
        background {background}
        statusline {foreground}
    }}
}}
"""
ICON_AT_MOST = 64  # pixels; the menu and the overlay are larger


class DockedIconTest(QuillonTestCase):
    def start_bar(self, name="dark", background="#202020", foreground="#f0f0f0"):
        """i3 starts none by itself: the test does, so that it can end it."""
        block = BAR.format(name=name, background=background, foreground=foreground)
        configuration = I3_CONFIGURATION.read_text(encoding="utf-8")
        if block not in configuration:
            I3_CONFIGURATION.write_text(configuration + block, encoding="utf-8")
            subprocess.run(["i3-msg", "reload"], check=True, capture_output=True, timeout=10)
        return self.start("i3bar", f"--bar_id={name}")

    def icons(self):
        return [window for window in desktop.visible_windows(self.quillon.pid)
                if max(window[3], window[4]) <= ICON_AT_MOST]

    def others(self):
        return [window for window in desktop.visible_windows(self.quillon.pid)
                if max(window[3], window[4]) > ICON_AT_MOST]

    def wait_docked(self):
        wait_until("its icon to be in the tray", lambda: request("IsInTray")[0])
        icon, = wait_until("the icon's window", self.icons)
        return icon

    def place(self):
        """Where the icon is on the screen; xdotool adds the place of a window inside of another one twice."""
        facts = subprocess.run(["xwininfo", "-id", str(self.icons()[0][0])], text=True, capture_output=True, check=True,
                               timeout=10).stdout
        return tuple(int(re.search(name + r": +(-?\d+)", facts)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def brightnesses(self):
        """The darkest and the lightest there is in the icon's place."""
        x, y, width, height = self.place()
        result = subprocess.run(
            ["convert", str(desktop.screenshot("docked-icon")), "-crop", f"{width}x{height}+{x}+{y}", "-colorspace",
             "Gray", "-format", "%[fx:minima] %[fx:maxima]", "info:"], text=True, capture_output=True, check=True,
            timeout=30)
        return tuple(map(float, result.stdout.split()))

    def click(self, button):
        x, y, width, height = self.place()
        desktop.click(x + width // 2, y + height // 2, button)

    def test_it_is_light_on_a_dark_bar_and_dark_on_a_light_one(self):
        bar = self.start_bar()
        self.start_quillon()
        self.wait_docked()
        wait_until("a light sign on the bar's colour",
                   lambda: self.brightnesses()[0] < 0.2 and self.brightnesses()[1] > 0.85)
        self.assertEqual(doctor()["Tray"], "ok shows Quillon’s icon")
        bar.end()
        self.start_bar("light", background="#f4f4f4", foreground="#101010")
        self.wait_docked()
        wait_until("a dark sign on the bar's colour",
                   lambda: self.brightnesses()[0] < 0.2 and self.brightnesses()[1] > 0.85)

    def test_clicks(self):
        self.start_bar()
        self.start_quillon()
        self.wait_docked()
        for button in (1, 3):
            self.click(button)
            wait_until("the menu", self.others)
            desktop.press("Escape")
            wait_until("the menu to close", lambda: not self.others())
        self.click(2)
        wait_until("the overlay", self.overlay.is_open)

    def test_it_comes_to_a_tray_that_comes_later_and_again(self):
        self.start_quillon()
        self.assertFalse(request("IsInTray")[0])
        bar = self.start_bar()
        self.wait_docked()
        bar.process.kill()
        wait_until("its icon to be in no tray", lambda: not request("IsInTray")[0])
        wait_until("no icon in the middle of the screen", lambda: not self.icons())
        self.start_bar()
        self.wait_docked()

    def test_a_tray_on_the_session_bus_is_preferred(self):
        self.start_bar()
        self.start_quillon()
        self.wait_docked()
        watcher = TrayWatcher()
        self.addCleanup(watcher.close)
        wait_until("it to leave the bar", lambda: watcher.items and not self.icons())
        self.assertTrue(request("IsInTray")[0])
        watcher.close()
        self.wait_docked()


if __name__ == "__main__":
    desktop.main()
