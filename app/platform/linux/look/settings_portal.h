#pragma once

#include "desktop_look.h"

#include <quillon/kit/base/subscription.h>

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace quillon {

/// The desktop's settings as its portal (`org.freedesktop.portal.Settings`) tells them. Never waits.
class SettingsPortal final : public QObject {
    Q_OBJECT

  public:
    explicit SettingsPortal(QDBusConnection bus);

    /// Nothing until the portal has answered, or when there is none.
    const DesktopSettings& settings() const { return m_settings; }
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }

  private Q_SLOTS:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

  private:
    void readAll();
    void adopt(const DesktopSettings& settings);

    QDBusConnection m_bus;
    DesktopSettings m_settings;
    Event<> m_changed;
};

} // namespace quillon
