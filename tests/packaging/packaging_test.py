"""The files that a package brings along are valid, belong together and tell what the program does."""

import configparser
import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

from program import BUILD, commands_of_help, help_text, options_of_help

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "packaging"
VERSION = os.environ["QUILLON_VERSION"]
NAME = "app.quillon.Quillon"

ENTRY = PACKAGING / f"{NAME}.desktop"
METAINFO = BUILD / "packaging" / f"{NAME}.metainfo.xml"
MANUAL = PACKAGING / "man/quillon.1"


def run(*command, **options):
    return subprocess.run(list(map(str, command)), text=True, capture_output=True, check=False,
                          stdin=subprocess.DEVNULL, **options)


INSTALLED = {
    "bin/quillon",
    f"lib/quillon/modules/quillon_web-{VERSION}.so",
    f"share/applications/{NAME}.desktop",
    f"share/metainfo/{NAME}.metainfo.xml",
    f"share/dbus-1/services/{NAME}.service",
    f"share/icons/hicolor/scalable/apps/{NAME}.svg",
    f"share/icons/hicolor/symbolic/apps/{NAME}-symbolic.svg",
    "share/man/man1/quillon.1.gz",
    "share/bash-completion/completions/quillon",
    "share/zsh/vendor-completions/_quillon",
    "share/fish/vendor_completions.d/quillon.fish",
    "share/doc/quillon/copyright",
    "share/doc/quillon/changelog.gz",
}


def files_below(root):
    return {str(path.relative_to(root)) for path in pathlib.Path(root).rglob("*") if not path.is_dir()}


def metainfo_with_page(page):
    """As a build writes it that was told the program's page."""
    with tempfile.TemporaryDirectory() as folder:
        script = pathlib.Path(folder, "metainfo.cmake")
        script.write_text(f"""
            set(QUILLON_PAGE {page})
            set(PROJECT_VERSION {VERSION})
            include({PACKAGING}/metainfo.cmake)
            write_metainfo({folder}/written.xml)""")
        subprocess.run(["cmake", "-P", script], check=True, stdin=subprocess.DEVNULL)
        return pathlib.Path(folder, "written.xml").read_text()


