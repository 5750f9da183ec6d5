#include "private_bus.h"

namespace quillon {

namespace {

int nextConnection = 0;

} // namespace

PrivateBus::~PrivateBus() {
    for (const QString& name : m_names)
        QDBusConnection::disconnectFromBus(name);
}

QDBusConnection PrivateBus::connect() {
    m_names << QStringLiteral("test-") + QString::number(nextConnection++);
    return QDBusConnection::connectToBus(QString::fromStdString(m_daemon.address()), m_names.back());
}

} // namespace quillon
