#pragma once

#include "session_bus.h"

#include <quillon/app/ports/instance.h>

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace quillon {

/// How desktops start programs, and choose the actions of their entries, over the session bus.
class ApplicationInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    /// `requests` and `bus` outlive it, and so does `parent`, the object on the bus.
    ApplicationInterface(const InstanceRequests& requests, const SessionBus& bus, QObject* parent)
        : QDBusAbstractAdaptor(parent), m_requests(requests), m_bus(bus) {}

  public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    /// There is nothing that this program opens; it comes up instead.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The actions of the desktop entry: "show", "quit", and the windows by their identifiers.
    void ActivateAction(
        const QString& name, const QVariantList& parameter, const QVariantMap& platformData,
        const QDBusMessage& message);

  private:
    void expect(const QVariantMap& platformData) const;
    bool act(const QString& name) const;

    const InstanceRequests& m_requests;
    const SessionBus& m_bus;
};

} // namespace quillon