class PackagingTest(unittest.TestCase):
    def assert_silent(self, *command):
        result = run(*command)
        self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ""))

    def test_desktop_entry_is_valid(self):
        self.assert_silent("desktop-file-validate", "--warn-kde", ENTRY)

    def test_actions_call_commands_that_exist(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(ENTRY)
        actions = entry["Desktop Entry"]["Actions"].strip(";").split(";")
        called = {entry[f"Desktop Action {action}"]["Name"]: entry[f"Desktop Action {action}"]["Exec"].split()
                  for action in actions}
        self.assertEqual(called, {
            "Show Shortcuts": ["quillon", "show"],
            "Practice": ["quillon", "practice"],
            "Library": ["quillon", "library"],
            "Settings": ["quillon", "settings"],
            "Quit": ["quillon", "quit"]})
        self.assertLessEqual({words[1] for words in called.values()}, set(commands_of_help()))

    def test_metainfo_is_valid_and_of_this_version(self):
        result = run("appstreamcli", "validate", "--no-net", METAINFO)
        self.assertIn("Validation", result.stdout)
        faults = [line for line in result.stdout.splitlines() if line.startswith(("E:", "W:"))]
        # There is none without a page on the web; newer validators warn of that.
        self.assertEqual([fault for fault in faults if not fault.endswith("url-homepage-missing")], [])
        tree = xml.etree.ElementTree.parse(METAINFO)
        self.assertEqual(tree.findtext("launchable"), ENTRY.name)
        self.assertEqual(tree.find("releases/release").get("version"), VERSION)

    def test_metainfo_and_entry_speak_the_languages_of_the_program(self):
        languages = {path.stem.removeprefix("quillon_") for path in (ROOT / "app/languages").glob("quillon_*.ts")}
        self.assertTrue(languages)
        lang = "{http://www.w3.org/XML/1998/namespace}lang"
        tree = xml.etree.ElementTree.fromstring(metainfo_with_page("https://quillon.example"))
        lists = [tree, tree.find("description"), tree.find("description/ul"), tree.find("keywords"),
                 *tree.iterfind("screenshots/screenshot")]
        for parent in lists:
            said = [child for child in parent if child.tag in {"summary", "p", "li", "keyword", "caption"}]
            english = [child for child in said if lang not in child.attrib]
            self.assertTrue(english, parent.tag)
            for text in english:
                after = said[said.index(text) + 1:][:len(languages)]
                self.assertEqual({other.get(lang) for other in after}, languages, text.text)
                self.assertTrue(all(other.text.strip() for other in after), text.text)
        entry = ENTRY.read_text()
        for line in re.findall(r"(?m)^(?:GenericName|Comment|Keywords)=", entry):
            for language in languages:
                self.assertIn(line.replace("=", f"[{language}]="), entry)

    def test_manual_has_no_faults_and_is_of_this_version(self):
        result = run("man", "--warnings", "--encoding=UTF-8", "--local-file", MANUAL,
                     env=os.environ | {"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"})
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertIn(f"Quillon {VERSION}", result.stdout)
        self.assertIn("⌃ Ctrl, ⌥ Alt, ⇧ Shift, ⌘ Super", " ".join(result.stdout.split()))

    def test_manual_names_every_command_option_and_exit_code(self):
        manual = MANUAL.read_text().replace("\\-", "-")
        for word in [*commands_of_help(), *sorted(options_of_help())]:
            self.assertRegex(manual, rf"(?m)^\.[BT][^\n]*{word}", word)
        statuses = re.findall(r"(?m)^\.B (\d)$", manual)
        self.assertEqual(statuses, re.findall(r"\b(\d) ", help_text().split("Exit codes:")[1]))

    def test_changelog_begins_with_this_version(self):
        changelog = (BUILD / "packaging/changelog").read_text()
        self.assertTrue(changelog.startswith(f"quillon ({VERSION}) "), changelog)

    def test_metainfo_with_a_page_has_pictures_and_is_valid(self):
        page = "https://quillon.example"
        with tempfile.TemporaryDirectory() as folder:
            metainfo = pathlib.Path(folder, METAINFO.name)
            metainfo.write_text(metainfo_with_page(page))
            result = run("appstreamcli", "validate", "--no-net", metainfo)
            self.assertEqual(result.returncode, 0, result.stdout)
            tree = xml.etree.ElementTree.parse(metainfo)
        self.assertEqual(tree.findtext("url"), page)
        for image in tree.iterfind("screenshots/screenshot/image"):
            self.assertTrue((ROOT / "docs" / image.text.removeprefix(f"{page}/")).exists(), image.text)

    def test_installing_and_uninstalling(self):
        with tempfile.TemporaryDirectory() as root:
            destination = os.environ | {"DESTDIR": root}
            result = run("cmake", "--install", BUILD, "--prefix", "/opt/quillon", env=destination)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(files_below(root), {f"opt/quillon/{file}" for file in INSTALLED})
            service = configparser.ConfigParser(interpolation=None)
            service.read(f"{root}/opt/quillon/share/dbus-1/services/{NAME}.service")
            self.assertEqual(dict(service["D-BUS Service"]), {"name": NAME, "exec": "/opt/quillon/bin/quillon --service"})

            result = run("cmake", "--build", BUILD, "--target", "uninstall", env=destination)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(files_below(root), set())
            self.assertFalse(pathlib.Path(root, "opt/quillon/share/doc/quillon").exists())
            self.assertIn("Nothing was installed", run("cmake", "--build", BUILD, "--target", "uninstall").stdout)


if __name__ == "__main__":
    unittest.main()
