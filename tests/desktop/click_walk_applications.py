"""The applications of a click walk, and the states in which all of their commands can be used."""

import os
import pathlib

import desktop
from desktop import wait_until

FORM = """<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <property name="geometry"><rect><x>0</x><y>0</y><width>400</width><height>300</height></rect></property>
  <widget class="QPushButton" name="first">
   <property name="geometry"><rect><x>30</x><y>30</y><width>120</width><height>40</height></rect></property>
   <property name="text"><string>First</string></property>
  </widget>
  <widget class="QPushButton" name="second">
   <property name="geometry"><rect><x>30</x><y>120</y><width>120</width><height>40</height></rect></property>
   <property name="text"><string>Second</string></property>
  </widget>
 </widget>
 <resources/>
 <connections/>
</ui>
"""


class Geany:
    """Some words are typed; in the other states they are selected too, or were taken back."""

    states = "typed", "selected"
    only = None
    environment = {}

    def command(self):
        return ["geany", "--new-instance", "--no-session"]

    def prepare(self, _, state):
        desktop.type_text("some words")
        if state == "selected":
            desktop.press("ctrl+a")


class Designer:
    """A form with two buttons is open; in the other states they are selected and copied, are in a splitter, or that
    was undone."""

    states = "opened", "selected", "laid out", "undone"
    only = None
    environment = {}

    def command(self):
        form = pathlib.Path(os.environ["HOME"], "walked.ui")
        form.write_text(FORM, encoding="utf-8")
        return ["/usr/lib/qt6/bin/designer", str(form)]

    def prepare(self, pid, state):
        button = wait_until("the form's button", lambda: next(
            (found for found in desktop.shown(pid) if found.role() == "push button" and found.name() == "First"), None))
        if state == "opened":
            return
        desktop.click(*button.centre())
        desktop.press("ctrl+c", "ctrl+a")
        if state in ("laid out", "undone"):
            desktop.press("ctrl+3")
        if state == "undone":
            desktop.press("ctrl+z")


class Gimp:
    """No picture is open. Only commands that leave nothing behind are walked."""

    states = ("started",)
    only = (
        ("File", "New..."), ("File", "Open..."), ("View", "Fullscreen"),
        ("Tools", "Selection Tools", "Rectangle Select"), ("Tools", "Paint Tools", "Pencil"),
        ("Tools", "Transform Tools", "Rotate"), ("Tools", "Text"), ("Tools", "Swap Colors"),
        ("Windows", "Dockable Dialogs", "Layers"), ("Windows", "Hide Docks"),
    )
    environment = {"GTK_MODULES": "gail:atk-bridge"}

    def command(self):
        return ["gimp", "--no-splash", "--new-instance"]

    def prepare(self, pid, state):
        """As it starts."""


APPLICATIONS = {"geany": Geany(), "designer": Designer(), "gimp": Gimp()}
