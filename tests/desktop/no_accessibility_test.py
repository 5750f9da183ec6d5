"""A desktop without an accessibility bus: the program runs, and everything says what it lacks."""

import desktop
from desktop import wait_until
from quillon import QuillonTestCase, Ran, doctor


class NoAccessibilityTest(QuillonTestCase):
    def test_commands_say_what_is_missing(self):
        for command in ("sheet", "apps"):
            ran = Ran(command)
            self.assertEqual((ran.status, ran.output), (4, ""), ran)
            self.assertIn("the accessibility bus cannot be reached", ran.errors)

    def test_the_checkup_says_what_is_missing_and_what_to_do(self):
        self.assertEqual(doctor()["Accessibility bus"].split()[0], "missing")
        ran = Ran("doctor")
        self.assertEqual(ran.status, 1)
        self.assertIn("Install the package at-spi2-core", ran.output)

    def test_the_program_runs_shows_its_panel_and_ends(self):
        self.start_quillon()
        self.assertEqual(Ran("show").status, 0)
        wait_until("the overlay", self.overlay.is_open)
        desktop.press("Escape")
        self.wait_closed()
        self.assertEqual(Ran("quit").status, 0)
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)

    def test_the_sample_can_be_seen(self):
        before = desktop.screenshot("nothing")
        self.start_quillon("show", "--sample")
        wait_until("the overlay", self.overlay.is_open)
        wait_until("its picture", lambda: desktop.differing_pixels(before, desktop.screenshot("sample")) > 200_000)


class NoBusAtAllTest(QuillonTestCase):
    NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}

    def test_commands_say_that_there_is_no_session_bus(self):
        ran = Ran("sheet", environment=self.NO_BUS)
        self.assertEqual((ran.status, ran.output), (4, ""), ran)
        self.assertIn("there is no session bus", ran.errors)
        self.assertEqual(doctor(environment=self.NO_BUS)["Session bus"].split()[0], "missing")

    def test_the_program_runs_all_the_same(self):
        program = self.start(self.program(), "show", "--sample", environment=self.NO_BUS)
        wait_until("the overlay", lambda: desktop.visible_windows(program.pid))


class NoDisplayTest(QuillonTestCase):
    NO_DISPLAY = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")

    def test_the_program_says_so_and_ends(self):
        ran = Ran(without=self.NO_DISPLAY)
        self.assertEqual((ran.status, ran.output), (1, ""), ran)
        self.assertIn("there is no display", ran.errors)

    def test_the_checkup_says_so(self):
        checks = doctor(without=self.NO_DISPLAY)
        self.assertEqual(checks["Display"].split()[0], "missing")


if __name__ == "__main__":
    desktop.main()
