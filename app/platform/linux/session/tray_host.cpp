#include "tray_host.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

namespace quillon {

bool hasTrayHost(const QDBusConnection& bus, std::chrono::milliseconds limit) {
    if (!bus.isConnected())
        return false;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setAutoStartService(false);
    question << QStringLiteral("org.kde.StatusNotifierWatcher")
             << QStringLiteral("IsStatusNotifierHostRegistered");
    const QDBusReply<QDBusVariant> reply = bus.call(question, QDBus::Block, static_cast<int>(limit.count()));
    return reply.isValid() && reply.value().variant().toBool();
}

} // namespace quillon
