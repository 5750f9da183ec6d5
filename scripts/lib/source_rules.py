#!/usr/bin/python3
"""Rules about the sources that no compiler knows. Prints one line per finding: file:line: message.

Takes the root of the tree and reads the names of its files, one per line, from standard input.
"""

import os
import pathlib
import re
import sys

KIT = ("base", "shortcut", "menu", "records", "coach", "cheatsheet")

# Which modules' headers a folder may include; its own come on top. The longest prefix counts.
EDGES = {
    "kit/base": (),
    "kit/shortcut": ("base",),
    "kit/menu": ("base", "shortcut"),
    "kit/records": ("base", "shortcut", "menu"),
    "kit/coach": ("base", "shortcut", "menu", "records"),
    "kit/cheatsheet": ("base", "shortcut", "menu", "records"),
    "app/ports": KIT,
    "app/core": (*KIT, "ports"),
    "app/views/components": (*KIT, "ports", "core"),
    "app/views/overlay": (*KIT, "ports", "core", "components"),
    "app/views/panels": (*KIT, "ports", "core", "components", "overlay"),
    "app/views/tray": (*KIT, "ports", "core", "components"),
    "app/cli": (*KIT, "ports"),
    "app/platform": (*KIT, "ports"),
    "app/platform/linux/atspi": (*KIT, "ports", "key_binding"),
    "app/platform/linux/x11": (*KIT, "ports", "xdg"),  # a window's facts tell which application it is
}
SEES_EVERYTHING = ("app/start", "tests", "bench", "fuzz")

# Put together here, or this file would be a finding itself.
FORBIDDEN_WORDS = ["TO" + "DO", "FIX" + "ME", "X" + "XX", "DISABLED" + "_", "GTEST_" + "SKIP", "Q" + "SKIP"]
LONGEST_SOURCE = 400

CODE = (".cpp", ".h")
TEXT = (*CODE, ".txt", ".cmake", ".py", ".md", ".json", ".xml", ".desktop", ".1", ".sh", "")
RECORDED = "tests/data/"

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+([<"])([^>"]+)[>"]', re.MULTILINE)
MODULE = re.compile(r"^quillon_module\((\w+)", re.MULTILINE)


class Tree:
    def __init__(self, root, names):
        self.texts = {}
        for name in names:
            path = pathlib.Path(root, name)
            if path.suffix in TEXT and path.is_file() and not name.startswith(RECORDED):
                self.texts[name] = path.read_text(encoding="utf-8", errors="replace")

    def of_suffix(self, *suffixes):
        return {name: text for name, text in self.texts.items() if pathlib.PurePath(name).suffix in suffixes}

    def cmake_lists(self):
        return {name: text for name, text in self.texts.items()
                if name.endswith(("CMakeLists.txt", ".cmake"))}


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def under(name, folders):
    return any(name.startswith(folder + "/") for folder in folders)


def forbidden_words(tree):
    pattern = re.compile("|".join(rf"\b{re.escape(word)}(?:\b|(?<=_))" for word in FORBIDDEN_WORDS))
    for name, text in tree.texts.items():
        for match in pattern.finditer(text):
            yield name, line_of(text, match.start()), f"{match[0]} has no place here: do it, or write it down elsewhere"


def globs(tree):
    for name, text in tree.cmake_lists().items():
        for match in re.finditer(r"\bfile\s*\(\s*GLOB", text, re.IGNORECASE):
            yield name, line_of(text, match.start()), "sources are named, not globbed"


def climbing_includes(tree):
    for name, text in tree.of_suffix(*CODE).items():
        for match in INCLUDE.finditer(text):
            if match[2].startswith("../"):
                yield name, line_of(text, match.start()), "another folder's header is included as <quillon/MODULE/file.h>"


def own_header_first(tree):
    """Together with the build this shows that a header compiles by itself."""
    for name, text in tree.of_suffix(".cpp").items():
        header = pathlib.PurePath(name).with_suffix(".h")
        first = INCLUDE.search(text)
        if str(header) in tree.texts and (first is None or first[2] != header.name):
            line = line_of(text, first.start()) if first else 1
            yield name, line, f'"{header.name}" comes before every other include'


def guarded_headers(tree):
    for name, text in tree.of_suffix(".h").items():
        if not text.startswith("#pragma once\n"):
            yield name, 1, "a header begins with #pragma once"


def long_sources(tree):
    for name, text in tree.of_suffix(*CODE).items():
        lines = text.count("\n")
        if lines > LONGEST_SOURCE and not under(name, ("tests",)):
            yield name, lines, f"longer than {LONGEST_SOURCE} lines: what could move out?"


def unregistered_sources(tree):
    """A source or a test that no CMakeLists.txt names."""
    registered = set()
    for name, text in tree.cmake_lists().items():
        folder = os.path.dirname(name)
        for match in re.finditer(r"[\w./-]+\.(?:cpp|py)\b", text.replace("${CMAKE_CURRENT_SOURCE_DIR}/", "")):
            registered.add(os.path.normpath(os.path.join(folder, match[0])))
    for name in tree.texts:
        is_test = name.startswith("tests/") and name.endswith("_test.py")
        if (name.endswith(".cpp") or is_test) and name not in registered:
            yield name, 1, "no CMakeLists.txt names this file"


def unreached_lists(tree):
    """A CMakeLists.txt that none above adds, or builds as a project of its own."""
    for name in tree.cmake_lists():
        path = pathlib.PurePath(name)
        if path.name != "CMakeLists.txt" or path.parent == pathlib.PurePath("."):
            continue
        if not any(adds_folder(tree, folder, path.parent) for folder in path.parent.parents):
            yield name, 1, "no CMakeLists.txt adds this folder"


def adds_folder(tree, folder, added):
    lists = tree.texts.get(str(folder / "CMakeLists.txt"), "")
    name = re.escape(str(added.relative_to(folder)))
    return re.search(rf"(add_subdirectory\(|\$\{{CMAKE_CURRENT_SOURCE_DIR\}}/){name}(?![\w.-])", lists) is not None


def modules_of_folders(tree):
    found = {}
    for name, text in tree.cmake_lists().items():
        match = MODULE.search(text)
        if match:
            found[str(pathlib.PurePath(name).parent)] = match[1]
    return found


def forbidden_edges(tree):
    modules = modules_of_folders(tree)
    for name, text in tree.of_suffix(*CODE).items():
        if under(name, SEES_EVERYTHING):
            continue
        allowed = allowed_modules(name, modules)
        for match in INCLUDE.finditer(text):
            parts = match[2].split("/")
            if parts[0] == "quillon" and parts[1] not in allowed:
                yield name, line_of(text, match.start()), f"may not see {parts[1]}, only {', '.join(sorted(allowed))}"


def allowed_modules(name, modules):
    folder = str(pathlib.PurePath(name).parent)
    prefixes = [prefix for prefix in EDGES if under(name, (prefix,))]
    if not prefixes:
        return {f"what EDGES in {pathlib.PurePath(__file__).name} names"}
    return {*EDGES[max(prefixes, key=len)], modules.get(folder, pathlib.PurePath(folder).name)}


RULES = (forbidden_words, globs, climbing_includes, own_header_first, guarded_headers, long_sources,
         unregistered_sources, unreached_lists, forbidden_edges)


def main():
    tree = Tree(sys.argv[1], sys.stdin.read().splitlines())
    findings = sorted(finding for rule in RULES for finding in rule(tree))
    for name, line, message in findings:
        print(f"{name}:{line}: {message}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
