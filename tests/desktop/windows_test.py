"""The program's windows: reached by a second start, by the command line and over the session bus, and read aloud."""

from gi.repository import GLib

import accessible
import desktop
from desktop import wait_until
from quillon import OBJECT, SERVICE, Ran, owns_name, write_settings
from welcome_test import TITLE, WelcomeTest

APPLICATION = "org.freedesktop.Application"


def act(name):
    """Chooses an action of the desktop entry, as launchers do."""
    arguments = GLib.Variant("(sava{sv})", (name, [], {"desktop-startup-id": GLib.Variant("s", "test_TIME1")}))
    accessible.ask(accessible.session_bus(), SERVICE, OBJECT, APPLICATION, "ActivateAction", arguments)


class WindowsTest(WelcomeTest):
    def setUp(self):
        super().setUp()
        write_settings(onboarded="true")

    def put_geany_in_front(self):
        self.start_application("geany", "--new-instance", "--no-session")

    def test_a_command_opens_its_window_in_front_of_others(self):
        self.start_quillon()
        self.put_geany_in_front()
        for _ in range(2):  # made anew, and brought to the front
            ran = Ran("welcome")
            self.assertEqual((ran.status, ran.output, ran.errors), (0, "", ""))
            self.wait_in_front(TITLE)
            desktop.activate("geany")
        self.assertEqual(len(desktop.visible_windows(self.quillon.pid)), 1)

    def test_a_window_on_another_workspace_or_minimised_comes_back(self):
        self.start_quillon("welcome")
        self.wait_in_front(TITLE)
        desktop.xdotool("set_num_desktops", 2)
        desktop.xdotool("set_desktop", 1)
        self.put_geany_in_front()
        self.assertEqual(Ran("welcome").status, 0)
        self.wait_in_front(TITLE)
        desktop.xdotool("getactivewindow", "windowminimize")
        wait_until("the welcome to be minimised", lambda: desktop.active_title() != TITLE)
        self.assertEqual(Ran("welcome").status, 0)
        self.wait_in_front(TITLE)
        desktop.xdotool("set_desktop", 0)

    def test_a_command_starts_the_program_with_its_window(self):
        self.start_quillon("welcome")
        self.wait_in_front(TITLE)

    def test_whoever_has_not_completed_the_welcome_is_brought_to_it(self):
        write_settings()
        self.start_quillon()
        self.wait_in_front(TITLE)
        desktop.press("Escape")
        wait_until("the welcome to be closed", lambda: not desktop.visible_windows(self.quillon.pid))
        self.assertEqual(Ran().status, 0)
        self.wait_in_front(TITLE)

    def test_whoever_has_is_left_alone(self):
        self.start_quillon()
        self.wait_watching()
        desktop.stays("no window", lambda: not desktop.visible_windows(self.quillon.pid), 5)

    def test_launchers_reach_everything_over_the_bus(self):
        self.start_quillon()
        self.put_geany_in_front()
        act("welcome")
        self.wait_in_front(TITLE)
        desktop.press("ctrl+w")
        wait_until("the welcome to be closed", lambda: not desktop.visible_windows(self.quillon.pid))
        act("show")
        wait_until("the overlay", self.overlay.is_open)
        desktop.press("Escape")
        self.wait_closed()
        with self.assertRaises(GLib.Error):
            act("nonsense")
        act("quit")
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)
        self.assertFalse(owns_name(SERVICE))

    def test_activation_brings_up_the_menu(self):
        self.start_quillon()
        accessible.ask(accessible.session_bus(), SERVICE, OBJECT, APPLICATION, "Activate",
                       GLib.Variant("(a{sv})", ({},)))
        wait_until("the menu", lambda: desktop.visible_windows(self.quillon.pid))
        self.assertNotEqual(desktop.active_title(), TITLE)
        desktop.press("Down", "Return")  # Show Shortcuts
        wait_until("the overlay", self.overlay.is_open)

    def test_the_welcome_is_read_aloud_and_walked_through_by_tab(self):
        self.start_quillon("welcome")
        self.wait_in_front(TITLE)
        self.wait_for("label", "Allowed")
        read = self.shown()
        for name in ("Step 1, done", "Allow Accessibility", "Step 2", "Hold ⌘ in any app", "Step 3",
                     "Nothing leaves your computer"):
            self.assertIn(("label", name), read)
        self.assertIn(read[0], [("frame", TITLE), ("window", TITLE)])
        self.assertTrue(all(name for role, name in read if role == "push button"), read)
        self.assertIn(self.focused(), ("Done", "Later"))
        order = []
        for _ in range(3):
            before = self.focused()
            desktop.press("Tab")
            order.append(wait_until("the focus to move", lambda before=before: self.focused() != before
                                    and self.focused()))
        self.assertEqual(sorted(set(order)), ["Done", "Later"])
        while self.focused() != "Later":
            desktop.press("Tab")
        desktop.press("Return")
        wait_until("the welcome to be closed", lambda: not desktop.visible_windows(self.quillon.pid))


if __name__ == "__main__":
    desktop.main()
