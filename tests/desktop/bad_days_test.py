"""Applications that hang, die or answer late cost their own sheet, and nothing else."""

import statistics
import time

import desktop
from accessible import application_of
from desktop import wait_until
from independent_sheet import entries, read_menu_bar
from quillon import QuillonTestCase, Ran, longest_stall, measure_stalls, row, sheet

LONGEST_READ = 12.0  # seconds that reading an application that does not answer may take in all
SHORTEST_PATIENCE = 800.0  # milliseconds that the program waits for an application's answer, at least


class BadDaysTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.geany = self.start_application("geany", "--new-instance", "--no-session")
        self.mousepad = self.start_application("mousepad")

    def rows_of(self, program):
        return sorted(row(entry) for entry in entries(read_menu_bar(application_of(program.pid)), "gtk"))

    def test_a_stopped_application_costs_only_its_own_sheet(self):
        expected = self.rows_of(self.geany)
        self.mousepad.stop()
        self.start_quillon()
        with self.overlay_held_open() as overlay:
            desktop.stays("the overlay is open", overlay.is_open, 0.5)
            desktop.activate("Geany")
            rows = self.wait_for_rows("geany's commands", lambda rows: len(rows) == len(expected))
            self.assertEqual(sorted(rows), expected)
        self.wait_closed()

    def test_an_application_that_stays_stopped_ends_as_one_without_shortcuts(self):
        self.mousepad.stop()
        self.start_quillon()
        with self.overlay_held_open() as overlay:
            wait_until("the message", lambda: overlay.says("No menu shortcuts in Mousepad"), within=LONGEST_READ)
        self.wait_closed()
        self.mousepad.go_on()
        with self.overlay_held_open():
            self.wait_for_rows("mousepad's commands", lambda rows: "Save, ⌃S" in rows)

    def test_an_application_that_answers_again_is_read_without_being_asked_for(self):
        self.mousepad.stop()
        self.start_quillon()
        with self.overlay_held_open() as overlay:
            wait_until("the message", lambda: overlay.says("No menu shortcuts in Mousepad"), within=LONGEST_READ)
            self.mousepad.go_on()
            self.wait_for_rows("mousepad's commands", lambda rows: "Save, ⌃S" in rows)
        self.wait_closed()

    def test_a_sheet_that_was_read_survives_that_its_application_stops(self):
        self.start_quillon()
        with self.overlay_held_open():
            rows = self.wait_for_rows("mousepad's commands", lambda rows: "Save, ⌃S" in rows)
        self.wait_closed()
        self.mousepad.stop()
        with self.overlay_held_open() as overlay:
            self.assertEqual(self.wait_for_rows("the same commands", bool), rows)
            desktop.stays("the commands are shown", lambda: overlay.rows() == rows, 2.5)

    def test_an_application_that_dies_while_it_is_shown_does_no_harm(self):
        self.start_quillon()
        with self.overlay_held_open():
            self.wait_for_rows("mousepad's commands", lambda rows: "Save, ⌃S" in rows)
            self.mousepad.process.kill()
            self.mousepad.process.wait()
            self.wait_for_rows("geany's commands", lambda rows: "Reload, ⌃R" in rows)
        self.wait_closed()
        self.assertTrue(self.quillon.is_running())

    def longest_wait(self):
        """Switches to mousepad, which is stopped, and measures for how long the program was busy then, in ms."""
        self.mousepad.go_on()
        desktop.activate("Geany")
        self.mousepad.stop()
        measure_stalls()
        desktop.activate("Mousepad")
        time.sleep(1.5)  # past the time that one question to it may take
        return longest_stall()

    def test_the_program_answers_its_user_while_an_application_does_not(self):
        """What a busy machine adds is some tenths of a second now and then; waiting would take longer each time."""
        self.start_quillon()
        waits = [self.longest_wait() for _ in range(5)]
        print(f"longest waits in ms: {waits}", flush=True)
        self.assertLess(min(waits), SHORTEST_PATIENCE / 2)
        self.assertLess(statistics.median(waits), SHORTEST_PATIENCE)

    def test_the_command_line_tells_of_other_applications_while_one_is_stopped(self):
        self.mousepad.stop()
        started = time.monotonic()
        self.assertGreater(len(sheet("--app", "geany")["entries"]), 50)
        self.assertLess(time.monotonic() - started, LONGEST_READ)

    def test_the_command_line_gives_up_on_a_stopped_application(self):
        self.mousepad.stop()
        ran = Ran("sheet", "--pid", self.mousepad.pid, within=LONGEST_READ)
        self.assertEqual((ran.status, ran.output), (5, ""), ran)


if __name__ == "__main__":
    desktop.main()
