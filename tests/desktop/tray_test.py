"""The program's item in a tray: what the tray is told, what clicks and the menu's lines do there, and how it comes to
trays that come late or again."""

import os
import pathlib

import accessible
import desktop
from desktop import wait_until
from gi.repository import GLib
from quillon import QuillonTestCase, Ran, doctor, request, write_settings
from tray_host import TrayWatcher

BELOW_THE_HINT = ["-", "Practice", "Library…", "-", "Settings | Control+comma", "Check for Updates…",
                  "Quit Quillon | Control+q"]
GTK_SETTINGS = pathlib.Path(os.environ.get("XDG_CONFIG_HOME", "/nonexistent"), "gtk-3.0", "settings.ini")
UPDATE_MESSAGES = {"Updates come with your system’s software", "You’re up to date", "Couldn’t check for updates"}
SHOWN = "ok shows Quillon’s icon"


def set_accessibility(is_on):
    accessible.ask(accessible.session_bus(), "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                   GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", is_on))))


class TrayTestCase(QuillonTestCase):
    def make_watcher(self, **options):
        watcher = TrayWatcher(**options)
        self.addCleanup(watcher.close)
        return watcher

    def wait_in_tray(self):
        wait_until("its icon to be in the tray", lambda: request("IsInTray")[0])

    def wait_not_in_tray(self):
        wait_until("its icon to be in no tray", lambda: not request("IsInTray")[0])

    def shown_menu(self, watcher):
        menu = watcher.item().menu()
        self.addCleanup(menu.close)
        return menu


class ItemTest(TrayTestCase):
    def setUp(self):
        super().setUp()
        GTK_SETTINGS.parent.mkdir(exist_ok=True)  # a folder that comes later is not noticed
        self.watcher = self.make_watcher()
        self.start_quillon()
        self.wait_in_tray()
        self.item = self.watcher.item()

    def test_what_it_tells_of_itself(self):
        told = self.item.all_told()
        for name, value in {"Id": "app.quillon.Quillon", "Title": "Quillon", "Status": "Active",
                            "Category": "ApplicationStatus", "ItemIsMenu": True, "Menu": "/MenuBar",
                            "IconAccessibleDesc": "Quillon", "ToolTip": ("", [], "Quillon", "")}.items():
            self.assertEqual(told[name], value, name)
        self.assertEqual([picture[:2] for picture in told["IconPixmap"]],
                         [(size, size) for size in (16, 22, 24, 32, 44, 48, 64)])
        for width, height, pixels in told["IconPixmap"]:
            self.assertEqual(len(pixels), width * height * 4)

    def test_its_picture_stands_out_in_the_scheme_of_the_desktop(self):
        self.assertLess(self.item.brightness(), 80)
        self.addCleanup(GTK_SETTINGS.unlink)
        GTK_SETTINGS.write_text("[Settings]\ngtk-application-prefer-dark-theme=1\n", encoding="utf-8")
        wait_until("a light picture on a dark desktop", lambda: self.item.brightness() > 200)

    def test_the_checkup_says_that_it_is_shown(self):
        self.assertEqual(doctor()["Tray"], SHOWN)

    def test_a_click_opens_the_menu_at_the_pointer(self):
        for number, method in enumerate(("Activate", "ContextMenu")):
            desktop.xdotool("mousemove", "--sync", 400 + number, 300)
            before = desktop.screenshot("no-tray-menu")
            self.item.click(method)
            (_, x, y, width, height), = wait_until("the menu", lambda: desktop.visible_windows(self.quillon.pid))
            self.assertTrue(x <= 401 <= x + width and y <= 300 <= y + height, (x, y, width, height))
            wait_until("its picture", lambda before=before, area=width * height: desktop.differing_pixels(
                before, desktop.screenshot("tray-menu")) > area / 2)
            desktop.press("Escape")
            wait_until("the menu to close", lambda: not desktop.visible_windows(self.quillon.pid))

    def test_the_opened_menu_does_what_is_chosen(self):
        self.item.click("Activate")
        wait_until("the menu", lambda: desktop.visible_windows(self.quillon.pid))
        desktop.press("Down", "Return")  # Show Shortcuts
        wait_until("the overlay", self.overlay.is_open)

    def test_a_click_with_the_middle_button_opens_the_overlay_to_stay(self):
        self.item.click("SecondaryActivate")
        wait_until("the overlay", self.overlay.is_open)
        wait_until("its hint", lambda: self.overlay.says("Esc closes"))

    def test_what_is_no_call_of_a_tray_is_an_error(self):
        menu = self.shown_menu(self.watcher)
        for method, arguments in (("Event", GLib.Variant("(i)", (1,))), ("GetLayout", None),
                                  ("GetLayout", GLib.Variant("(iias)", (77, -1, []))),
                                  ("GetProperty", GLib.Variant("(is)", (1, "nothing"))), ("Unknown", None)):
            with self.assertRaises(GLib.Error):
                menu.call(method, arguments)
        asked = list(range(-50, 50)) * 20
        self.assertLessEqual(len(menu.call("GetGroupProperties", GLib.Variant("(aias)", (asked, [])))[0]), 12)
        self.assertEqual(menu.call("AboutToShow", GLib.Variant("(i)", (0,))), (False,))


