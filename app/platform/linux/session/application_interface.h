#pragma once

#include <quillon/app/ports/instance.h>

#include <QDBusAbstractAdaptor>
#include <QDBusContext>
#include <QStringList>
#include <QVariantMap>

namespace quillon {

/// How desktops start programs, and choose the actions of their entries, over the session bus.
class ApplicationInterface final : public QDBusAbstractAdaptor, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    /// `requests` outlives it, and so does `parent`, the object on the bus.
    ApplicationInterface(const InstanceRequests& requests, QObject* parent)
        : QDBusAbstractAdaptor(parent), m_requests(requests) {}

  public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    /// There is nothing that this program opens; it comes up instead.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The actions of the desktop entry: "show", "quit", and the windows by their identifiers.
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

  private:
    void expect(const QVariantMap& platformData) const;
    bool act(const QString& name) const;

    const InstanceRequests& m_requests;
};

} // namespace quillon
