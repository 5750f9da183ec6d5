"""The menus of a running application, used with the pointer as a person uses them."""

import time

import desktop
from accessible import application_of
from desktop import wait_until

PAUSE = 0.1  # seconds: a hand that has come to an item rests there before it presses
HELD_DOWN = 0.06  # seconds that a finger keeps a button down
DRAGGED = 0.6  # seconds: GTK takes a button let go sooner for a click that opened the menu


def below(item):
    """The items of an item's submenu, those of Qt's nameless layer in its place."""
    children = item.children()
    if len(children) == 1 and children[0].role() == "popup menu":
        return children[0].children()
    return children


def is_named(title):
    return lambda item: item.name().strip() == title


def find_menu_bar(root, depth=7):
    """The first menu bar that shows, nearest first."""
    level = [root]
    for _ in range(depth):
        for found in level:
            if found.role() == "menu bar" and "showing" in found.states() and found.extents()[3] > 0:
                return found
        level = [child for parent in level for child in parent.children()]
    return None


class Menus:
    """Of the application's first window that has a menu bar. `scale` is how many pixels of the display one of the
    application's has. `rest` is called with the place on which the pointer rests before an item is clicked."""

    def __init__(self, pid, scale=1, rest=lambda place: None):
        self.pid, self.scale, self.rest = pid, scale, rest
        self.bar = wait_until("a menu bar", lambda: find_menu_bar(application_of(pid)))
        self.titles = {title.name().strip(): title for title in self.bar.children() if title.name().strip()}

    def place(self, item):
        """The middle of an item, in the pixels of the display."""
        x, y, width, height = item.extents()
        return int((x + width / 2) * self.scale), int((y + height / 2) * self.scale)

    def move_to(self, item):
        """In two steps: menus do not follow a pointer that only appears somewhere."""
        x, y = self.place(item)
        desktop.xdotool("mousemove", x - 3, y)
        desktop.xdotool("mousemove", x, y)

    def is_open(self):
        return any(is_menu_window(window) for window in desktop.visible_windows(self.pid))

    def open(self, *path):
        """Clicks a top-level title and opens the submenus below it; gives the items of the last one."""
        title = self.titles[path[0]]
        self.move_to(title)
        desktop.xdotool("click", 1)
        items = self.wait_for_items(title)
        for name in path[1:]:
            submenu = self.item(items, name)
            self.move_to(submenu)
            desktop.xdotool("click", 1)
            items = self.wait_for_items(submenu)
        return items

    @staticmethod
    def wait_for_items(menu):
        """Those with a place on the screen."""
        def shown():
            return [item for item in below(menu) if item.name().strip() and is_on_screen(item)]

        return wait_until(f"the menu {menu.name()!r}", shown, within=5)

    @staticmethod
    def item(items, name):
        found = next((item for item in items if item.name().strip() == name), None)
        if found is None:
            raise AssertionError(f"no {name!r} among {[item.name() for item in items]}")
        return found

    def point_at(self, *path):
        """Opens the menus and rests on the item."""
        item = self.item(self.open(*path[:-1]), path[-1])
        self.move_to(item)
        time.sleep(PAUSE)
        self.rest(self.place(item))
        return item

    def choose(self, *path):
        """Clicks the title, then the item."""
        self.point_at(*path)
        press_and_let_go()

    def drag_to(self, *path):
        """Presses the title, and lets go over the item."""
        title = self.titles[path[0]]
        self.move_to(title)
        desktop.xdotool("mousedown", 1)
        item = self.item(self.wait_for_items(title), path[1])
        self.move_to(item)
        time.sleep(DRAGGED)
        self.rest(self.place(item))
        desktop.xdotool("mouseup", 1)

    def close(self):
        """Closes what is open."""
        for _ in range(4):
            if not self.is_open():
                return
            desktop.press("Escape")
            time.sleep(0.1)


def press_and_let_go(button=1):
    desktop.xdotool("mousedown", button)
    time.sleep(HELD_DOWN)
    desktop.xdotool("mouseup", button)


def is_on_screen(item):
    x, y, width, height = item.extents()
    return width > 1 and height > 1 and x >= 0 and y >= 0


def is_menu_window(window):
    number = window[0]
    types = desktop.window_types(number)
    return any("MENU" in kind for kind in types)
