#include "fake_portal.h"

#include <QDBusMetaType>
#include <QDBusVariant>

namespace quillon {

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

} // namespace

FakePortal::FakePortal(QDBusConnection bus) : m_bus(std::move(bus)) {
    qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
    m_bus.registerVirtualObject(objectPath, this);
    m_bus.registerService(serviceName);
}

FakePortal::~FakePortal() {
    m_bus.unregisterService(serviceName);
}

void FakePortal::set(const QString& nameSpace, const QString& key, const QVariant& value) {
    settings[nameSpace][key] = value;
    QDBusMessage signal =
        QDBusMessage::createSignal(objectPath, settingsInterface, QStringLiteral("SettingChanged"));
    signal << nameSpace << key << QVariant::fromValue(QDBusVariant(value));
    m_bus.send(signal);
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    ++questions;
    if (message.member() != QStringLiteral("ReadAll"))
        return false;
    connection.send(message.createReply(QVariant::fromValue(settings)));
    return true;
}

} // namespace quillon
