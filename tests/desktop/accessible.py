"""Accessible objects of other programs, asked one question at a time.

Plain D-Bus calls, each bounded in time and none cached: libatspi keeps what it once read, and waits without end
for an application that appears or stops while it is asked.
"""

import functools

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ANSWER_WITHIN = 1500  # milliseconds for one question to an application, which may be stopped
PATIENTLY = 10_000  # and to what always answers

ROLES = {
    7: "check box", 8: "check menu item", 11: "combo box", 16: "dialog", 23: "frame", 29: "label", 31: "list", 32: "list item",
    33: "menu", 34: "menu bar", 35: "menu item", 37: "page tab", 38: "page tab list", 39: "panel", 41: "popup menu", 43: "push button",
    45: "radio menu item", 46: "root pane", 50: "separator", 51: "slider", 59: "tear off menu item", 61: "text", 69: "window", 75: "application",
    79: "entry", 83: "heading", 101: "notification", 129: "push button menu",
}
STATES = {
    1: "active", 4: "checked", 7: "editable", 8: "enabled", 11: "focusable", 12: "focused", 23: "selected",
    24: "sensitive", 25: "showing", 30: "visible",
}

ACCESSIBLE = "org.a11y.atspi.Accessible"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
NO_OBJECT = "/org/a11y/atspi/null"


@functools.cache
def session_bus():
    return Gio.bus_get_sync(Gio.BusType.SESSION)


@functools.cache
def accessibility_bus():
    """A connection to the accessibility bus; GLib.Error when there is none."""
    address = ask(session_bus(), "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION)


def ask(connection, name, path, interface, method, arguments=None, within=PATIENTLY):
    """The unpacked answer; GLib.Error when there is none in time."""
    return connection.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START,
                                within).unpack()


class Accessible:
    """One object. What it does not answer is empty: it may vanish, or its program may be stopped."""

    def __init__(self, bus_name, path):
        self.bus_name, self.path = bus_name, path

    def __repr__(self):
        return f"<{self.role()} {self.name()!r} {self.bus_name}{self.path}>"

    def _ask(self, interface, method, arguments=None, otherwise=None):
        try:
            return ask(accessibility_bus(), self.bus_name, self.path, interface, method, arguments, ANSWER_WITHIN)
        except GLib.Error:
            return otherwise

    def _property(self, interface, name, otherwise):
        answer = self._ask("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (interface, name)))
        return answer[0] if answer else otherwise

    def name(self):
        return self._property(ACCESSIBLE, "Name", "")

    def description(self):
        return self._property(ACCESSIBLE, "Description", "")

    def role(self):
        number = self._ask(ACCESSIBLE, "GetRole", otherwise=(0,))[0]
        return ROLES.get(number, f"role {number}")

    def states(self):
        words = self._ask(ACCESSIBLE, "GetState", otherwise=([],))[0]
        bits = sum(word << (32 * at) for at, word in enumerate(words))
        return {name for number, name in STATES.items() if bits >> number & 1}

    def children(self):
        below = self._ask(ACCESSIBLE, "GetChildren", otherwise=([],))[0]
        return [Accessible(*reference) for reference in below if reference[1] != NO_OBJECT]

    def key_binding(self):
        return self._ask("org.a11y.atspi.Action", "GetKeyBinding", GLib.Variant("(i)", (0,)), otherwise=("",))[0]

    def action_count(self):
        return self._property("org.a11y.atspi.Action", "NActions", 0)

    def press(self):
        """Does the first of its actions, as a screen reader does."""
        self._ask("org.a11y.atspi.Action", "DoAction", GLib.Variant("(i)", (0,)))

    def toolkit(self):
        """The name and the version of an application's toolkit."""
        return (self._property("org.a11y.atspi.Application", "ToolkitName", ""),
                self._property("org.a11y.atspi.Application", "Version", ""))

    def text(self):
        """What an editable field holds; "" for anything else."""
        return self._ask("org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)), otherwise=("",))[0]

    def set_text(self, text):
        """Fills an editable field, at once: what is typed into one that offers completions is lost in part while
        their list opens."""
        self._ask("org.a11y.atspi.EditableText", "SetTextContents", GLib.Variant("(s)", (text,)))

    def extents(self):
        """x, y, width and height on the screen."""
        return self._ask("org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,)),
                         otherwise=((0, 0, 0, 0),))[0]

    def centre(self):
        x, y, width, height = self.extents()
        return x + width // 2, y + height // 2

    def showing(self):
        """This object and everything below it that is on the screen, in tree order."""
        if "showing" in self.states():
            yield self
            for child in self.children():
                yield from child.showing()

    def pid(self):
        try:
            return ask(accessibility_bus(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                       "GetConnectionUnixProcessID", GLib.Variant("(s)", (self.bus_name,)))[0]
        except GLib.Error:
            return 0


def applications():
    return Accessible(*REGISTRY).children()


def application_of(pid):
    """The application of this process on the accessibility bus, or None."""
    return next((application for application in applications() if application.pid() == pid), None)
