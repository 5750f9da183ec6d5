"""What reaches the terminal, byte by byte: an application with texts that terminals would obey, and lost output."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

QUILLON, FAKE_APP = os.environ["QUILLON"], os.environ["QUILLON_FAKE_APP"]

# A program's name, a menu, a title and a toolkit that set the terminal's title, ring, clear, turn text around and
# break lines.
PROGRAM = "fa\x1b[31mke\n\u202e"
WINDOW = "W\x1b]0;owned\x07"
TITLE = "Sa\x9b2Jve\r\n# All\u202d\u2028.\x7f"
TOOLKIT = "gtk\x1b[5m"

PROGRAM_SHOWN = "fa<U+001B>[31mke<U+000A><U+202E>"
WINDOW_SHOWN = "W<U+001B>]0;owned<U+0007>"
TITLE_SHOWN = "Sa<U+009B>2Jve<U+000D><U+000A># All<U+202D><U+2028>.<U+007F>"
TOOLKIT_SHOWN = "gtk<U+001B>[5m"


def run(*arguments, **options):
    return subprocess.run([QUILLON, *map(str, arguments)], stdin=subprocess.DEVNULL, check=False, timeout=60,
                          **({"stdout": subprocess.PIPE, "stderr": subprocess.PIPE} | options))


class WithApplication(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        subprocess.run(["busctl", "--user", "set-property", "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Status",
                        "IsEnabled", "b", "true"], check=True, stdin=subprocess.DEVNULL)
        cls.folder = tempfile.TemporaryDirectory()
        program = pathlib.Path(cls.folder.name, PROGRAM)
        shutil.copy(FAKE_APP, program)  # a link would bear the name of what it leads to
        cls.app = subprocess.Popen([program, "--items", "2", "--window", WINDOW, "--title", TITLE, "--toolkit", TOOLKIT],
                                   stdout=subprocess.PIPE)
        assert cls.app.stdout.readline().startswith(b"ready")

    @classmethod
    def tearDownClass(cls):
        cls.app.kill()
        cls.app.wait()
        cls.app.stdout.close()
        cls.folder.cleanup()


class HostileApplicationTest(WithApplication):
    def assert_printed(self, arguments, expected):
        ran = run(*arguments)
        self.assertEqual((ran.returncode, ran.stdout, ran.stderr), (0, expected.encode(), b""))

    def test_apps(self):
        self.assert_printed(["apps"], f"{self.app.pid}  {PROGRAM_SHOWN}  {PROGRAM_SHOWN}  {TOOLKIT_SHOWN} 3.24.38\n")

    def test_sheet_as_text(self):
        self.assert_printed(["sheet", "--pid", self.app.pid],
                            f"{PROGRAM_SHOWN} ({PROGRAM_SHOWN}): 1 shortcut\n\nMenu of {WINDOW_SHOWN}\n"
                            f"  {TITLE_SHOWN}  ⌃⇧B\n")

    def test_practice_round(self):
        self.assert_printed(["sheet", "--pid", self.app.pid, "--practice", 1],
                            f"1.  Menu of {WINDOW_SHOWN} › {TITLE_SHOWN}  ⌃⇧B\n")

    def test_sheet_as_markdown(self):
        ran = run("sheet", "--pid", self.app.pid, "--format", "markdown")
        lines = ran.stdout.decode().splitlines()
        self.assertEqual(lines[0], f"# {PROGRAM_SHOWN} shortcuts")
        self.assertEqual([line for line in lines if TITLE_SHOWN in line], [lines[-1]])
        self.assertEqual([code for code in ran.stdout.decode() if ord(code) < 32 and code != "\n"], [])

    def test_json_is_as_the_application_said_it(self):
        ran = run("sheet", "--pid", self.app.pid, "--format", "json")
        self.assertEqual(json.loads(ran.stdout)["entries"][0]["path"], [f"Menu of {WINDOW}", TITLE])

    def test_messages(self):
        ran = run("sheet", "--pid", self.app.pid, "--query", "\x1b[2Jnothing\n")
        self.assertEqual(ran.stderr.decode(),
                         f"quillon: no shortcut of {PROGRAM_SHOWN} matches '<U+001B>[2Jnothing<U+000A>'\n")
        ran = run("sheet", "--app", "\x1b[2J")
        self.assertEqual((ran.returncode, ran.stderr),
                         (3, b"quillon: no running application is called '<U+001B>[2J'; see quillon apps\n"))
        ran = run("\u202edance")
        self.assertEqual((ran.returncode, ran.stderr),
                         (2, b"quillon: unknown command '<U+202E>dance'; see quillon --help\n"))

    def test_the_log_is_silent_until_asked_and_tells_no_titles(self):
        ran = run("--verbose", "sheet", "--pid", self.app.pid)
        self.assertEqual(ran.returncode, 0)
        self.assertRegex(ran.stderr.decode(),
                         r"\A[\d:.]+ quillon\.menus: read " + re.escape(f"{PROGRAM_SHOWN} ({PROGRAM_SHOWN}, process "
                         f"{self.app.pid}): complete, ") + r"\d+ items in [\d.]+ ms\n\Z")
        by_rule = run("sheet", "--pid", self.app.pid, env=os.environ | {"QT_LOGGING_RULES": "quillon.menus=true"})
        self.assertIn("quillon.menus: read", by_rule.stderr.decode())


class LostOutputTest(WithApplication):
    def commands(self):
        yield from (["apps"], ["doctor"], ["--help"], ["--version"])
        yield from (["sheet", "--pid", self.app.pid, "--format", form] for form in ("text", "markdown", "json"))

    def assert_told(self, ran, arguments):
        self.assertEqual(ran.returncode, 1, arguments)
        self.assertRegex(ran.stderr.decode(), r"\Aquillon: the output was lost: .+\n\Z", arguments)

    def test_a_full_device(self):
        for arguments in self.commands():
            with open("/dev/full", "wb") as full:
                self.assert_told(run(*arguments, stdout=full), arguments)

    def test_a_closed_standard_output(self):
        for arguments in self.commands():
            self.assert_told(run(*arguments, preexec_fn=lambda: os.close(1)), arguments)

    def test_nothing_to_print_is_nothing_lost(self):
        self.assertEqual(run("sheet", "--app", "nobody", preexec_fn=lambda: os.close(1)).returncode, 3)


if __name__ == "__main__":
    unittest.main()
