#pragma once

#include <quillon/kit/base/subscription.h>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QObject>
#include <QVariantMap>

#include <chrono>

namespace quillon {

/// Follows whether this session has an accessibility bus and whether the desktop's switch for it
/// (`org.a11y.Status` `IsEnabled`) is on. Never waits for an answer.
class AccessibilityStatus final : public QObject {
    Q_OBJECT

  public:
    explicit AccessibilityStatus(QDBusConnection bus);

    /// There is a bus, and the switch, where the desktop has one, is on. False until both have been answered.
    bool isOn() const { return m_hasBus && m_switch == Switch::on; }
    /// Asks anew. Changes are told by signals; this finds what they miss.
    void refresh();
    /// The same, unless it was asked less than `interval` ago.
    void refreshAfter(std::chrono::milliseconds interval);
    /// Turns the desktop's switch on.
    void turnOn();
    /// Called when `isOn` changed.
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }

  private Q_SLOTS:
    void propertiesChanged(const QString& interface, const QVariantMap& values, const QStringList& others);

  private:
    enum class Switch { unknown, off, on };

    void refreshBus();
    void refreshSwitch();
    void serviceGone();
    void set(bool hasBus, Switch position);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_service;
    QElapsedTimer m_sinceAsked;
    bool m_hasBus = false;
    Switch m_switch = Switch::unknown;
    /// Answers to questions from before the service's last end are out of date.
    unsigned m_round = 0;
    Event<> m_changed;
};

} // namespace quillon
