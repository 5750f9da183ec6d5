"""A tray on the session bus that shows nothing: a watcher that items register with, its host, and what a host
knows of an item and does with it."""

import threading

from gi.repository import Gio, GLib

from accessible import ask, session_bus

WATCHER, WATCHER_PATH = "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher"
ITEM, ITEM_PATH = "org.kde.StatusNotifierItem", "/StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name='{WATCHER}'>
    <method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
    <method name='RegisterStatusNotifierHost'><arg type='s' direction='in'/></method>
    <property name='RegisteredStatusNotifierItems' type='as' access='read'/>
    <property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
    <property name='ProtocolVersion' type='i' access='read'/>
    <signal name='StatusNotifierItemRegistered'><arg type='s'/></signal>
    <signal name='StatusNotifierItemUnregistered'><arg type='s'/></signal>
    <signal name='StatusNotifierHostRegistered'/>
    <signal name='StatusNotifierHostUnregistered'/>
</interface></node>""").interfaces[0]


class TrayWatcher:
    """Answers on a thread and a connection of its own: items come while the test waits for something else."""

    def __init__(self, has_host=True):
        self.items = []  # bus names, in the order in which they registered
        self.has_host = has_host
        self.context = GLib.MainContext()
        self.loop = GLib.MainLoop(self.context)
        ready = threading.Event()
        self.thread = threading.Thread(target=self._serve, args=(ready,), daemon=True)
        self.thread.start()
        if not ready.wait(10):
            raise AssertionError("the tray's watcher did not come up")

    def _serve(self, ready):
        self.context.push_thread_default()
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        address = Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION)
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags)
        self.bus.register_object(WATCHER_PATH, INTERFACE, self._called, self._property)
        Gio.bus_own_name_on_connection(self.bus, WATCHER, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: ready.set(), None)
        self.loop.run()
        self.context.pop_thread_default()

    def close(self):
        """As when it is killed: nobody is told but by the bus."""
        if self.thread.is_alive():
            self.bus.close_sync()
            self.context.invoke_full(GLib.PRIORITY_DEFAULT, self.loop.quit)
            self.thread.join(10)

    def set_host(self, is_there):
        """Lets the host come or go."""
        self.has_host = is_there
        signal = "StatusNotifierHostRegistered" if is_there else "StatusNotifierHostUnregistered"
        self.bus.emit_signal(None, WATCHER_PATH, WATCHER, signal, None)

    def _called(self, _bus, sender, _path, _interface, method, _arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            self.items.append(sender)
        invocation.return_value(None)

    def _property(self, _bus, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", [item + ITEM_PATH for item in self.items]),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", self.has_host),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def item(self):
        """The item that registered last."""
        return TrayItem(self.items[-1])


class TrayItem:
    """An item as a tray sees it."""

    def __init__(self, bus_name):
        self.bus_name = bus_name

    def told(self, name):
        """A property, such as Title."""
        return ask(session_bus(), self.bus_name, ITEM_PATH, PROPERTIES, "Get", GLib.Variant("(ss)", (ITEM, name)))[0]

    def all_told(self):
        return ask(session_bus(), self.bus_name, ITEM_PATH, PROPERTIES, "GetAll", GLib.Variant("(s)", (ITEM,)))[0]

    def click(self, method):
        """Clicks where the pointer is, as trays do: Activate, SecondaryActivate, ContextMenu."""
        ask(session_bus(), self.bus_name, ITEM_PATH, ITEM, method, GLib.Variant("(ii)", (0, 0)))

    def brightness(self):
        """Of what is drawn of its picture of 22 pixels, from 0 to 255."""
        width, height, pixels = next(picture for picture in self.told("IconPixmap") if picture[0] == 22)
        drawn = [pixels[at + 1:at + 4] for at in range(0, width * height * 4, 4) if pixels[at] > 200]
        return sum(map(sum, drawn)) / len(drawn) / 3

    def menu(self):
        return ShownMenu(self.bus_name, self.told("Menu"))


class ShownMenu:
    """An item's menu as a tray keeps it: read once, then changed as the program tells."""

    def __init__(self, bus_name, path):
        self.bus_name, self.path = bus_name, path
        self.layouts = []  # the revisions that were told
        self.subscriptions = [
            session_bus().signal_subscribe(bus_name, MENU, signal, path, None, Gio.DBusSignalFlags.NONE, handle)
            for signal, handle in (("LayoutUpdated", self._layout_updated),
                                   ("ItemsPropertiesUpdated", self._properties_updated))]
        self._read()

    def close(self):
        for subscription in self.subscriptions:
            session_bus().signal_unsubscribe(subscription)

    def call(self, method, arguments):
        return ask(session_bus(), self.bus_name, self.path, MENU, method, arguments)

    def _read(self):
        self.revision, (_, _, below) = self.call("GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        self.lines = {number: properties for number, properties, _ in below}

    def _layout_updated(self, *call):
        revision, _ = call[-1].unpack()
        self.layouts.append(revision)
        self._read()

    def _properties_updated(self, *call):
        updated, removed = call[-1].unpack()
        for number, properties in updated:
            self.lines[number] |= properties
        for number, names in removed:
            for name in names:
                self.lines[number].pop(name, None)

    def texts(self):
        """What the menu reads, from top to bottom: separators as "-", lines that cannot be chosen in brackets, keys
        behind a bar."""
        while GLib.MainContext.default().iteration(False):
            pass
        return [self._text(properties) for properties in self.lines.values()]

    @staticmethod
    def _text(properties):
        if properties.get("type") == "separator":
            return "-"
        label = properties["label"].replace("__", "_")
        if not properties.get("enabled", True):
            return f"[{label}]"
        keys = ["+".join(stroke) for stroke in properties.get("shortcut", [])]
        return " | ".join([label, *keys])

    def number(self, text):
        """Of the line that reads like this."""
        return next(number for number, properties in self.lines.items() if self._text(properties) == text)

    def choose(self, text):
        self.call("Event", GLib.Variant("(isvu)", (self.number(text), "clicked", GLib.Variant("i", 0), 0)))
