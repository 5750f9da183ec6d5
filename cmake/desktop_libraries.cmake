# What the application needs of the system; all in Debian 12.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets DBus Network PrintSupport Svg)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SDBUS REQUIRED IMPORTED_TARGET libsystemd)
pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-unix-2.0)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-xinput xcb-xkb xcb-xfixes xcb-shape xcb-res xcb-icccm xcb-ewmh)
pkg_check_modules(XKBCOMMON REQUIRED IMPORTED_TARGET xkbcommon xkbcommon-x11)
