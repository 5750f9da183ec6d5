"""What the program tells of its doings when asked, and that it tells nothing of its user's."""

import os

import desktop
from desktop import wait_until
from quillon import QuillonTestCase


class LogTest(QuillonTestCase):
    def use(self, *arguments):
        """What the program told while it was used over an application and something was typed."""
        self.start_application("geany", "--new-instance", "--no-session")
        log = desktop.SCREENSHOTS / f"quillon-{os.getpid()}.log"
        log.unlink(missing_ok=True)
        self.start_quillon(*arguments)
        self.wait_watching()
        with self.overlay_held_open() as overlay:
            self.wait_for_rows("geany's commands", bool)
            desktop.click(*overlay.footer())
        wait_until("it to stay", lambda: overlay.says("Esc closes"))
        desktop.type_text("reload")
        self.wait_for_rows("matches", lambda rows: 0 < len(rows) < 5)
        desktop.press("Escape", "Escape")
        self.wait_closed()
        return log.read_text()

    def test_it_is_silent(self):
        told = self.use()
        self.assertNotIn("quillon.", told)

    def test_when_asked_it_tells_applications_windows_times_and_outcomes(self):
        told = self.use("--verbose")
        for line in (r"quillon\.input: held keys are noticed", r"quillon\.windows: in front: Geany \(geany, process \d+\)",
                     r"quillon\.menus: read Geany \(geany, process \d+\): complete, \d+ items in [\d.]+ ms",
                     r"quillon\.panels: opened ", r"quillon\.panels: closed "):
            self.assertRegex(told, line)
        for private in ("untitled", "eload"):
            self.assertNotIn(private, told)


if __name__ == "__main__":
    desktop.main()
