"""A desktop whose accessibility bus is switched off, and is switched on through the program."""

import desktop
from desktop import wait_until
from quillon import QuillonTestCase, Ran, doctor

READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # for this test to see the program's own windows


class AccessibilityOffTest(QuillonTestCase):
    def test_commands_say_that_it_is_off(self):
        ran = Ran("sheet")
        self.assertEqual((ran.status, ran.output), (4, ""), ran)
        self.assertIn("accessibility is off", ran.errors)
        self.assertEqual(repr(Ran("apps")), repr(ran))
        checks = doctor()
        self.assertEqual(checks["Accessibility bus"].split()[0], "ok")
        self.assertEqual(checks["Accessibility"].split()[0], "missing")
        self.assertEqual(Ran("doctor").status, 1)

    def test_holding_the_key_shows_what_is_missing(self):
        self.start_quillon(environment=READABLE)
        self.wait_watching()
        with self.overlay_held_open() as overlay:
            wait_until("the message", lambda: overlay.says("Quillon needs Accessibility to read menus"))
        self.wait_closed()

    def button(self, label):
        """The button with this label, or None while it is not on the screen."""
        return next((found for found in desktop.shown(self.quillon.pid) if found.name() == label), None)

    def test_the_user_can_allow_it_and_goes_on_without_restarting_anything(self):
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon(environment=READABLE)
        self.assertEqual(Ran("show").status, 0)
        wait_until("the message", lambda: self.overlay.says("Quillon needs Accessibility to read menus"))
        for label in ("Show Me How", "Allow Accessibility…"):
            desktop.click(*wait_until(label, lambda label=label: self.button(label)).centre())
        wait_until("accessibility to be on", lambda: doctor()["Accessibility"].startswith("ok"))
        desktop.press("Escape")  # the welcome
        Ran("show")
        self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)


if __name__ == "__main__":
    desktop.main()
