"""Divides the screen of a private desktop into monitors, as RandR lets any client do."""

import ctypes

_x11 = ctypes.CDLL("libX11.so.6")
_randr = ctypes.CDLL("libXrandr.so.2")

_x11.XOpenDisplay.restype = ctypes.c_void_p
_x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
_x11.XDefaultRootWindow.restype = ctypes.c_ulong
_x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
_x11.XInternAtom.restype = ctypes.c_ulong
_x11.XCloseDisplay.argtypes = [ctypes.c_void_p]


class _Resources(ctypes.Structure):
    """The beginning of XRRScreenResources."""

    _fields_ = [("timestamp", ctypes.c_ulong), ("config_timestamp", ctypes.c_ulong), ("crtc_count", ctypes.c_int),
                ("crtcs", ctypes.c_void_p), ("output_count", ctypes.c_int),
                ("outputs", ctypes.POINTER(ctypes.c_ulong))]


class _Monitor(ctypes.Structure):
    """XRRMonitorInfo."""

    _fields_ = [("name", ctypes.c_ulong), ("is_primary", ctypes.c_int), ("is_automatic", ctypes.c_int),
                ("output_count", ctypes.c_int), ("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int),
                ("height", ctypes.c_int), ("millimetres_wide", ctypes.c_int), ("millimetres_high", ctypes.c_int),
                ("outputs", ctypes.POINTER(ctypes.c_ulong))]


_randr.XRRGetScreenResources.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
_randr.XRRGetScreenResources.restype = ctypes.POINTER(_Resources)
_randr.XRRFreeScreenResources.argtypes = [ctypes.POINTER(_Resources)]
_randr.XRRSetMonitor.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.POINTER(_Monitor)]


def set_monitors(*boxes):
    """Makes a monitor of each box (x, y, width, height). The first is the main one and has the server's output.

    Once on a desktop: a monitor cannot be made twice.
    """
    display = _x11.XOpenDisplay(None)
    root = _x11.XDefaultRootWindow(display)
    resources = _randr.XRRGetScreenResources(display, root)
    for number, (x, y, width, height) in enumerate(boxes):
        name = _x11.XInternAtom(display, b"MONITOR-%d" % number, 0)
        is_first = int(number == 0)
        monitor = _Monitor(name, is_first, 0, is_first, x, y, width, height, 200, 200, resources.contents.outputs)
        _randr.XRRSetMonitor(display, root, ctypes.byref(monitor))
    _randr.XRRFreeScreenResources(resources)
    _x11.XCloseDisplay(display)
