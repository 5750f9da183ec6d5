"""Keys by their place on the keyboard, whatever its layout makes of them.

xdotool puts the first layout in effect for the time of each key, so where there are several these are used.
"""

import contextlib
import ctypes
import functools
import subprocess

import desktop

CORE_KEYBOARD = 0x100

# X key codes by what the keys give on a US keyboard.
CODES = dict(zip("1234567890-=", range(10, 22))) | dict(zip("qwertyuiop[]", range(24, 36))) | \
    dict(zip("asdfghjkl;'", range(38, 49))) | dict(zip("zxcvbnm,./", range(52, 62))) | \
    {"Ctrl": 37, "Shift": 50, "AltGr": 108, "Delete": 119}


class Server:
    """A connection for making key events."""

    def __init__(self):
        self.x11, self.xtest = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))

    def key(self, name, is_down):
        self.xtest.XTestFakeKeyEvent(self.display, CODES[name], is_down, ctypes.c_ulong(0))
        self.x11.XSync(self.display, 0)

    def takes_keyboard(self):
        root = self.x11.XDefaultRootWindow(self.display)
        grabbed = self.x11.XGrabKeyboard(self.display, ctypes.c_ulong(root), 0, 1, 1, ctypes.c_ulong(0)) == 0
        self.x11.XUngrabKeyboard(self.display, ctypes.c_ulong(0))
        self.x11.XSync(self.display, 0)
        return grabbed

    def lock_layout(self, number):
        self.x11.XkbLockGroup(self.display, CORE_KEYBOARD, number)
        self.x11.XSync(self.display, 0)


@functools.cache
def server():
    return Server()


def is_keyboard_free():
    """Whether no program has taken the keyboard for itself."""
    return server().takes_keyboard()


@contextlib.contextmanager
def held(*keys):
    """Holds keys down, the first one first, and gives whatever has to learn of it the time to."""
    for key in keys:
        server().key(key, True)
    try:
        if keys:
            desktop.finger_moves()
        yield
    finally:
        for key in reversed(keys):
            server().key(key, False)


def tap(*keys):
    """Presses keys, one after the other."""
    for key in keys:
        server().key(key, True)
        server().key(key, False)


def chord(key, *modifiers):
    """Presses a key as a person does, its modifiers first; Ctrl when none are named."""
    with held(*(modifiers or ("Ctrl",))):
        tap(key)


@contextlib.contextmanager
def layout(*arguments):
    """A keyboard layout, as setxkbmap names it, until the end of the block."""
    set_layout(*arguments)
    try:
        yield
    finally:
        set_layout("us")


@contextlib.contextmanager
def second_layout():
    """Puts the second of two layouts in effect, until the end of the block."""
    server().lock_layout(1)
    try:
        yield
    finally:
        server().lock_layout(0)


def set_layout(*arguments):
    subprocess.run(["setxkbmap", *arguments], check=True, stdin=subprocess.DEVNULL, timeout=20)
