"""One program per session: starting it again reaches the one that runs."""

import signal

import desktop
from desktop import wait_until
from quillon import SERVICE, QuillonTestCase, Ran, owns_name


class InstanceTest(QuillonTestCase):
    def test_a_second_start_brings_up_the_first(self):
        self.start_quillon()
        self.assertEqual(desktop.visible_windows(self.quillon.pid), [])
        second = Ran()
        self.assertEqual((second.status, second.output), (0, ""), second)
        wait_until("the menu of the first", lambda: desktop.visible_windows(self.quillon.pid))
        self.assertTrue(self.overlay.is_closed())
        desktop.press("Down", "Return")  # Show Shortcuts
        wait_until("the overlay", self.overlay.is_open)

    def test_the_menu_of_a_second_start_can_quit_the_first(self):
        self.start_quillon()
        self.assertEqual(Ran().status, 0)
        wait_until("the menu of the first", lambda: desktop.visible_windows(self.quillon.pid))
        desktop.press("Up", "Return")  # Quit Quillon
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)

    def test_the_keys_that_the_menu_shows_choose_its_lines(self):
        self.start_quillon()
        self.assertEqual(Ran().status, 0)
        wait_until("the menu of the first", lambda: desktop.visible_windows(self.quillon.pid))
        desktop.press("ctrl+comma")
        wait_until("the settings", lambda: desktop.active_title() == "Quillon Settings")
        self.assertEqual(Ran().status, 0)
        wait_until("the menu again", lambda: len(desktop.visible_windows(self.quillon.pid)) == 2)
        desktop.press("ctrl+q")
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)

    def test_show_opens_the_overlay_of_the_running_program_and_keeps_it_open(self):
        geany = self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon()
        self.assertEqual(Ran("show").status, 0)
        wait_until("the overlay", self.overlay.is_open)
        wait_until("geany's commands", lambda: "New, ⌃N" in self.overlay.rows())
        self.assertTrue(self.overlay.says("Esc closes"))
        self.assertTrue(geany.is_running())
        desktop.type_text("reload")
        self.wait_for_rows("matches", lambda rows: 0 < len(rows) < 5)

    def test_show_starts_the_program_when_none_runs(self):
        self.start_quillon("show")
        wait_until("the overlay", self.overlay.is_open)

    def test_the_sample_needs_no_application(self):
        self.start_quillon("show", "--sample")
        wait_until("the overlay", self.overlay.is_open)
        wait_until("the sample's commands", lambda: len(self.overlay.rows()) >= 59)
        self.assertTrue(self.overlay.says("Sketchpad"))

    def test_quit_ends_it(self):
        self.start_quillon()
        self.assertEqual(Ran("quit").status, 0)
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)
        self.assertFalse(owns_name(SERVICE))

    def test_quit_without_a_running_program_fails_and_says_so(self):
        ran = Ran("quit")
        self.assertEqual(ran.status, 1)
        self.assertIn("no running instance", ran.errors)

    def test_the_program_can_be_started_again_after_it_was_killed(self):
        self.start_quillon().process.send_signal(signal.SIGKILL)
        wait_until("the name to be free", lambda: not owns_name(SERVICE))
        self.start_quillon()

    def test_two_started_together_leave_one(self):
        programs = [self.start(self.program()) for _ in range(2)]
        wait_until("one of them to give way", lambda: sum(p.is_running() for p in programs) == 1)
        self.assertTrue(owns_name(SERVICE))


if __name__ == "__main__":
    desktop.main()
