"""An application's shortcut sheet, worked out a second time.

Nothing here is shared with the program: the menus are read one call after another, and the rules that turn them
into commands with shortcuts are written anew, so that a mistake would have to be made twice.

Menus are trees of dictionaries as in tests/data/menus: role, name, actions, keyBinding, enabled, sensitive,
visible, size, children.
"""

import ctypes

CONTROL, OPTION, SHIFT, COMMAND = 1, 2, 4, 8
DEEPEST_SUBMENU = 4

# --- Reading ---------------------------------------------------------------------------------------------------


def read_menu_bar(application):
    """The menus of an application's first window that has a menu bar; none if no window has one."""
    for window in application.children():
        bar = menu_bar_of(window)
        if bar is not None:
            return [read_item(item) for item in bar.children()]
    return []


def menu_bar_of(window):
    """The window's menu bar. An office suite keeps another for itself in a window of its own making, a root pane
    inside of the real window; nobody sees that one."""
    return find_menu_bar(window, enters_root_panes=False) or find_menu_bar(window, enters_root_panes=True)


def find_menu_bar(window, enters_root_panes):
    """The nearest menu bar; None when there is none within seven levels."""
    level = [window]
    for _ in range(8):
        below = []
        for candidate in level:
            role = candidate.role()
            if role == "menu bar":
                return candidate
            if enters_root_panes or role != "root pane":
                below += candidate.children()
        level = below
    return None


def read_item(item):
    states = item.states()
    return {
        "role": item.role(),
        "name": item.name(),
        "actions": item.action_count(),
        "keyBinding": item.key_binding(),
        "enabled": "enabled" in states,
        "sensitive": "sensitive" in states,
        "visible": "visible" in states,
        "size": list(item.extents()[2:]),
        "children": [read_item(child) for child in item.children()],
    }


# --- Commands ----------------------------------------------------------------------------------------------------


def entries(menu_bar, toolkit):
    """The commands with shortcuts, in menu order, in their stored form."""
    found = {}
    for at, menu in enumerate(seen(menu_bar, toolkit)):
        if at == 0 and menu["name"] in ("", "Apple"):
            continue
        title = menu["name"].strip(" \t\u00a0")
        if title:
            collect(menu, [title], 1, toolkit, found)
    return list(found.values())


def collect(menu, path, depth, toolkit, found):
    for item in submenu(menu, toolkit):
        title = item["name"].replace("\u00a0", " ").strip()
        if not title:
            continue
        item_path = path + [title]
        if submenu(item, toolkit):
            if depth < DEEPEST_SUBMENU:
                collect(item, item_path, depth + 1, toolkit, found)
            continue
        shortcut = shortcut_of(item["keyBinding"], toolkit, item["name"])
        if shortcut:
            entry = {"path": item_path, "shortcut": shortcut, "enabled": item["enabled"] and item["sensitive"]}
            found.setdefault(tuple(item_path), entry)


def submenu(item, toolkit):
    """The items of a menu that a person sees. Qt puts a nameless popup between a menu and its items."""
    items = []
    for child in item["children"]:
        items += child["children"] if child["role"] == "popup menu" else [child]
    return seen(items, toolkit)


def seen(items, toolkit):
    """Without those that the application hides, each toolkit by the fact that tells it there."""
    if toolkit.lower() in ("gtk", "gail"):
        return [item for item in items if item.get("visible", True)]
    if toolkit.lower() == "qt":
        return [item for item in items if 0 not in item.get("size", (1, 1))]
    return items


# --- Key bindings -------------------------------------------------------------------------------------------------


def shortcut_of(binding, toolkit, title):
    """The shortcut of a key binding in its stored form, or None."""
    if toolkit.lower() == "qt":
        return first_of_qt(binding, title)
    parts = binding.split(";", 2)
    return gtk_accelerator(parts[2]) if len(parts) == 3 else None


def stored(modifiers, key):
    if key is None:
        return None
    kind, value = key
    return {"key": {kind: {"_0": value}}, "modifiers": modifiers}


