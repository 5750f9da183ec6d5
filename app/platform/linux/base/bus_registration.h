#pragma once

#include <QDBusConnection>
#include <QString>

#include <optional>

class QObject;

namespace quillon {

/// An object that others on a bus can call, for as long as this lives.
class BusObject {
  public:
    /// `object` outlives it.
    BusObject(QDBusConnection bus, QString path, QObject& object, QDBusConnection::RegisterOptions options);
    BusObject(const BusObject&) = delete;
    BusObject& operator=(const BusObject&) = delete;
    ~BusObject();

  private:
    QDBusConnection m_bus;
    QString m_path;
};

/// A well-known name on a bus, owned for as long as this lives.
class BusName {
  public:
    /// Waits for the bus, at most `limit` milliseconds.
    BusName(QDBusConnection bus, QString name, int limit);
    BusName(const BusName&) = delete;
    BusName& operator=(const BusName&) = delete;
    ~BusName();

    /// Whether the name could be had; another's, or no answer, otherwise.
    bool isOwned() const { return m_isOwned; }

  private:
    QDBusConnection m_bus;
    QString m_name;
    bool m_isOwned = false;
};

} // namespace quillon
