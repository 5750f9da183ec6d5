#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// An object of ours on a bus: one interface with methods, signals and properties that are only read. What
/// does not fit the interface is answered by an error.
class ServedObject : public QDBusVirtualObject {
  public:
    /// Serves it at `path` until it ends. `description` is the interface in the bus's XML.
    ServedObject(QDBusConnection bus, QString path, QString interface, QString description);
    ~ServedObject() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  protected:
    virtual QVariantMap properties() const = 0;
    /// The answer to a method's call; absent for a method, or arguments, that the interface does not have.
    virtual std::optional<QVariantList> call(const QDBusMessage& message) = 0;

    void emitSignal(const QString& name, const QVariantList& arguments = {}) const;

  private:
    QDBusMessage answerTo(const QDBusMessage& message);
    QDBusMessage answerProperties(const QDBusMessage& message) const;

    QDBusConnection m_bus;
    QString m_path;
    QString m_interface;
    QString m_description;
};

} // namespace quillon
