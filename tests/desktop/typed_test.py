"""Shortcuts that are typed into real applications: what the application obeys is counted, nothing else is kept."""

import contextlib
import json
import os
import pathlib
import re
import secrets

import desktop
from desktop import wait_until
from keyboard import CODES, chord, held, layout, second_layout, tap
from quillon import LEARNED, QuillonTestCase, Ran
from toast import ToastTestCase

READABLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

def usage_of(command):
    """The numbers of clicks and of typed uses of the command with this title."""
    return next((count for (_, name), count in usage().items() if name.endswith(f" › {command}")), (0, 0))


def usage():
    """What was counted so far: the numbers of clicks and of typed uses, by application and command."""
    file = LEARNED / "usage.json"
    records = json.loads(file.read_text(encoding="utf-8"))["apps"] if file.exists() else {}
    return {(app, name): (record["clicked"], record["typed"])
            for app, commands in records.items() for name, record in commands.items()}


class TypedTestCase(QuillonTestCase):
    def start_counting(self, *command):
        """Starts an application and the program, and waits until what is typed is noticed."""
        self.application = self.start_application(*command)
        log = desktop.SCREENSHOTS / f"quillon-{os.getpid()}.log"
        log.unlink(missing_ok=True)
        self.start_quillon("--verbose", environment=READABLE)
        told = self.quillon.messages.read_text
        wait_until("the menus and the keyboard's map", lambda: "quillon.menus: read " in told()
                   and "the keyboard's map is read" in told())

    def wait_counted(self, **expected):
        """Waits until something was counted, ends the program, which writes the rest, and compares everything."""
        if expected:
            wait_until("a count", usage)
        self.assertEqual(Ran("quit").status, 0)
        self.assertEqual(self.quillon.process.wait(timeout=30), 0)
        counts = {name.split(" › ")[-1]: count for (_, name), count in usage().items()}
        self.assertEqual(counts, {name: (0, typed) for name, typed in expected.items()})

    def text(self):
        """What stands in the application's editor."""
        return next((found.text() for found in desktop.shown(self.application.pid)
                     if found.role() == "text" and "focused" in found.states()), "")

    def wait_window(self, title):
        wait_until(f"a window called {title}", lambda: title in desktop.active_title())

    def close_dialog(self, title):
        self.wait_window(title)
        desktop.press("Escape")
        wait_until(f"no window called {title}", lambda: title not in desktop.active_title())


class TypedTest(TypedTestCase):
    def opens_a_file(self, *command):
        self.start_counting(*command)
        chord("o")
        self.close_dialog("Open")
        wait_until("a count", usage)
        chord("o")
        self.close_dialog("Open")

    def test_mousepad(self):
        self.opens_a_file("mousepad")
        self.wait_counted(**{"Open...": 2})
        ran = Ran("stats", "--app", "mousepad")
        self.assertEqual(ran.status, 0, ran)
        self.assertRegex(ran.output, r"File › Open\.\.\. +⌃O +clicked 0 +typed 2")

    def test_geany(self):
        self.opens_a_file("geany", "--new-instance", "--no-session")
        self.wait_counted(**{"Open...": 2})

    def test_featherpad(self):
        self.opens_a_file("featherpad", "--standalone")
        self.wait_counted(**{"Open": 2})

    def test_a_key_that_is_held_counts_once(self):
        self.start_counting("mousepad")
        desktop.type_text("1\n2\n3\n4\n5\n6\n7\n8")
        wait_until("the lines", lambda: self.text().endswith("8"))
        desktop.press("ctrl+Home")
        with held("Ctrl", "Shift"), held("Delete"):
            wait_until("mousepad to delete line after line", lambda: self.text().count("\n") < 4)
        self.wait_counted(**{"Delete Line": 1})

    def test_what_is_typed_into_the_overlay_is_no_shortcut_of_the_application(self):
        self.start_counting("mousepad")
        self.assertEqual(Ran("show").status, 0)
        wait_until("the overlay that stays", lambda: self.overlay.says("Esc closes"))
        chord("o")
        desktop.type_text("undo")
        self.wait_for_rows("what is typed to come into the overlay", lambda rows: 0 < len(rows) < 5)
        desktop.press("Escape", "Escape")
        self.wait_closed()
        self.assertEqual(usage(), {})
        chord("o")
        self.close_dialog("Open")
        self.wait_counted(**{"Open...": 1})


class LearnedTest(ToastTestCase):
    def test_who_types_a_shortcut_five_times_more_than_clicking_is_not_nudged(self):
        for _ in range(6):
            chord("a")
        wait_until("the typed uses to be counted", lambda: usage_of("Select All") == (0, 6))
        self.click_command("Edit", "Select All")
        wait_until("the click to be counted", lambda: usage_of("Select All") == (1, 6))
        self.assertTrue(self.is_gone())
        self.assertIn("learned", Ran("stats").output)
        self.click_command("Search", "Find")
        self.wait_toast()


