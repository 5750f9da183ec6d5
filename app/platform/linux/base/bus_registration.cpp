#include "bus_registration.h"

#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

namespace quillon {

namespace {

constexpr uint doNotQueue = 4;   ///< flag of RequestName
constexpr uint primaryOwner = 1; ///< its answers
constexpr uint alreadyOwner = 4;

QDBusMessage toBus(const QString& method) {
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), method);
}

} // namespace

BusObject::BusObject(
    QDBusConnection bus, QString path, QObject& object, QDBusConnection::RegisterOptions options)
    : m_bus(std::move(bus)), m_path(std::move(path)) {
    m_bus.registerObject(m_path, &object, options);
}

BusObject::~BusObject() {
    m_bus.unregisterObject(m_path);
}

BusName::BusName(QDBusConnection bus, QString name, int limit)
    : m_bus(std::move(bus)), m_name(std::move(name)) {
    const QDBusReply<uint> reply =
        m_bus.call(toBus(QStringLiteral("RequestName")) << m_name << doNotQueue, QDBus::Block, limit);
    m_isOwned = reply.isValid() && (reply.value() == primaryOwner || reply.value() == alreadyOwner);
}

BusName::~BusName() {
    if (m_isOwned)
        m_bus.send(toBus(QStringLiteral("ReleaseName")) << m_name);
}

} // namespace quillon
