#!/usr/bin/python3
"""Records the menus of applications, for tests/data/menus.

    scripts/private-desktop -- /usr/bin/python3 tests/desktop/record_menus.py [--into FOLDER] NAME...

Starts each application alone on the desktop, waits until its menus stay as they are, and writes NAME.json: of every item its role,
name, number of actions, key binding, children, whether it is enabled, sensitive and visible, and its size on
the screen, exactly as the accessibility bus gives them.
"""

import argparse
import json
import pathlib

import desktop
from accessible import applications
from independent_sheet import read_menu_bar

COMMANDS = {
    "designer": ["/usr/lib/qt6/bin/designer"],
    "featherpad": ["featherpad", "--standalone"],
    "geany": ["geany", "--new-instance", "--no-session"],
    "gimp": ["gimp", "--no-splash"],
    "libreoffice-writer": ["soffice", "--writer", "--norestore", "--nologo",
                           "--nofirststartwizard"],
    "mousepad": ["mousepad", "--disable-server"],
}
# GTK 2 is on the bus by a module alone (package libatk-adaptor); an office suite without a desktop it knows
# draws its own menus.
ENVIRONMENT = {"GTK_MODULES": "gail:atk-bridge", "SAL_USE_VCLPLUGIN": "gtk3"}
APPEARS_WITHIN = 90.0


def settled_menus():
    """The application and its menus, as soon as two readings in a row give the same; None until then."""
    for application in applications():
        menus = read_menu_bar(application)
        if menus and menus == read_menu_bar(application):
            return application, menus
    return None


def recording_of(application, menus):
    toolkit, version = application.toolkit()
    return {"app": application.name(), "toolkit": toolkit, "toolkitVersion": version, "menuBar": menus}


def record(name, folder):
    program = desktop.Program(COMMANDS[name], ENVIRONMENT)
    try:
        application, menus = desktop.wait_until(f"the menus of {name}", settled_menus, APPEARS_WITHIN)
        recording = recording_of(application, menus)
    finally:
        program.end()
    desktop.wait_until(f"the end of {name}", lambda: not applications())
    path = folder / f"{name}.json"
    path.write_text(json.dumps(recording, ensure_ascii=False, separators=(",", ":")) + "\n", encoding="utf-8")
    print(path, flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--into", type=pathlib.Path, default=desktop.ROOT / "tests/data/menus", metavar="FOLDER")
    parser.add_argument("names", nargs="+", choices=sorted(COMMANDS), metavar="NAME")
    arguments = parser.parse_args()
    for name in arguments.names:
        record(name, arguments.into)


if __name__ == "__main__":
    main()
