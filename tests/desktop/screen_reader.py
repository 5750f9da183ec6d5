"""What a screen reader hears on the accessibility bus, and would read by itself."""

from gi.repository import Gio, GLib

from accessible import REGISTRY, Accessible, accessibility_bus, ask

SHOWING = "object:state-changed:showing"


class ScreenReader:
    """Listens as a screen reader does: it says which events it wants, or programs would not send them."""

    def __init__(self):
        self.heard = []  # the names of the notifications that began to show, in order
        self._bus = accessibility_bus()
        ask(self._bus, REGISTRY[0], "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
            GLib.Variant("(sass)", (SHOWING, [], "")))
        self._bus.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                                   Gio.DBusSignalFlags.NONE, self._changed)

    def _changed(self, _bus, sender, path, _interface, _signal, arguments):
        begins = arguments.unpack()[1]
        element = Accessible(sender, path)
        if begins and element.role() == "notification":
            self.heard.append(element.name())

    def notices(self):
        """What it has read by now."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self.heard
