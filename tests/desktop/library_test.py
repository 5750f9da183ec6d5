"""The Library, used as people use it: real clicks and keys, and what follows from them."""

import json
import pathlib
import tempfile

import desktop
from desktop import wait_until
from own_windows import OwnWindowsTestCase
from quillon import LEARNED, Ran

READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
NOTES = LEARNED / "notes.json"
PIN_HELP = "Pin to the top of the overlay and cheat sheet"


def said(title):
    """What notes.json has of a command of Geany's; None for nothing."""
    if not NOTES.exists():
        return None
    commands = json.loads(NOTES.read_text(encoding="utf-8"))["apps"]
    return next((found for app in commands.values() for entry, found in app.items() if entry.endswith(" › " + title)),
                None)


class LibraryTest(OwnWindowsTestCase):
    def open_library(self):
        self.open_window("library")
        self.wait_list("Apps")

    def open_geany(self):
        """The Library with Geany's shortcuts, which the program has read."""
        self.editor = self.start_application("geany", "--new-instance", "--no-session")
        self.start_quillon(environment=READABLE)
        self.wait_watching()
        wait_until("the editor's menus to be known", (LEARNED / "menus.json").exists)
        self.open_library()
        apps = self.wait_list("Apps")
        geany = next(found for found in apps.children() if found.name().startswith("Geany"))
        desktop.click(*geany.centre())
        self.wait_list("Shortcuts of Geany")

    def wait_list(self, name):
        return self.control("list", name)

    def rows(self):
        return [found.name() for found in self.wait_list("Shortcuts of Geany").children()]

    def wait_row(self, name):
        wait_until(f"the row {name!r}", lambda: name in self.rows())

    def overlay_rows(self, what, condition):
        """Opens the overlay, which goes on to show the editor's commands, waits for its rows, and closes it."""
        self.assertEqual(Ran("show").status, 0)
        wait_until("the overlay", self.overlay.is_open)
        self.wait_for_rows(what, condition)
        desktop.press("Escape")
        wait_until("the overlay to close", lambda: len(desktop.visible_windows(self.quillon.pid)) == 1)

    def choose(self, downs):
        """An action of the menu "Cheat Sheet", so many below its first."""
        before = len(desktop.visible_windows(self.quillon.pid))
        self.click_control("push button", "Cheat Sheet")
        wait_until("the menu", lambda: len(desktop.visible_windows(self.quillon.pid)) > before)
        desktop.press(*["Down"] * (downs + 1), "Return")

    def test_a_pin_by_a_click_is_in_the_overlay_at_once_and_in_the_file_soon(self):
        self.open_geany()
        pin = self.control("push button", "Pin Save")
        self.assertEqual(pin.description(), PIN_HELP)
        self.click_control("push button", "Pin Save")
        self.control("push button", "Unpin Save")
        self.wait_row("Save, ⌃S, pinned")
        self.overlay_rows("the pin", lambda rows: "Save, Pinned, ⌃S" in rows)
        wait_until("the pin in the file", lambda: said("Save") == {"pinned": True, "note": "", "muted": False})
        self.click_control("push button", "Unpin Save")
        wait_until("nothing in the file", lambda: said("Save") is None)

    def test_keys_alone_pin_mute_and_note(self):
        self.open_geany()
        desktop.press("ctrl+f")
        desktop.type_text("ctrl s")
        wait_until("the row to be found", lambda: self.rows()[-1] == "Save, ⌃S")
        desktop.press("Tab", "Tab", "Tab", "End", "Right", "space", "Right", "Right", "Return")
        self.wait_row("Save, ⌃S, pinned, nudges off")
        desktop.press("Left", "Return")
        note = self.control("text", "Note for Save")
        wait_until("the keyboard in the note", lambda: "focused" in note.states())
        desktop.type_text("  every time ")
        desktop.press("Return")
        desktop.type_text("before lunch ")
        desktop.press("ctrl+Return")
        self.wait_row("Save, ⌃S, pinned, nudges off, every time before lunch")
        wait_until("all of it in the file", lambda: said("Save") == {
            "pinned": True, "note": "every time \nbefore lunch", "muted": True})
        self.overlay_rows("the note", lambda rows: "Save, Pinned, every time before lunch, ⌃S" in rows)
        desktop.press("Return")
        self.control("text", "Note for Save")
        desktop.type_text("never")
        desktop.press("Escape")
        wait_until("the note editor to close", lambda: len(desktop.visible_windows(self.quillon.pid)) == 1)
        self.wait_row("Save, ⌃S, pinned, nudges off, every time before lunch")

    def test_a_screen_reader_presses_the_buttons(self):
        self.open_geany()
        self.control("push button", "Turn nudges off for Save").press()
        self.control("push button", "Turn nudges on for Save")
        wait_until("the mute in the file", lambda: said("Save") == {"pinned": False, "note": "", "muted": True})

    def test_markdown_is_pasted_into_an_editor(self):
        self.open_geany()
        self.choose(2)
        mousepad = self.start_application("mousepad")
        desktop.press("ctrl+v")
        pasted = wait_until("the pasted sheet", lambda: next(
            (found.text() for found in desktop.shown(mousepad.pid) if "# Geany shortcuts" in found.text()), None))
        self.assertIn("\n\n## File\n\n", pasted)
        self.assertIn("- **⌃S** Save\n", pasted)

    def test_a_pdf_is_saved_where_the_user_says(self):
        self.open_geany()
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder, "keys.pdf")
            self.choose(0)
            name = wait_until("the save dialog", lambda: next(
                (found for found in self.controls("text") if found.text() == "Geany Shortcuts.pdf"), None))
            wait_until("the keyboard in it", lambda: "focused" in name.states())
            name.set_text(str(file))
            desktop.press("Return")
            wait_until("the document", file.exists)
            self.assertTrue(file.read_bytes().startswith(b"%PDF-"))
            self.assertEqual([one.name for one in pathlib.Path(folder).iterdir()], ["keys.pdf"])

    def test_what_cannot_be_written_is_told(self):
        self.open_geany()
        self.choose(0)
        name = wait_until("the save dialog", lambda: next(
            (found for found in self.controls("text")
             if found.text() == "Geany Shortcuts.pdf" and "focused" in found.states()), None))
        name.set_text("/proc/keys.pdf")
        desktop.press("Return")
        self.control("label", "Couldn’t make the cheat sheet")
        wait_until("the reason", lambda: any("/proc" in found.name() for found in self.controls("label")))
        desktop.press("Return")
        wait_until("the alert to close", lambda: len(desktop.visible_windows(self.quillon.pid)) == 1)
        self.wait_list("Shortcuts of Geany")

    def test_an_empty_library_says_what_to_do(self):
        self.start_quillon(environment=READABLE)
        self.open_window("library")
        self.control("label", "No apps yet")
        self.control("label", "Hold ⌘ in any app; its shortcuts show up here.")
        self.control("label", "Pick an app")
        self.assertNotIn("enabled", self.control("push button", "Practice").states())


if __name__ == "__main__":
    desktop.main()
