#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>

namespace quillon {

/// A stand-in for the service that hands out the accessibility bus and has the desktop's switch for it.
class FakeAccessibilityService final : public QDBusVirtualObject {
  public:
    explicit FakeAccessibilityService(QDBusConnection bus);

    void appear();
    void disappear();
    /// Moves the switch, as the desktop's settings do, and tells it.
    void setEnabled(bool enabled);

    QString address = QStringLiteral("unix:path=/nonexistent");
    bool enabled = false;
    bool hasSwitch = true;
    bool answers = true;
    int questions = 0;
    QStringList written; ///< the properties that were set, in order

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  private:
    QDBusMessage answerTo(const QDBusMessage& message);

    QDBusConnection m_bus;
};

} // namespace quillon
