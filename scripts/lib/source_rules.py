#!/usr/bin/python3
"""Rules about the sources that no compiler knows. Prints one line per finding: file:line: message.

Takes the root of the tree and reads the names of its files, one per line, from standard input.
"""

import os
import pathlib
import re
import sys

# The floors of the house: what the modules below a folder may link at all. What each of them may include is
# what its own quillon_module() names.
FLOORS = {
    "kit": ("kit",),
    "app/ports": ("kit",),
    "app/core": ("kit", "app/ports", "app/core"),
    "app/languages": ("kit",),
    "app/views": ("kit", "app/ports", "app/core", "app/languages", "app/views"),
    "app/cheatsheet": ("kit", "app/ports", "app/languages", "app/views/components", "app/cheatsheet"),
    "app/cli": ("kit", "app/ports", "app/languages"),
    "app/commands": ("kit", "app/ports", "app/cli", "app/languages"),
    "app/platform": ("kit", "app/ports", "app/platform"),
}
SEES_EVERYTHING = ("app/start", "tests", "bench", "fuzz")

# Put together here, or this file would be a finding itself.
FORBIDDEN_WORDS = ["TO" + "DO", "FIX" + "ME", "X" + "XX", "DISABLED" + "_", "GTEST_" + "SKIP", "Q" + "SKIP"]
LONGEST_SOURCE = 400

CODE = (".cpp", ".h")
TEXT = (*CODE, ".txt", ".cmake", ".py", ".md", ".json", ".xml", ".desktop", ".1", ".sh", "")
RECORDED = "tests/data/"

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+([<"])([^>"]+)[>"]', re.MULTILINE)
MODULE = re.compile(r"^quillon_module\(([^)]*)\)", re.MULTILINE)
LISTS = ("HEADERS", "SOURCES", "PUBLIC", "PRIVATE")


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
                yield name, line_of(text, match.start()), "another folder's header is included as <quillon/FOLDER/file.h>"


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
        for match in re.finditer(r"(\$\{PROJECT_SOURCE_DIR\}/)?([\w./-]+\.(?:cpp|py))\b",
                                 text.replace("${CMAKE_CURRENT_SOURCE_DIR}/", "")):
            registered.add(match[2] if match[1] else os.path.normpath(os.path.join(folder, match[2])))
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


class Module:
    """What a folder's quillon_module() says: its public headers, and the folders of the modules it links."""

    def __init__(self, arguments):
        lists, current = {name: [] for name in LISTS}, None
        for word in re.sub(r"#.*", "", arguments).split():
            if word in LISTS:
                current = lists[word]
            elif current is not None:
                current.append(word)
        self.headers = set(lists["HEADERS"])
        self.public = folders_of(lists["PUBLIC"])
        self.links = self.public | folders_of(lists["PRIVATE"])


def folders_of(targets):
    return {target.removeprefix("quillon::").replace("::", "/") for target in targets if target.startswith("quillon::")}


def modules_of(tree):
    found = {}
    for name, text in tree.cmake_lists().items():
        match = MODULE.search(text)
        if match and not under(name, SEES_EVERYTHING):
            found[str(pathlib.PurePath(name).parent)] = Module(match[1])
    return found


def included_folders(text):
    for match in INCLUDE.finditer(text):
        if match[2].startswith("quillon/"):
            yield line_of(text, match.start()), os.path.dirname(match[2].removeprefix("quillon/"))


def unlinked_includes(tree):
    """An include over an edge that the module has only through others, or that its headers keep to themselves."""
    modules = modules_of(tree)
    for name, text in tree.of_suffix(*CODE).items():
        module = modules.get(os.path.dirname(name))
        if module is None:
            continue
        is_public = os.path.basename(name) in module.headers
        for line, folder in included_folders(text):
            if folder not in module.links:
                yield name, line, f"{os.path.dirname(name)} does not link {folder}"
            elif is_public and folder not in module.public:
                yield name, line, f"a public header mentions {folder}: link it as PUBLIC"


def unused_links(tree):
    """A link along which nothing is included."""
    for folder, module in modules_of(tree).items():
        used = {target for name, text in tree.of_suffix(*CODE).items() if os.path.dirname(name) == folder
                for _, target in included_folders(text)}
        for link in sorted(module.links - used):
            yield f"{folder}/CMakeLists.txt", 1, f"links {link} and includes nothing of it"


def links_off_their_floor(tree):
    for folder, module in modules_of(tree).items():
        floors = [floor for floor in FLOORS if folder == floor or under(folder, (floor,))]
        allowed = FLOORS[floors[0]] if floors else ()
        for link in sorted(module.links):
            if link not in allowed and not under(link, allowed):
                yield f"{folder}/CMakeLists.txt", 1, f"may not link {link}, only {', '.join(allowed) or 'what FLOORS names'}"


def circles(tree):
    modules = modules_of(tree)
    done, path = set(), []

    def visit(folder):
        if folder in path:
            yield f"{folder}/CMakeLists.txt", 1, f"a circle of links: {' → '.join([*path[path.index(folder):], folder])}"
        elif folder not in done and folder in modules:
            path.append(folder)
            for link in sorted(modules[folder].links):
                yield from visit(link)
            path.pop()
            done.add(folder)

    for folder in sorted(modules):
        yield from visit(folder)


RULES = (forbidden_words, globs, climbing_includes, own_header_first, guarded_headers, long_sources,
         unregistered_sources, unreached_lists, unlinked_includes, unused_links, links_off_their_floor, circles)


def main():
    tree = Tree(sys.argv[1], sys.stdin.read().splitlines())
    findings = sorted(finding for rule in RULES for finding in rule(tree))
    for name, line, message in findings:
        print(f"{name}:{line}: {message}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
