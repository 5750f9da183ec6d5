#include "application_interface.h"

#include <QDBusError>

#include <functional>

namespace quillon {

namespace {

bool call(const std::function<void()>& request) {
    if (request)
        request();
    return static_cast<bool>(request);
}

} // namespace

void ApplicationInterface::Activate(const QVariantMap& platformData) {
    expect(platformData);
    call(m_requests.activate);
}

void ApplicationInterface::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void ApplicationInterface::ActivateAction(
    const QString& name, const QVariantList&, const QVariantMap& platformData, const QDBusMessage& message) {
    expect(platformData);
    if (act(name))
        return;
    message.setDelayedReply(true); // it is this one
    m_bus.connection().send(message.createErrorReply(
        QDBusError::InvalidArgs, QStringLiteral("there is no action '%1'").arg(name.left(64))));
}

/// The proof that the user asked, under either of its names.
void ApplicationInterface::expect(const QVariantMap& platformData) const {
    for (const QString& key : {QStringLiteral("activation-token"), QStringLiteral("desktop-startup-id")}) {
        const QString token = platformData.value(key).toString();
        if (token.isEmpty() || !m_requests.expectActivation)
            continue;
        m_requests.expectActivation(token.toStdString());
        return;
    }
}

bool ApplicationInterface::act(const QString& name) const {
    if (name == QLatin1StringView("show"))
        return call(m_requests.showOverlay);
    if (name == QLatin1StringView("quit"))
        return call(m_requests.quit);
    const auto window = windowOfIdentifier(name.toStdString());
    if (window && m_requests.openWindow)
        return m_requests.openWindow(*window);
    return false;
}

} // namespace quillon
