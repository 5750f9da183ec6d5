"""The files that a package brings along are valid, belong together and tell what the program does."""

import configparser
import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
BUILD = pathlib.Path(os.environ["QUILLON_BUILD"])
VERSION = os.environ["QUILLON_VERSION"]
NAME = "app.quillon.Quillon"

ENTRY = PACKAGING / f"{NAME}.desktop"
AUTOSTART = PACKAGING / "autostart" / f"{NAME}.desktop"
METAINFO = PACKAGING / f"{NAME}.metainfo.xml"
MANUAL = PACKAGING / "man/quillon.1"
COMPLETION = PACKAGING / "completions/quillon"


def run(*command, **options):
    return subprocess.run(list(map(str, command)), text=True, capture_output=True, check=False,
                          stdin=subprocess.DEVNULL, **options)


def help_text():
    return run(BUILD / "bin/quillon", "--help", env=os.environ | {"QT_QPA_PLATFORM": "offscreen"}).stdout


def commands_of_help():
    block = help_text().split("Commands:\n")[1].split("\n\n")[0]
    return re.findall(r"^  (\w+) ", block, re.MULTILINE)


def options_of_help():
    return set(re.findall(r"--[a-z]+", help_text()))


def formats_of_help():
    return set(re.findall(r"\w+", re.search(r"--format FORMAT +(.*)", help_text())[1])) - {"default", "or"}


def complete(*words):
    """What bash offers for the last of `words`."""
    line = f'''source "{COMPLETION}"
        quillon() {{
            case $* in
                apps) printf '%s\\n' '71 geany Geany gtk' '72 org.gimp.GIMP GIMP gtk' ;;
                'stats --format json') printf '%s\\n' '[{{"bundleID":"geany"}},{{"bundleID":"org.kde.kate"}}]' ;;
            esac
        }}
        COMP_WORDS=({" ".join(f"'{word}'" for word in words)})
        COMP_CWORD={len(words) - 1}
        _quillon && printf '%s\\n' "${{COMPREPLY[@]}}"'''
    return run("bash", "--norc", "-c", line).stdout.split()


class PackagingTest(unittest.TestCase):
    def assert_silent(self, *command):
        result = run(*command)
        self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ""))

    def test_desktop_entries_are_valid(self):
        self.assert_silent("desktop-file-validate", "--warn-kde", ENTRY)
        self.assert_silent("desktop-file-validate", "--warn-kde", AUTOSTART)

    def test_actions_call_commands_that_exist(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(ENTRY)
        actions = entry["Desktop Entry"]["Actions"].strip(";").split(";")
        called = {entry[f"Desktop Action {action}"]["Name"]: entry[f"Desktop Action {action}"]["Exec"].split()
                  for action in actions}
        self.assertEqual(called, {"Show Shortcuts": ["quillon", "show"], "Quit": ["quillon", "quit"]})
        self.assertLessEqual({"show", "quit"}, set(commands_of_help()))

    def test_metainfo_is_valid_and_of_this_version(self):
        result = run("appstreamcli", "validate", "--no-net", METAINFO)
        self.assertEqual(result.returncode, 0, result.stdout)
        tree = xml.etree.ElementTree.parse(METAINFO)
        self.assertEqual(tree.findtext("launchable"), ENTRY.name)
        self.assertEqual(tree.find("releases/release").get("version"), VERSION)

    def test_manual_has_no_faults_and_is_of_this_version(self):
        result = run("man", "--warnings", "--encoding=UTF-8", "--local-file", MANUAL,
                     env=os.environ | {"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"})
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn(f"Quillon {VERSION}", result.stdout)
        self.assertIn("⌃ Ctrl, ⌥ Alt, ⇧ Shift, ⌘ Super", " ".join(result.stdout.split()))

    def test_manual_names_every_command_option_and_exit_code(self):
        manual = MANUAL.read_text().replace("\\-", "-")
        for word in commands_of_help() + sorted(options_of_help()):
            self.assertRegex(manual, rf"(?m)^\.[BT][^\n]*{word}", word)
        statuses = re.findall(r"(?m)^\.B (\d)$", manual)
        self.assertEqual(statuses, re.findall(r"\b(\d) ", help_text().split("Exit codes:")[1]))

    def test_completion_offers_every_command_and_option(self):
        self.assertEqual(set(complete("quillon", "")), {*commands_of_help(), "--help", "--verbose", "--version"})
        self.assertEqual({*complete("quillon", "sheet", "--"), *complete("quillon", "show", "--"),
                          *complete("quillon", "stats", "--"), "--help", "--verbose", "--version"}, options_of_help())

    def test_completion_knows_values(self):
        self.assertEqual(complete("quillon", "sheet", "--format", "j"), ["json"])
        self.assertEqual(set(complete("quillon", "sheet", "--format", "")), formats_of_help())
        self.assertEqual(complete("quillon", "stats", "--format", ""), ["text", "json"])
        self.assertEqual(complete("quillon", "sheet", "--app", ""), ["geany", "org.gimp.GIMP"])
        self.assertEqual(complete("quillon", "stats", "--app", ""), ["geany", "org.kde.kate"])
        self.assertEqual(complete("quillon", "sheet", "--pid", ""), ["71", "72"])
        self.assertEqual(complete("quillon", "sheet", "--query", ""), [])

    def test_installing_puts_every_file_in_its_place(self):
        with tempfile.TemporaryDirectory() as root:
            result = run("cmake", "--install", BUILD, "--prefix", f"{root}/usr")
            self.assertEqual(result.returncode, 0, result.stderr)
            installed = {str(path.relative_to(root)) for path in pathlib.Path(root).rglob("*") if path.is_file()}
        self.assertEqual(installed, {
            "usr/bin/quillon",
            f"usr/share/applications/{NAME}.desktop",
            f"usr/share/metainfo/{NAME}.metainfo.xml",
            f"usr/share/icons/hicolor/scalable/apps/{NAME}.svg",
            f"usr/share/icons/hicolor/symbolic/apps/{NAME}-symbolic.svg",
            "usr/share/man/man1/quillon.1",
            "usr/share/bash-completion/completions/quillon",
            f"usr/etc/xdg/autostart/{NAME}.desktop",
        })


if __name__ == "__main__":
    unittest.main()
