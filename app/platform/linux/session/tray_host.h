#pragma once

#include <QDBusConnection>

#include <chrono>

namespace quillon {

/// Whether the session has a place for tray icons (`org.kde.StatusNotifierWatcher` with a host). Waits for
/// the answer, at most `limit`, so only for commands that have nothing else to do. False where the
/// bus is not connected.
bool hasTrayHost(const QDBusConnection& bus, std::chrono::milliseconds limit = std::chrono::seconds(1));

} // namespace quillon
