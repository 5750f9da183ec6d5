"""The second way of working out a sheet, against recorded menu bars and known key bindings."""

import json
import pathlib
import unittest

from independent_sheet import COMMAND, CONTROL, OPTION, SHIFT, entries, shortcut_of

RECORDINGS = pathlib.Path(__file__).resolve().parents[1] / "data/menus"


def recorded_entries(name):
    recording = json.loads((RECORDINGS / f"{name}.json").read_text())
    return {" › ".join(entry["path"]): entry for entry in entries(recording["menuBar"], recording["toolkit"])}


def character(modifiers, value):
    return {"key": {"char": {"_0": value}}, "modifiers": modifiers}


def special(modifiers, value):
    return {"key": {"special": {"_0": value}}, "modifiers": modifiers}


class KeyBindingTest(unittest.TestCase):
    def test_gtk(self):
        for binding, expected in {
            "s;<Alt>f:s;<Primary><Shift>s": character(CONTROL | SHIFT, "S"),
            ";;<Alt>Page_Up": special(OPTION, "pageUp"),
            ";;<Super>bracketleft": character(COMMAND, "["),
            ";;KP_Add": character(0, "+"),
            ";;Delete": special(0, "forwardDelete"),
            ";;<Primary>BackSpace": special(CONTROL, "delete"),
            ";;<Primary>semicolon": character(CONTROL, ";"),
            ";;F19": special(0, "f19"),
            ";;Insert": None,
            ";;F20": None,
            ";;<Hyper>a": None,
            "s;<Alt>f:s;": None,
            "<VoidSymbol>": None,
            "": None,
        }.items():
            with self.subTest(binding=binding):
                self.assertEqual(shortcut_of(binding, "gtk", "Title"), expected)

    def test_qt(self):
        for binding, title, expected in (
            ("Ctrl+Shift+S", "Save As", character(CONTROL | SHIFT, "S")),
            ("Alt+N", "New", None),
            ("Alt+n", "Open Read-Only", None),
            ("Alt+n", "NEW", character(OPTION, "N")),
            ("Alt+Right", "Alt+Right", special(OPTION, "right")),
            ("Ctrl++", "Zoom In", character(CONTROL, "+")),
            ("Ctrl+;", "Date", character(CONTROL, ";")),
            ("Ctrl+;;F5", "Date", character(CONTROL, ";")),
            ("Ctrl+K, Ctrl+C;F5", "Comment", special(0, "f5")),
            ("Meta+Del", "Clear", special(COMMAND, "forwardDelete")),
            ("Ctrl+,", "Settings", character(CONTROL, ",")),
            ("Ins", "Insert", None),
            ("", "Nothing", None),
        ):
            with self.subTest(binding=binding):
                self.assertEqual(shortcut_of(binding, "Qt", title), expected)


class RecordingTest(unittest.TestCase):
    def test_disabled_items_are_kept_as_disabled(self):
        geany = recorded_entries("geany")
        self.assertEqual(geany["File › Save"]["enabled"], False)
        self.assertEqual(geany["File › New"],
                         {"path": ["File", "New"], "enabled": True, "shortcut": character(CONTROL, "N")})

    def test_titles_lose_their_trailing_blanks(self):
        self.assertIn("File › New Window", recorded_entries("mousepad"))

    def test_the_popups_of_qt_are_no_part_of_a_path(self):
        designer = recorded_entries("designer")
        self.assertEqual(designer["Edit › Redo"]["shortcut"], character(CONTROL | SHIFT, "Z"))
        self.assertTrue(all(all(entry["path"]) for entry in designer.values()))

    def test_mnemonics_of_qt_are_no_shortcuts(self):
        featherpad = recorded_entries("featherpad")
        self.assertEqual(featherpad["File › Side-Pane"]["shortcut"], character(CONTROL | OPTION, "P"))
        self.assertNotIn("File › Recently Modified › Clear", featherpad)

    def test_what_nobody_can_see_is_left_out(self):
        gimp, featherpad = recorded_entries("gimp"), recorded_entries("featherpad")
        self.assertNotIn("File › Open Recent › file-open-recent-01", gimp)
        self.assertIn("File › Open...", gimp)
        self.assertNotIn("File › Run", featherpad)
        self.assertIn("File › New", featherpad)

    def test_every_accelerator_of_a_titled_leaf_is_found(self):
        for name in ("geany", "mousepad", "gimp", "libreoffice-writer"):
            with self.subTest(recording=name):
                bar = json.loads((RECORDINGS / f"{name}.json").read_text())["menuBar"]
                paths = set()

                def visit(item, path):
                    if not item["visible"]:
                        return
                    path = path + (item["name"].strip(),)
                    if not item["children"] and all(path) and item["keyBinding"][-1:] not in ("", ";"):
                        paths.add(path)
                    for child in item["children"]:
                        visit(child, path)

                for menu in bar:
                    visit(menu, ())
                self.assertEqual({tuple(entry["path"]) for entry in recorded_entries(name).values()}, paths)


if __name__ == "__main__":
    unittest.main()
