#include "qt_platform.h"

#include <QDir>
#include <QLibraryInfo>

#include <xcb/xcb.h>

namespace quillon {

namespace {

bool hasXServer() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reached;
}

bool hasWaylandPlugin() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return plugins.exists(QStringLiteral("libqwayland-generic.so"));
}

} // namespace

// Where an X server can be reached windows can be placed freely, which Wayland does not allow.
QByteArray usableQtPlatform() {
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    if (!chosen.isEmpty() && !chosen.startsWith("xcb"))
        return chosen;
    if (hasXServer())
        return "xcb";
    const bool wayland = chosen.isEmpty() && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return wayland && hasWaylandPlugin() ? "wayland" : "";
}

} // namespace quillon
