#include "qt_platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QSet>

#include <xcb/xcb.h>

#include <algorithm>
#include <memory>

namespace quillon {

namespace {

/// Qt's windows need true colours; with a palette of 256 it ends the program.
constexpr int fewestBits = 15;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// The bits that a pixel of the X server's screen has; 0 when none can be reached.
int xServerDepth() {
    int number = 0;
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()) != 0)
        return 0;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return screens.data->root_depth;
}

QStringList pluginFolders() {
    QStringList folders{qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    for (const QString& path : QCoreApplication::libraryPaths())
        folders.append(path + QStringLiteral("/platforms"));
    folders.removeAll(QString());
    return folders;
}

/// The names that Qt's platform plugins answer to.
QSet<QString> platforms() {
    QSet<QString> names;
    for (const QString& folder : pluginFolders()) {
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
            const QJsonObject facts = QPluginLoader(file.filePath()).metaData();
            const QJsonObject own = facts.value(QStringLiteral("MetaData")).toObject();
            for (const QJsonValue& key : own.value(QStringLiteral("Keys")).toArray())
                names.insert(key.toString());
        }
    }
    return names;
}

/// Whether one of `chosen` is there: names with options behind a colon, one after the other between
/// semicolons.
bool offersAny(const QByteArray& chosen) {
    const auto names = platforms();
    const auto all = QString::fromLocal8Bit(chosen).split(u';');
    return std::ranges::any_of(
        all, [&names](const QString& one) { return names.contains(one.section(u':', 0, 0)); });
}

QtPlatformChoice without(std::string problem) {
    return {.name = {}, .problem = std::move(problem)};
}

} // namespace

// Where an X server can be reached windows can be placed freely, which Wayland does not allow.
QtPlatformChoice usableQtPlatform() {
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    if (!chosen.isEmpty() && !offersAny(chosen))
        return without("Qt has no platform plugin \"" + chosen.toStdString() + "\"; see QT_QPA_PLATFORM");
    if (!chosen.isEmpty() && !chosen.startsWith("xcb"))
        return {.name = chosen, .problem = {}};
    const int depth = xServerDepth();
    if (depth >= fewestBits)
        return {.name = "xcb", .problem = {}};
    if (depth > 0)
        return without(
            "the display has only " + std::to_string(depth) + " bits per pixel; at least "
            + std::to_string(fewestBits) + " are needed");
    if (chosen.isEmpty() && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && offersAny("wayland"))
        return {.name = "wayland", .problem = {}};
    return without("there is no display; start it in a graphical session, or use quillon sheet");
}

} // namespace quillon