class LayoutsTest(TypedTestCase):
    def test_german_letters(self):
        """Z is in the place of Y."""
        with layout("de"):
            self.start_counting("mousepad")
            tap("q")
            wait_until("what is typed", lambda: self.text() == "q")
            chord("y")
            wait_until("mousepad to undo", lambda: self.text() == "")
            self.wait_counted(Undo=1)

    def test_german_signs(self):
        """Plus needs no Shift, and is in the place of a bracket."""
        with layout("de"):
            self.start_counting("geany", "--new-instance", "--no-session")
            desktop.type_text("large")
            before = desktop.screenshot("typed-before")
            chord("]")
            wait_until("geany to zoom in", lambda: desktop.differing_pixels(
                before, desktop.screenshot("typed-after")) > 300)
            self.wait_counted(**{"Zoom In": 1})

    def test_russian_beside_english(self):
        with layout("us,ru"):
            self.start_counting("mousepad")
            with second_layout():
                tap("s")
                wait_until("a Russian letter", lambda: self.text() == "ы")
                chord("o")
            self.close_dialog("Open")
            self.wait_counted(**{"Open...": 1})

    def test_russian_alone(self):
        """No application knows Ctrl+O by a keyboard without Latin letters."""
        with layout("ru"):
            self.start_counting("mousepad")
            chord("o")
            tap("s")
            wait_until("a Russian letter", lambda: self.text() == "ы")
            self.assertNotIn("Open", desktop.active_title())
            self.wait_counted()

    def test_a_layout_that_is_chosen_while_the_program_runs(self):
        self.start_counting("mousepad")
        with layout("us,ru"):
            wait_until("the new map", lambda: "its layouts: 2" in self.quillon.messages.read_text())
            with second_layout():
                chord("o")
            self.close_dialog("Open")
            self.wait_counted(**{"Open...": 1})


class PrivacyTest(TypedTestCase):
    """Looks for what was typed wherever the program could have left it."""

    def setUp(self):
        super().setUp()
        # No J: with AltGr it is a dead key, which would take the next key with it.
        letters = secrets.token_hex(40).translate(str.maketrans("abcdef0123456789", "qwrtzpsdfghnklxv"))
        self.secret = letters[:12]

    def type_secretly(self):
        """The secret without modifiers, with Shift, and with AltGr; and a shortcut, which is noticed."""
        for modifiers in ((), ("Shift",), ("AltGr",)):
            with held(*modifiers):
                tap(*self.secret)
        chord("o")

    def texts(self):
        """The secret in every case and encoding, whole and in parts."""
        parts = [self.secret, *(self.secret[at:at + 6] for at in range(7))]
        return [text.encode(encoding) for part in parts for text in (part, part.upper())
                for encoding in ("utf-8", "utf-16-le", "utf-32-le")]

    def key_codes(self):
        """Patterns of the codes of its keys, one behind the other or in records of up to 64 bytes."""
        codes = [re.escape(bytes([CODES[letter]])) for letter in self.secret[:8]]
        return [re.compile((b".{%d}" % (size - 1)).join(codes), re.DOTALL)
                for size in (1, 2, 4, 8, 12, 16, 24, 32, 36, 40, 48, 56, 64)]

    def found_in(self, content):
        """Which of all those are in these bytes."""
        return [text for text in self.texts() if text in content] + \
            [pattern.pattern for pattern in self.key_codes() if pattern.search(content)]

    def test_the_search_finds_what_is_there(self):
        codes = bytes(CODES[letter] for letter in self.secret)
        for content in (self.secret.encode("utf-16-le"), self.secret[2:9].upper().encode(), codes,
                        b"".join(bytes([code]) + b"\0" * 31 for code in codes)):
            self.assertTrue(self.found_in(b"before" + content + b"behind"))
        self.start_counting("mousepad")
        tap(*self.secret)
        wait_until("what is typed", lambda: self.secret in self.text())
        self.assertTrue(any(self.found_in(content) for content in memory_of(self.application.pid)))

    def assert_nothing_is_kept(self):
        wait_until("the shortcut to be counted", usage)
        for content in memory_of(self.quillon.pid):
            self.assertEqual(self.found_in(content), [])
        files = [found for found in LEARNED.rglob("*") if found.is_file()]
        self.assertIn("usage.json", [found.name for found in files])
        for file in [*files, self.quillon.messages]:
            self.assertEqual(self.found_in(file.read_bytes()), [], file)

    def test_nothing_of_plain_typing_is_kept(self):
        with layout("de"):
            self.start_counting("mousepad")
            self.type_secretly()
            self.close_dialog("Open")
            self.assertIn(self.secret, self.text().translate(str.maketrans("yz", "zy")))
            self.assert_nothing_is_kept()

    def test_nothing_of_a_password_is_kept(self):
        with layout("de"):
            self.start_counting("mousepad")
            entry = self.start("/usr/bin/python3", pathlib.Path(__file__).with_name("password_entry.py"))
            wait_until("the entry", lambda: self.has_front_window(entry))
            self.type_secretly()
            desktop.press("Return")
            wait_until("the entry to have it", lambda: not entry.is_running())
            self.assertEqual(entry.process.returncode, 0, "the length of what was typed")
            desktop.activate("Mousepad")
            chord("o")
            self.close_dialog("Open")
            self.assert_nothing_is_kept()


def memory_of(pid):
    """Everything that a process can have written to, mapping by mapping, without the zeros around it."""
    with open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
        for line in pathlib.Path(f"/proc/{pid}/maps").read_text(encoding="utf-8").splitlines():
            span, rights = line.split()[:2]
            if rights.startswith("rw"):
                first, end = (int(address, 16) for address in span.split("-"))
                memory.seek(first)
                with contextlib.suppress(OSError):
                    yield memory.read(end - first).strip(b"\0") + b"\0\0\0"  # that may end a letter


if __name__ == "__main__":
    desktop.main()
