"""Every rule of the sources finds what it is there for, and leaves a clean tree alone."""

import pathlib
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts/lib/source_rules.py"

CLEAN = {
    "kit/shortcut/CMakeLists.txt": "quillon_module(HEADERS key.h)\n",
    "kit/shortcut/key.h": "#pragma once\n",
    "kit/menu/CMakeLists.txt": "quillon_module(HEADERS item.h SOURCES parser.cpp PRIVATE quillon::kit::shortcut)\n",
    "kit/menu/item.h": "#pragma once\n",
    "kit/menu/parser.h": "#pragma once\n",
    "kit/menu/parser.cpp": '#include "parser.h"\n\n#include <quillon/kit/shortcut/key.h>\n',
    "kit/CMakeLists.txt": "add_subdirectory(shortcut)\nadd_subdirectory(menu)\n",
    "CMakeLists.txt": "add_subdirectory(kit)\n",
}


def findings(files=None):
    """What is found in the clean tree with some files changed or added."""
    files = CLEAN | (files or {})
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = pathlib.Path(root, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        result = subprocess.run(["/usr/bin/python3", SCRIPT, root], input="\n".join(files), text=True,
                                capture_output=True, check=False)
    if result.stderr:
        raise AssertionError(result.stderr)
    lines = result.stdout.splitlines()
    if (result.returncode == 0) != (not lines):
        raise AssertionError(f"status {result.returncode} with {lines}")
    return lines


class SourceRulesTest(unittest.TestCase):
    def assert_found(self, name, text, expected):
        lines = findings(files={name: text})
        self.assertTrue(any(line.startswith(expected) for line in lines), lines)

    def test_a_clean_tree_has_no_findings(self):
        self.assertEqual(findings(), [])

    def test_words_of_things_left_undone(self):
        for word in ("TO" + "DO", "FIX" + "ME: later", "X" + "XX", "TEST(A, DISABLED" + "_B)", "GTEST_" + "SKIP()"):
            with self.subTest(word=word):
                self.assert_found("kit/menu/parser.h", f"#pragma once\n// {word}\n", "kit/menu/parser.h:2: ")

    def test_a_template_for_temporary_names_is_no_such_word(self):
        self.assertEqual(findings(files={"kit/menu/parser.h": '#pragma once\n// "/tmp/a-X' + 'XXXXX"\n'}), [])

    def test_globs(self):
        self.assert_found("kit/CMakeLists.txt", "add_subdirectory(menu)\nfile( GLOB sources *.cpp)\n",
                          "kit/CMakeLists.txt:2: ")

    def test_includes_that_climb(self):
        self.assert_found("kit/menu/parser.h", '#pragma once\n\n#include "../base/hash.h"\n', "kit/menu/parser.h:3: ")

    def test_a_header_that_its_source_does_not_include_first(self):
        self.assert_found("kit/menu/parser.cpp", '#include <vector>\n#include "parser.h"\n', "kit/menu/parser.cpp:1: ")

    def test_headers_without_guard(self):
        self.assert_found("kit/menu/parser.h", "// nothing\n", "kit/menu/parser.h:1: ")

    def test_long_sources(self):
        self.assert_found("kit/menu/parser.h", "#pragma once\n" + "\n" * 400, "kit/menu/parser.h:401: ")

    def test_sources_that_are_not_built(self):
        self.assert_found("kit/menu/other.cpp", "\n", "kit/menu/other.cpp:1: ")
        self.assert_found("tests/kit/other_test.py", "\n", "tests/kit/other_test.py:1: ")

    def test_folders_that_are_not_added(self):
        self.assert_found("kit/coach/CMakeLists.txt", "\n", "kit/coach/CMakeLists.txt:1: ")

    def test_a_shared_source_is_named_from_the_top(self):
        shared = {"tests/support/main.cpp": "\n", "tests/CMakeLists.txt": "f(${PROJECT_SOURCE_DIR}/tests/support/main.cpp)\n",
                  "CMakeLists.txt": "add_subdirectory(kit)\nadd_subdirectory(tests)\n"}
        self.assertEqual(findings(shared), [])

    def test_includes_of_what_is_not_linked(self):
        self.assert_found("kit/menu/parser.h", "#pragma once\n#include <quillon/kit/records/usage.h>\n",
                          "kit/menu/parser.h:2: kit/menu does not link kit/records")

    def test_public_headers_that_mention_what_only_the_sources_link(self):
        self.assert_found("kit/menu/item.h", "#pragma once\n#include <quillon/kit/shortcut/key.h>\n",
                          "kit/menu/item.h:2: a public header mentions kit/shortcut")

    def test_links_of_which_nothing_is_included(self):
        self.assert_found("kit/menu/parser.cpp", '#include "parser.h"\n',
                          "kit/menu/CMakeLists.txt:1: links kit/shortcut and includes nothing of it")

    def test_links_up_to_a_higher_floor(self):
        self.assert_found("kit/shortcut/CMakeLists.txt", "quillon_module(HEADERS key.h PRIVATE quillon::app::ports)\n",
                          "kit/shortcut/CMakeLists.txt:1: may not link app/ports")

    def test_circles(self):
        self.assert_found("kit/shortcut/CMakeLists.txt", "quillon_module(HEADERS key.h PRIVATE quillon::kit::menu)\n",
                          "kit/menu/CMakeLists.txt:1: a circle of links: kit/menu → kit/shortcut → kit/menu")


if __name__ == "__main__":
    unittest.main()