class MenuTest(TrayTestCase):
    def setUp(self):
        super().setUp()
        self.watcher = self.make_watcher()

    def start_in_tray(self):
        self.start_quillon()
        self.wait_in_tray()
        return self.shown_menu(self.watcher)

    def test_it_reads_line_for_line(self):
        menu = self.start_in_tray()
        wait_until("the whole menu", lambda: menu.texts() == ["Show Shortcuts", "[Or hold ⌘ in any app]",
                                                              *BELOW_THE_HINT])

    def test_show_shortcuts_opens_the_overlay_to_stay(self):
        menu = self.start_in_tray()
        wait_until("its line", lambda: "Show Shortcuts" in menu.texts())
        menu.choose("Show Shortcuts")
        wait_until("the overlay", self.overlay.is_open)
        wait_until("its hint", lambda: self.overlay.says("Esc closes"))

    def wait_in_front(self, title):
        wait_until(f"{title} in front", lambda: desktop.active_title() == title)

    def test_every_window_opens_in_front_and_only_once(self):
        self.start_application("geany", "--new-instance", "--no-session")
        menu = self.start_in_tray()
        windows = {"Practice": "Practice", "Library…": "Quillon Library",
                   "Settings | Control+comma": "Quillon Settings"}
        for line, title in windows.items():
            menu.choose(line)
            self.wait_in_front(title)
        for line, title in windows.items():
            desktop.activate("geany")
            menu.choose(line)
            self.wait_in_front(title)
        self.assertEqual(len(desktop.visible_windows(self.quillon.pid)), len(windows))

    def test_check_for_updates_tells_what_is_known(self):
        menu = self.start_in_tray()
        menu.choose("Check for Updates…")
        wait_until("a message in front", lambda: self.has_front_window(self.quillon))
        wait_until("its text", lambda: UPDATE_MESSAGES & set(desktop.shown_texts(self.quillon.pid)))

    def test_the_line_that_only_tells_does_nothing(self):
        menu = self.start_in_tray()
        menu.choose("[Or hold ⌘ in any app]")
        menu.choose("Settings | Control+comma")
        self.wait_in_front("Quillon Settings")
        wait_until("it on the screen", lambda: desktop.visible_windows(self.quillon.pid))
        self.assertEqual(len(desktop.visible_windows(self.quillon.pid)), 1)

    def test_the_hint_follows_the_settings_at_once(self):
        menu = self.start_in_tray()
        menu.choose("Settings | Control+comma")
        self.wait_in_front("Quillon Settings")
        for index, key in (("Command", "⌥"), ("Option", "⌃")):
            desktop.click(*wait_until("the trigger", lambda index=index: next(
                (found for found in desktop.shown(self.quillon.pid)
                 if (found.role(), found.name()) == ("combo box", index)), None)).centre())
            wait_until("the choices", lambda: len(desktop.visible_windows(self.quillon.pid)) > 1)
            desktop.press("Down", "Return")
            wait_until(f"the menu to name {key}", lambda key=key: f"[Or hold {key} in any app]" in menu.texts())

    def test_quit_ends_the_program(self):
        menu = self.start_in_tray()
        menu.choose("Quit Quillon | Control+q")
        wait_until("the program to end", lambda: not self.quillon.is_running())
        self.assertEqual(self.quillon.process.returncode, 0)

    def test_it_names_the_application_in_front_at_once(self):
        menu = self.start_in_tray()
        first = menu.number("Show Shortcuts")
        self.start_application("mousepad")
        wait_until("the application's name", lambda: menu.texts()[0] == "Show Shortcuts for Mousepad")
        self.assertEqual(menu.number("Show Shortcuts for Mousepad"), first)

    def test_the_hint_names_the_chosen_key(self):
        write_settings(onboarded="true", trigger="option")
        self.assertIn("[Or hold ⌥ in any app]", self.start_in_tray().texts())

    def test_while_menus_may_not_be_read_it_begins_with_asking_for_that(self):
        menu = self.start_in_tray()
        wait_until("the permission", lambda: menu.texts()[0].startswith("Show Shortcuts"))
        shortcuts = next(iter(menu.lines))
        self.addCleanup(set_accessibility, True)
        set_accessibility(False)
        wait_until("the question", lambda: menu.texts()[:3] == ["Allow Accessibility…", "-", "Show Shortcuts"])
        self.assertEqual(list(menu.lines)[2], shortcuts, "lines that stay keep their numbers")
        menu.choose("Allow Accessibility…")
        wait_until("the welcome", lambda: desktop.xdotool("search", "--onlyvisible", "--name", "Welcome to Quillon",
                                                          check=False))
        set_accessibility(True)
        wait_until("the question to go", lambda: menu.texts()[0].startswith("Show Shortcuts"))


