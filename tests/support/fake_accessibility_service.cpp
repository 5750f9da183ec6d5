#include "fake_accessibility_service.h"

#include <QDBusVariant>
#include <QVariantMap>

namespace quillon {

namespace {

const QString serviceName = QStringLiteral("org.a11y.Bus");
const QString objectPath = QStringLiteral("/org/a11y/bus");
const QString statusInterface = QStringLiteral("org.a11y.Status");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

FakeAccessibilityService::FakeAccessibilityService(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerVirtualObject(objectPath, this);
}

void FakeAccessibilityService::appear() {
    m_bus.registerService(serviceName);
}

void FakeAccessibilityService::disappear() {
    m_bus.unregisterService(serviceName);
}

void FakeAccessibilityService::setEnabled(bool position) {
    enabled = position;
    QDBusMessage signal =
        QDBusMessage::createSignal(objectPath, propertiesInterface, QStringLiteral("PropertiesChanged"));
    signal << statusInterface << QVariantMap{{QStringLiteral("IsEnabled"), position}} << QStringList();
    m_bus.send(signal);
}

bool FakeAccessibilityService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    ++questions;
    if (answers)
        connection.send(answerTo(message));
    return true;
}

QDBusMessage FakeAccessibilityService::answerTo(const QDBusMessage& message) {
    if (message.member() == QStringLiteral("GetAddress"))
        return message.createReply(address);
    if (!hasSwitch)
        return message.createErrorReply(
            QStringLiteral("org.freedesktop.DBus.Error.UnknownInterface"), QStringLiteral("no such switch"));
    if (message.member() == QStringLiteral("Get"))
        return message.createReply(QVariant::fromValue(QDBusVariant(enabled)));
    if (message.member() == QStringLiteral("Set")) {
        written << message.arguments().at(1).toString();
        setEnabled(message.arguments().at(2).value<QDBusVariant>().variant().toBool());
        return message.createReply();
    }
    return message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("no such method"));
}

} // namespace quillon
