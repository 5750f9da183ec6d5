#include "accessibility_status.h"

#include <quillon/app/platform/linux/base/dbus_call.h>

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace quillon {

namespace {

const QString serviceName = QStringLiteral("org.a11y.Bus");
const QString objectPath = QStringLiteral("/org/a11y/bus");
const QString statusInterface = QStringLiteral("org.a11y.Status");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString enabledProperty = QStringLiteral("IsEnabled");

/// The first call may have to start the service.
constexpr int callTimeout = 5000; ///< milliseconds

QDBusMessage call(const QString& interface, const QString& method) {
    return QDBusMessage::createMethodCall(serviceName, objectPath, interface, method);
}

/// Whether a desktop answered that it knows no such switch, as opposed to not answering.
bool saysUnknown(const QDBusError& error) {
    switch (error.type()) {
    case QDBusError::UnknownProperty:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownObject:
    case QDBusError::InvalidArgs: return true;
    default: return false;
    }
}

} // namespace

AccessibilityStatus::AccessibilityStatus(QDBusConnection bus) : m_bus(std::move(bus)) {
    if (!m_bus.isConnected())
        return;
    m_service.setConnection(m_bus);
    m_service.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_service.addWatchedService(serviceName);
    connect(&m_service, &QDBusServiceWatcher::serviceRegistered, this, [this] { refresh(); });
    connect(&m_service, &QDBusServiceWatcher::serviceUnregistered, this, [this] { serviceGone(); });
    // Of no named sender: with a name the connection would wait for the bus to tell its owner.
    m_bus.connect(
        QString(), objectPath, propertiesInterface, QStringLiteral("PropertiesChanged"), {statusInterface},
        QString(), this, SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    refresh();
}

void AccessibilityStatus::refreshAfter(std::chrono::milliseconds interval) {
    if (m_sinceAsked.isValid() && m_sinceAsked.hasExpired(interval.count()))
        refresh();
}

void AccessibilityStatus::refresh() {
    m_sinceAsked.start();
    refreshBus();
    refreshSwitch();
}

void AccessibilityStatus::refreshBus() {
    const QDBusMessage question = call(QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    whenFinished(
        this, m_bus.asyncCall(question, callTimeout),
        [this, round = m_round](const QDBusPendingCall& finished) {
            const QDBusPendingReply<QString> reply = finished;
            if (round == m_round)
                set(reply.isValid() && !reply.value().isEmpty(), m_switch);
        });
}

void AccessibilityStatus::refreshSwitch() {
    QDBusMessage question = call(propertiesInterface, QStringLiteral("Get"));
    question << statusInterface << enabledProperty;
    whenFinished(
        this, m_bus.asyncCall(question, callTimeout),
        [this, round = m_round](const QDBusPendingCall& finished) {
            const QDBusPendingReply<QDBusVariant> reply = finished;
            if (round != m_round)
                return;
            if (reply.isValid())
                set(m_hasBus, reply.value().variant().toBool() ? Switch::on : Switch::off);
            else
                set(m_hasBus, saysUnknown(reply.error()) ? Switch::on : Switch::unknown);
        });
}

void AccessibilityStatus::serviceGone() {
    ++m_round;
    set(false, Switch::unknown);
}

void AccessibilityStatus::set(bool hasBus, Switch position) {
    const bool before = isOn();
    m_hasBus = hasBus;
    m_switch = position;
    if (isOn() != before)
        m_changed.emit();
}

void AccessibilityStatus::propertiesChanged(
    const QString& interface, const QVariantMap& values, const QStringList& others) {
    if (interface != statusInterface)
        return;
    if (const auto enabled = values.constFind(enabledProperty); enabled != values.constEnd())
        set(m_hasBus, enabled->toBool() ? Switch::on : Switch::off);
    else if (others.contains(enabledProperty))
        refresh();
}

void AccessibilityStatus::turnOn() {
    if (!m_bus.isConnected())
        return;
    QDBusMessage request = call(propertiesInterface, QStringLiteral("Set"));
    request << statusInterface << enabledProperty << QVariant::fromValue(QDBusVariant(true));
    whenFinished(this, m_bus.asyncCall(request, callTimeout), [this](const QDBusPendingCall&) { refresh(); });
}

} // namespace quillon
