#!/usr/bin/python3
"""Shows the program at work over a text editor and takes a picture of it: show_overlay.py PICTURE"""

import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/desktop"))

import desktop  # noqa: E402
import quillon  # noqa: E402
from desktop import wait_until  # noqa: E402

SOURCE = pathlib.Path(__file__).resolve().parents[2] / "kit/coach/hold_detector.cpp"


def show(picture):
    text = pathlib.Path.home() / SOURCE.name  # of the private desktop
    shutil.copyfile(SOURCE, text)
    editor = desktop.Program(["geany", "--new-instance", "--no-session", text])
    wait_until("the editor's window", lambda: desktop.showing_windows(editor.pid))
    wait_until("the editor's title", lambda: SOURCE.name in desktop.active_title())

    desktop.xdotool("getactivewindow", "windowmove", "0", "0", "windowsize", "--sync", "100%", "96%")

    quillon.write_settings(onboarded="true")  # the welcome would lie beneath
    program = desktop.Program([quillon.QUILLON])
    wait_until("quillon on the session bus", lambda: quillon.owns_name(quillon.SERVICE))
    overlay = quillon.Overlay(program.pid)

    before = desktop.screenshot("run-before")
    with desktop.held("Super_L"):
        wait_until("the overlay", overlay.is_open)
        wait_until("the editor's shortcuts", overlay.rows)
        _, _, _, width, height = overlay.windows()[0]
        wait_until("the overlay's picture", lambda: desktop.differing_pixels(
            before, desktop.screenshot("run-overlay")) > width * height / 4)
        picture.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(desktop.screenshot("run-overlay"), picture)
    wait_until("the overlay to close", overlay.is_closed)

    print(f"picture: {picture}", file=sys.stderr)
    subprocess.run([quillon.QUILLON, "sheet", "--app", "geany"], check=True)
    subprocess.run([quillon.QUILLON, "quit"], check=True)
    wait_until("quillon to end", lambda: not program.is_running())


if __name__ == "__main__":
    try:
        show(pathlib.Path(sys.argv[1]).resolve())
    except (AssertionError, subprocess.CalledProcessError) as error:
        sys.exit(f"scripts/run: {error}")