GTK_MODIFIERS = {
    "primary": CONTROL, "control": CONTROL, "ctrl": CONTROL, "ctl": CONTROL,
    "alt": OPTION, "mod1": OPTION,
    "shift": SHIFT, "shft": SHIFT,
    "super": COMMAND, "meta": COMMAND, "mod4": COMMAND,
}

GTK_KEYS = {
    "Return": "returnKey", "KP_Enter": "enter", "Tab": "tab", "KP_Tab": "tab", "ISO_Left_Tab": "backTab",
    "space": "space", "KP_Space": "space", "BackSpace": "delete", "Delete": "forwardDelete",
    "KP_Delete": "forwardDelete", "Escape": "escape", "Clear": "clear", "Help": "help", "XF86Eject": "eject",
    "Left": "left", "Right": "right", "Up": "up", "Down": "down", "Page_Up": "pageUp", "Page_Down": "pageDown",
    "Prior": "pageUp", "Next": "pageDown", "Home": "home", "End": "end", "KP_Left": "left", "KP_Right": "right",
    "KP_Up": "up", "KP_Down": "down", "KP_Page_Up": "pageUp", "KP_Page_Down": "pageDown", "KP_Home": "home",
    "KP_End": "end",
} | {f"F{number}": f"f{number}" for number in range(1, 20)}

QT_MODIFIERS = {"ctrl": CONTROL, "alt": OPTION, "shift": SHIFT, "meta": COMMAND, "num": 0}

QT_KEYS = {
    "return": "returnKey", "enter": "enter", "tab": "tab", "backtab": "backTab", "space": "space",
    "backspace": "delete", "del": "forwardDelete", "delete": "forwardDelete", "esc": "escape", "clear": "clear",
    "help": "help", "eject": "eject", "left": "left", "right": "right", "up": "up", "down": "down",
    "pgup": "pageUp", "pgdown": "pageDown", "home": "home", "end": "end",
} | {f"f{number}": f"f{number}" for number in range(1, 20)}


def gtk_accelerator(text):
    """From such as <Primary><Shift>Page_Up."""
    modifiers = 0
    while text.startswith("<") and ">" in text:
        name, text = text[1:].split(">", 1)
        if name.lower() not in GTK_MODIFIERS:
            return None
        modifiers |= GTK_MODIFIERS[name.lower()]
    if text in GTK_KEYS:
        return stored(modifiers, ("special", GTK_KEYS[text]))
    character = character_of_keysym(text)
    return stored(modifiers, ("char", character.upper()) if character else None)


def character_of_keysym(name):
    """The character that a key with this X name types, or "" if it types none that can be seen."""
    xkb = ctypes.CDLL("libxkbcommon.so.0")
    code = xkb.xkb_keysym_to_utf32(xkb.xkb_keysym_from_name(name.encode(), 0))
    return chr(code) if code > 32 and code != 127 else ""


def first_of_qt(binding, title):
    """From such as Ctrl+Shift+S, or several joined by semicolons, of which the first that can be told counts."""
    if len(binding) == 5 and binding.startswith("Alt+") and binding[4] in title:
        return None  # the item's mnemonic
    for sequence in split_qt_list(binding):
        shortcut = qt_stroke(sequence) if ", " not in sequence else None
        if shortcut:
            return shortcut
    return None


def split_qt_list(binding):
    """Splits at semicolons that are not themselves the key."""
    sequences = [""]
    for at, character in enumerate(binding):
        is_key = at == 0 or binding[at - 1] == "+"
        if character == ";" and not is_key:
            sequences.append("")
        else:
            sequences[-1] += character
    return [sequence.strip() for sequence in sequences]


def qt_stroke(text):
    names, key = ([], text) if text == "+" else (text.split("+")[:-1], text.split("+")[-1])
    if text.endswith("++"):
        names, key = text[:-2].split("+"), "+"
    modifiers = 0
    for name in names:
        if name.lower() not in QT_MODIFIERS:
            return None
        modifiers |= QT_MODIFIERS[name.lower()]
    if key.lower() in QT_KEYS:
        return stored(modifiers, ("special", QT_KEYS[key.lower()]))
    return stored(modifiers, ("char", key.upper()) if len(key) == 1 else None)
