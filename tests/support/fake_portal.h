#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QString>
#include <QVariantMap>

namespace quillon {

/// A stand-in for the portal that tells the desktop's settings.
class FakePortal final : public QDBusVirtualObject {
  public:
    explicit FakePortal(QDBusConnection bus);
    ~FakePortal() override;

    /// Changes a setting and tells it.
    void set(const QString& nameSpace, const QString& key, const QVariant& value);

    QMap<QString, QVariantMap> settings;
    int questions = 0;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  private:
    QDBusConnection m_bus;
};

} // namespace quillon
