# The Debian package that `cpack` makes.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillon)
set(CPACK_PACKAGE_VENDOR Quillon)
set(CPACK_PACKAGE_CONTACT ${QUILLON_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "coach for the keyboard shortcuts of other applications")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Hold Super in any application, and Quillon shows the shortcuts of that
application, read from its own menus, grouped and searchable. Click a
command in a menu, and a note tells the keys that would have done the same.
.
It reads menus over the accessibility bus and works with GTK and Qt
applications and whatever else shares its menus. Nothing that it reads
leaves the computer.")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
if(QUILLON_PAGE)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${QUILLON_PAGE})
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

# Linked libraries come from dpkg-shlibdeps, and with them Qt's plugin for X11, which is in a library's package. What
# else the program needs: the buses that it asks, the theme of its own icon, and Qt's plugins for the SVG icons of
# applications, which have a package of their own since Debian 13.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "at-spi2-core, default-dbus-session-bus | dbus-session-bus, hicolor-icon-theme, qt6-svg-plugins | libqt6svg6 (<< 6.8~)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")

# In the package the program lies under /usr, wherever this build would install it by itself.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_SOURCE_DIR}/build/package)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
