#include "fake_a11y_service.h"

#include <QDBusVariant>
#include <QVariantMap>

namespace quillon {

namespace {

const QString serviceName = QStringLiteral("org.a11y.Bus");
const QString objectPath = QStringLiteral("/org/a11y/bus");
const QString statusInterface = QStringLiteral("org.a11y.Status");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

FakeA11yService::FakeA11yService(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerVirtualObject(objectPath, this);
}

void FakeA11yService::appear() {
    m_bus.registerService(serviceName);
}

void FakeA11yService::disappear() {
    m_bus.unregisterService(serviceName);
}

void FakeA11yService::setEnabled(bool position) {
    enabled = position;
    QDBusMessage signal =
        QDBusMessage::createSignal(objectPath, propertiesInterface, QStringLiteral("PropertiesChanged"));
    signal << statusInterface << QVariantMap{{QStringLiteral("IsEnabled"), position}} << QStringList();
    m_bus.send(signal);
}

bool FakeA11yService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    ++questions;
    if (answers)
        connection.send(answerTo(message));
    return true;
}

QDBusMessage FakeA11yService::answerTo(const QDBusMessage& message) {
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
