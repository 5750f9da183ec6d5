"""The program's own windows, and the controls in them."""

import desktop
from desktop import wait_until
from quillon import QuillonTestCase, Ran

TITLES = {"settings": "Settings", "welcome": "Welcome", "library": "Library", "practice": "Practice"}


class OwnWindowsTestCase(QuillonTestCase):
    def open_window(self, name):
        """Asks the running program for a window, and waits until it is in front."""
        ran = Ran(name)
        self.assertEqual(ran.status, 0, ran)
        wait_until(f"the window {name} in front", lambda: self.has_front_window(self.quillon))
        wait_until(f"the window {name} on the accessibility bus", lambda: list(desktop.shown(self.quillon.pid)))

    def controls(self, role):
        """Newer toolkits have a role of its own for buttons that open a menu."""
        roles = {role, "push button menu"} if role == "push button" else {role}
        return [found for found in desktop.shown(self.quillon.pid) if found.role() in roles]

    def control(self, role, name):
        """The control on the screen of the program's; waits for it."""
        return wait_until(f"{role} {name!r}", lambda: next(
            (found for found in self.controls(role) if found.name() == name), None))

    def click_control(self, role, name):
        desktop.click(*self.control(role, name).centre())

    def wait_state(self, role, name, state, is_there=True):
        wait_until(f"{role} {name!r} {'is' if is_there else 'is not'} {state}",
                   lambda: (state in self.control(role, name).states()) == is_there)
