#pragma once

#include "notifier_registration.h"

#include <quillon/kit/base/subscription.h>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace quillon {

/// Keeps an item registered with the watcher of the session's trays, whichever comes first and however often
/// they come. Never waits.
class StatusNotifier final : public QObject {
    Q_OBJECT

  public:
    explicit StatusNotifier(QDBusConnection bus);

    /// A watcher with a host has the item.
    bool isShown() const { return m_registration.isShown(); }
    /// Whether `isShown` is known, and not merely the beginning.
    bool isSettled() const { return m_registration.isSettled(); }
    /// Called when either of them changed.
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }

  private Q_SLOTS:
    void hostsChanged();
    void itemDropped(const QString& item);

  private:
    void ownerChanged(const QString& owner);
    void perform(NotifierRegistration::Steps steps);
    void registerItem();
    void askForHost();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    NotifierRegistration m_registration;
    Event<> m_changed;
};

} // namespace quillon
