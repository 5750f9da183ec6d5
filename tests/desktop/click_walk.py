#!/usr/bin/python3
"""Clicks every command of an application's menu bar and compares what was counted with what was clicked.

    QUILLON_BIN=build/release/bin scripts/private-desktop -- tests/desktop/click_walk.py [geany] [designer]

For every command of the application's sheet: opens its menus with the mouse, clicks it, closes what it opened; an
application that ended is started anew. Prints three numbers: hits (counted as clicked), misses (not counted), and
wrong ones (something else was counted). Commands that cannot be clicked now, because they are disabled or not
shown, are told apart.
"""

import argparse
import collections
import json
import os
import shutil
import time

import desktop
import quillon
from desktop import wait_until
from menus import Menus, below, is_on_screen, press_and_let_go

COMMANDS = {
    "geany": ["geany", "--new-instance", "--no-session"],
    "designer": ["/usr/lib/qt6/bin/designer"],
}


def total_counts(bundle):
    """The clicks that are saved, once they are."""
    try:
        usage = json.loads((quillon.LEARNED / "usage.json").read_text(encoding="utf-8"))
    except (FileNotFoundError, ValueError):
        return collections.Counter()
    return collections.Counter({command: record["clicked"]
                                for command, record in usage["apps"].get(bundle, {}).items() if record["clicked"]})


class Walk:
    def __init__(self, name):
        self.name = name
        self.application = None
        self.start()
        facts = quillon.sheet("--pid", self.application.pid)
        self.bundle = facts["bundleID"]
        self.paths = [tuple(entry["path"]) for entry in facts["entries"]]
        self.results = collections.defaultdict(list)

    def start(self):
        if self.application:
            self.application.end()
        self.application = desktop.Program(COMMANDS[self.name])
        wait_until("its window", lambda: desktop.xdotool("getactivewindow", "getwindowpid", check=False)
                   == str(self.application.pid))
        wait_until("it on the bus", lambda: desktop.showing_windows(self.application.pid))
        if self.name == "designer":
            wait_until("its first dialog", lambda: "New Form" in desktop.active_title())
            desktop.press("Return")  # with a form open, its commands can be used
            wait_until("a form", lambda: "New Form" not in desktop.active_title())
        else:
            desktop.type_text("some words")
        time.sleep(0.7)  # its menus are read when it comes to the front
        self.menus = Menus(self.application.pid)
        self.main_windows = self.windows()

    def windows(self):
        return {window[0] for window in desktop.visible_windows(self.application.pid)}

    def is_as_before(self):
        """Whether the application is alive and shows the windows that it began with, and no other."""
        if not self.application.is_running():
            return False
        return self.windows() == self.main_windows

    def set_right(self):
        """Closes what a command has opened; starts the application anew when that does not help."""
        for _ in range(4):
            if self.is_as_before():
                break
            desktop.press("Escape")
            time.sleep(0.15)
        if not self.is_as_before():
            self.start()

    def click(self, path):
        """Whether the command could be clicked."""
        try:
            items = self.menus.open(*path[:-1])
            item = self.menus.item(items, path[-1])
        except AssertionError:
            return False
        if not is_on_screen(item) or not {"enabled", "sensitive"} <= item.states() or below(item):
            return False
        self.menus.move_to(item)
        time.sleep(0.1)
        press_and_let_go()
        return True

    def run(self):
        before = total_counts(self.bundle)
        for path in self.paths:
            clicked = self.click(path)
            if not clicked:
                self.menus.close()
                self.results["not clickable"].append(path)
                self.set_right()
                continue
            command = " › ".join(path)
            after = self.saved(before, command)
            more = after - before
            if more == collections.Counter({command: 1}):
                self.results["hits"].append(path)
            elif not more:
                self.results["misses"].append(path)
            else:
                self.results["wrong"].append((path, dict(more)))
            before = after
            self.set_right()
        self.application.end()

    def saved(self, before, command):
        """What is saved once the command is, or has had its time."""
        deadline = time.monotonic() + 3
        while time.monotonic() < deadline:
            now = total_counts(self.bundle)
            if now != before:
                time.sleep(0.05)
                return total_counts(self.bundle)
            time.sleep(0.05)
        return total_counts(self.bundle)

    def report(self):
        numbers = {kind: len(self.results[kind]) for kind in ("hits", "misses", "wrong", "not clickable")}
        print(f"{self.name}: {len(self.paths)} commands on the sheet: " +
              ", ".join(f"{number} {kind}" for kind, number in numbers.items()))
        for kind in ("misses", "wrong", "not clickable"):
            for result in self.results[kind]:
                print(f"  {kind}: {result}")
        return numbers


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("applications", nargs="*", default=list(COMMANDS), choices=list(COMMANDS))
    options = parser.parse_args()
    if not quillon.is_private(quillon.LEARNED):
        parser.error("run it by scripts/private-desktop: it deletes what was learned")
    shutil.rmtree(quillon.LEARNED, ignore_errors=True)
    program = desktop.Program([quillon.QUILLON, *(["--verbose"] if "QUILLON_VERBOSE" in os.environ else [])])
    wait_until("quillon", lambda: quillon.owns_name(quillon.SERVICE))
    wait_until("it to watch", lambda: quillon.request("IsWatching")[0])
    wrong = 0
    for name in options.applications:
        walk = Walk(name)
        walk.run()
        wrong += walk.report()["wrong"]
    program.end()
    raise SystemExit(1 if wrong else 0)


if __name__ == "__main__":
    main()