class ComingAndGoingTest(TrayTestCase):
    def test_a_tray_that_comes_later_shows_it(self):
        self.start_quillon()
        wait_until("the checkup to find no tray", lambda: doctor()["Tray"] == "limited there is none")
        watcher = self.make_watcher()
        self.wait_in_tray()
        self.assertEqual(len(watcher.items), 1)
        self.assertEqual(doctor()["Tray"], SHOWN)

    def test_a_host_that_comes_later_shows_it(self):
        watcher = self.make_watcher(has_host=False)
        self.start_quillon()
        wait_until("it to register", lambda: watcher.items)
        self.assertFalse(request("IsInTray")[0])
        watcher.set_host(True)
        self.wait_in_tray()
        watcher.set_host(False)
        self.wait_not_in_tray()
        watcher.set_host(True)
        self.wait_in_tray()

    def test_a_tray_that_ends_and_starts_again_shows_it_again(self):
        first = self.make_watcher()
        self.start_quillon()
        self.wait_in_tray()
        first.close()
        self.wait_not_in_tray()
        self.assertTrue(self.quillon.is_running(), "it stays without a tray")
        second = self.make_watcher()
        self.wait_in_tray()
        self.assertEqual(second.item().told("Title"), "Quillon")
        self.assertIn("Quit Quillon | Control+q", self.shown_menu(second).texts())

    def test_without_a_tray_a_second_start_opens_the_menu(self):
        self.start_quillon()
        self.assertEqual(Ran().status, 0)
        wait_until("the menu", lambda: desktop.visible_windows(self.quillon.pid))
        desktop.press("Down", "Return")  # Show Shortcuts
        wait_until("the overlay", self.overlay.is_open)

    def test_the_checkup_tells_of_a_tray_while_the_program_does_not_run(self):
        self.assertEqual(doctor()["Tray"], "limited there is none")
        self.make_watcher()
        self.assertEqual(doctor()["Tray"], "ok can show Quillon’s icon")


if __name__ == "__main__":
    desktop.main()
