"""What the program has learned, from one run to the next."""

import os
import pathlib
import tempfile
import unittest.mock

import desktop
from desktop import wait_until
from quillon import LEARNED, QuillonTestCase, Ran, is_private

READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class LearnedTest(QuillonTestCase):
    def start_over_geany(self):
        """Starts the program and opens its overlay to stay."""
        self.start_quillon(environment=READABLE)
        self.assertEqual(Ran("show").status, 0)
        self.wait_for_rows("geany's commands", lambda rows: "New, ⌃N" in rows)

    def pin(self, name):
        command = next(found for found in desktop.shown(self.quillon.pid)
                       if found.role() == "list item" and found.name() == name)
        windows = desktop.visible_windows(self.quillon.pid)
        desktop.click(*command.centre(), button=3)
        wait_until("the command's menu", lambda: len(desktop.visible_windows(self.quillon.pid)) > len(windows))
        desktop.press("Down", "Return")
        self.wait_for_rows("the pin", is_pinned)

    def test_a_pin_made_just_before_the_end_is_there_in_the_next_run(self):
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_over_geany()
        self.pin("Save, ⌃S")
        self.quillon.process.terminate()
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)
        self.assertIn("Save", (LEARNED / "notes.json").read_text(encoding="utf-8"))
        self.start_over_geany()
        self.wait_for_rows("the pin of the run before", is_pinned)

    def test_a_broken_file_is_kept_beside_the_new_one(self):
        LEARNED.mkdir(parents=True)
        (LEARNED / "usage.json").write_text("[]")
        self.start_application("geany", "--new-instance", "--no-session")
        self.start_over_geany()
        self.assertEqual(Ran("quit").status, 0)
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)
        self.assertEqual((LEARNED / "usage.json.broken").read_text(), "[]")
        self.assertEqual((LEARNED / "usage.json").read_text(), '{"apps":{}}')


class PrivateFolderTest(unittest.TestCase):
    def test_only_what_lies_in_a_private_desktops_folder_is_deleted(self):
        self.assertTrue(is_private(LEARNED))
        with tempfile.TemporaryDirectory() as home, unittest.mock.patch.dict(os.environ, HOME=home):
            self.assertFalse(is_private(pathlib.Path(home, "app.quillon.Quillon")))
        self.assertFalse(is_private(pathlib.Path("/nonexistent/app.quillon.Quillon")))


def is_pinned(rows):
    return any("Pinned" in row for row in rows)


if __name__ == "__main__":
    desktop.main()
