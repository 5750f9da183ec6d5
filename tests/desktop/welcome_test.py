"""The first start: the welcome opens by itself, asks for the permission and notices that it was given."""

import desktop
from accessible import application_of
from desktop import wait_until
from quillon import QuillonTestCase, write_settings

READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # for this test to see the program's own windows
TITLE = "Welcome to Quillon"


class WelcomeTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        write_settings()

    def shown(self):
        """What of the program is on the screen, as (role, name)."""
        return [(found.role(), found.name()) for found in desktop.shown(self.quillon.pid)]

    def find(self, role, name):
        return next((found for found in desktop.shown(self.quillon.pid)
                     if (found.role(), found.name()) == (role, name)), None)

    def wait_for(self, role, name):
        return wait_until(f"{role} {name}", lambda: self.find(role, name))

    def focused(self):
        return next((found.name() for found in desktop.shown(self.quillon.pid) if "focused" in found.states()), None)

    def wait_in_front(self, title):
        wait_until(f"{title} in front", lambda: desktop.active_title() == title
                   and desktop.focused_window() == desktop.active_window())


class FirstStartTest(WelcomeTest):
    def names_designer(self):
        """Whether it is told that designer has to be restarted."""
        return any("start it again: " in name and "designer" in name.lower() for _, name in self.shown())

    def test_from_the_first_start_to_the_first_sheet(self):
        self.start_application("geany", "--new-instance", "--no-session")
        old = self.start("/usr/lib/qt6/bin/designer")  # until Qt 6.5 it looks for the accessibility bus when it begins alone
        wait_until("the window of designer", lambda: self.has_front_window(old), within=40)
        self.start_quillon(environment=READABLE)
        self.wait_in_front(TITLE)
        ask = self.wait_for("push button", "Allow Accessibility…")
        self.assertTrue(self.find("label", "Step 1"), self.shown())
        desktop.click(*ask.centre())
        self.wait_for("label", "Step 1, done")
        self.assertIsNone(self.find("push button", "Allow Accessibility…"))
        self.assertTrue(self.find("label", "Allowed"), self.shown())
        wait_until("designer to be named or on the bus", lambda: self.names_designer() != bool(application_of(old.pid)))
        desktop.screenshot("welcome-restart")
        old.end()
        wait_until("designer to be forgotten", lambda: not self.names_designer())
        desktop.click(*self.find("push button", "Done").centre())
        wait_until("the welcome to be closed", lambda: not desktop.visible_windows(self.quillon.pid))
        desktop.activate("geany")
        with self.overlay_held_open():
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)


if __name__ == "__main__":
    desktop.main()
