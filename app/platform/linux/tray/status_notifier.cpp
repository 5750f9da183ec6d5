#include "status_notifier.h"

#include <quillon/app/platform/linux/base/dbus_call.h>

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString watcherName = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;

constexpr int callTimeout = 5000; ///< milliseconds

QDBusMessage toWatcher(const QString& interface, const QString& method) {
    QDBusMessage message = QDBusMessage::createMethodCall(watcherName, watcherPath, interface, method);
    message.setAutoStartService(false);
    return message;
}

} // namespace

StatusNotifier::StatusNotifier(QDBusConnection bus) : m_bus(std::move(bus)) {
    if (!m_bus.isConnected())
        return;
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(watcherName);
    connect(
        &m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { ownerChanged(owner); });
    // Of no named sender: with a name the connection would wait for the bus to tell its owner.
    for (const QString& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        m_bus.connect(QString(), watcherPath, watcherName, signal, this, SLOT(hostsChanged()));
    m_bus.connect(
        QString(), watcherPath, watcherName, u"StatusNotifierItemUnregistered"_s, this,
        SLOT(itemDropped(QString)));
    perform(m_registration.watcherCame());
}

void StatusNotifier::ownerChanged(const QString& owner) {
    if (!owner.isEmpty()) {
        perform(m_registration.watcherCame());
        return;
    }
    m_registration.watcherLeft();
    m_changed.emit();
}

void StatusNotifier::hostsChanged() {
    perform(m_registration.hostsChanged());
}

void StatusNotifier::itemDropped(const QString& item) {
    if (!item.startsWith(m_bus.baseService()))
        return;
    m_registration.itemDropped();
    m_changed.emit();
}

void StatusNotifier::perform(NotifierRegistration::Steps steps) {
    if (steps.registerItem)
        registerItem();
    if (steps.askForHost)
        askForHost();
}

void StatusNotifier::registerItem() {
    QDBusMessage request = toWatcher(watcherName, u"RegisterStatusNotifierItem"_s);
    request << m_bus.baseService();
    whenFinished(
        this, m_bus.asyncCall(request, callTimeout),
        [this, round = m_registration.round()](const QDBusPendingCall& finished) {
            m_registration.registered(round, !finished.isError());
            m_changed.emit();
        });
}

void StatusNotifier::askForHost() {
    QDBusMessage question = toWatcher(u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << watcherName << u"IsStatusNotifierHostRegistered"_s;
    whenFinished(
        this, m_bus.asyncCall(question, callTimeout),
        [this, round = m_registration.round()](const QDBusPendingCall& finished) {
            const QDBusPendingReply<QDBusVariant> reply = finished;
            perform(m_registration.hostAnswered(round, reply.isValid() && reply.value().variant().toBool()));
            m_changed.emit();
        });
}

} // namespace quillon
