"""The program's item in a tray: what the tray is told, and what clicks there do."""

import desktop
from desktop import wait_until
from gi.repository import Gio, GLib
from quillon import QuillonTestCase

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name='{WATCHER}'>
    <method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
    <method name='RegisterStatusNotifierHost'><arg type='s' direction='in'/></method>
    <property name='RegisteredStatusNotifierItems' type='as' access='read'/>
    <property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
    <property name='ProtocolVersion' type='i' access='read'/>
    <signal name='StatusNotifierItemRegistered'><arg type='s'/></signal>
    <signal name='StatusNotifierHostRegistered'/>
</interface></node>""").interfaces[0]


class Tray:
    """A tray that shows nothing: it knows the items that register and passes clicks on."""

    def __init__(self):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.items = []
        self.registration = self.bus.register_object("/StatusNotifierWatcher", INTERFACE, self.called, self.property)
        self.name = Gio.bus_own_name_on_connection(self.bus, WATCHER, Gio.BusNameOwnerFlags.NONE)

    def close(self):
        Gio.bus_unown_name(self.name)
        self.bus.unregister_object(self.registration)

    def called(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            self.items.append((sender, "/StatusNotifierItem"))
        invocation.return_value(None)

    @staticmethod
    def property(_bus, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", []),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def has_items(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return bool(self.items)

    def ask(self, interface, method, arguments):
        (sender, path), = self.items
        return self.bus.call_sync(sender, path, interface, method, arguments, None, 0, 5000, None)

    def told(self, name):
        return self.ask("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (ITEM, name))).unpack()[0]

    def click(self, method):
        """Clicks where the pointer is, as trays do: Activate, SecondaryActivate."""
        self.ask(ITEM, method, GLib.Variant("(ii)", (0, 0)))


class TrayTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.tray = Tray()
        self.addCleanup(self.tray.close)
        program = self.start(self.program())
        wait_until("its item in the tray", self.tray.has_items)
        self.adopt(program)

    def test_the_item_has_the_program_s_name(self):
        self.assertEqual(self.tray.told("Title"), "Quillon")
        self.assertEqual(self.tray.told("Status"), "Active")

    def test_a_click_opens_the_menu_at_the_pointer(self):
        desktop.xdotool("mousemove", "--sync", 400, 300)
        before = desktop.screenshot("no-tray-menu")
        self.tray.click("Activate")
        (_, x, y, width, height), = wait_until("the menu", lambda: desktop.visible_windows(self.quillon.pid))
        self.assertTrue(x <= 400 <= x + width and y <= 300 <= y + height, (x, y, width, height))
        wait_until("its picture",
                   lambda: desktop.differing_pixels(before, desktop.screenshot("tray-menu")) > width * height / 2)
        desktop.press("Down", "Return")  # Show Shortcuts
        wait_until("the overlay", self.overlay.is_open)

    def test_a_click_with_the_middle_button_opens_the_overlay_to_stay(self):
        self.tray.click("SecondaryActivate")
        wait_until("the overlay", self.overlay.is_open)
        wait_until("its hint", lambda: self.overlay.says("Esc closes"))


if __name__ == "__main__":
    desktop.main()
