"""Applications that are too big to install for a test, played from recordings of their menus."""

import json
import pathlib

import desktop
from accessible import application_of
from desktop import wait_until
from independent_sheet import entries
from quillon import QuillonTestCase, Ran, sheet

RECORDINGS = pathlib.Path(__file__).resolve().parents[1] / "data/menus"


class RecordedSheetTest(QuillonTestCase):
    def play(self, *options):
        """Starts the application that plays recordings, and waits until it is on the bus."""
        program = self.start(desktop.PROGRAMS / "quillon-fake-app", *options)
        wait_until("it on the accessibility bus", lambda: application_of(program.pid))
        return program

    def test_every_recorded_application(self):
        for name, commands, disabled in (("gimp", 113, 55), ("libreoffice-writer", 87, 17), ("geany", 54, 4),
                                         ("mousepad", 36, 7), ("featherpad", 35, 14), ("designer", 30, 24)):
            with self.subTest(recording=name):
                path = RECORDINGS / f"{name}.json"
                recording = json.loads(path.read_text())
                expected = entries(recording["menuBar"], recording["toolkit"])
                self.assertEqual(len(expected), commands)
                self.assertEqual(sum(not entry["enabled"] for entry in expected), disabled)
                program = self.play("--recording", path)
                self.assertEqual(sheet("--pid", program.pid)["entries"], expected)
                program.end()

    def test_a_slow_application_is_read_whole(self):
        path = RECORDINGS / "mousepad.json"
        program = self.play("--recording", path, "--delay", "1")
        expected = entries(json.loads(path.read_text())["menuBar"], "gtk")
        self.assertEqual(sheet("--pid", program.pid)["entries"], expected)

    def test_an_application_without_a_menu_bar_is_status_5(self):
        program = self.play("--no-menu-bar")
        ran = Ran("sheet", "--pid", program.pid)
        self.assertEqual((ran.status, ran.output), (5, ""), ran)


if __name__ == "__main__":
    desktop.main()
