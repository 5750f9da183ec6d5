"""A window with an entry that does not show what is typed. Ends with 0 when that had 24 characters or more and Return
came."""

import ctypes

gtk = ctypes.CDLL("libgtk-3.so.0")
gobject = ctypes.CDLL("libgobject-2.0.so.0")
Pointer = ctypes.c_void_p
for make in (gtk.gtk_window_new, gtk.gtk_entry_new):
    make.restype = Pointer

gtk.gtk_init(None, None)
window, entry = Pointer(gtk.gtk_window_new(0)), Pointer(gtk.gtk_entry_new())
gtk.gtk_entry_set_visibility(entry, 0)
gtk.gtk_container_add(window, entry)
status = []


@ctypes.CFUNCTYPE(None, Pointer, Pointer)
def activated(_entry, _data):
    status.append(0 if gtk.gtk_entry_get_text_length(entry) >= 24 else 1)
    gtk.gtk_main_quit()


gobject.g_signal_connect_data(entry, b"activate", activated, None, None, 0)
gtk.gtk_widget_show_all(window)
gtk.gtk_main()
raise SystemExit(status[0])
