#include "commands.h"
#include "program.h"

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QLibraryInfo>

#include <xcb/xcb.h>

#include <iostream>

namespace quillon {

namespace {

bool hasXServer() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reached;
}

QString operationOf(FirstShow firstShow) {
    switch (firstShow) {
    case FirstShow::overlay: return QStringLiteral("ShowOverlay");
    case FirstShow::sample: return QStringLiteral("ShowSample");
    case FirstShow::nothing: break;
    }
    return QStringLiteral("Activate");
}

int askRunning(FirstShow firstShow) {
    if (askRunningInstance(operationOf(firstShow)))
        return static_cast<int>(ExitCode::success);
    std::cerr << "quillon: the running instance does not answer\n";
    return static_cast<int>(ExitCode::failure);
}

int failWithoutDisplay() {
    std::cerr << "quillon: there is no display; start it in a graphical session, or use quillon sheet\n";
    return static_cast<int>(ExitCode::failure);
}

bool hasWaylandPlugin() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return plugins.exists(QStringLiteral("libqwayland-generic.so"));
}

/// The Qt platform to draw with; "" when there is none that would work. Where an X server can be reached
/// windows can be placed freely, which Wayland does not allow.
QByteArray usablePlatform() {
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    if (!chosen.isEmpty() && !chosen.startsWith("xcb"))
        return chosen;
    if (hasXServer())
        return "xcb";
    const bool wayland = chosen.isEmpty() && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return wayland && hasWaylandPlugin() ? "wayland" : "";
}

} // namespace

int runProgram(int argc, char** argv, FirstShow firstShow) {
    const QByteArray platform = usablePlatform();
    if (platform.isEmpty())
        return failWithoutDisplay();
    qputenv("QT_QPA_PLATFORM", platform);

    QApplication::setApplicationName(QStringLiteral("quillon"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quillon"));
    QApplication::setDesktopFileName(QStringLiteral("app.quillon.Quillon"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    if (instanceIsRunning())
        return askRunning(firstShow);
    Program program;
    InstanceService service(program.requests());
    switch (service.claim()) {
    case InstanceService::Claim::first: break;
    case InstanceService::Claim::noSessionBus:
        std::cerr << "quillon: there is no session bus; menus cannot be read, see quillon doctor\n";
        break;
    case InstanceService::Claim::alreadyTaken: return askRunning(firstShow);
    }
    program.start(firstShow);
    return QApplication::exec();
}

} // namespace quillon
