#include "a11y_bus_access.h"

#include "accessibility_settings.h"
#include "session_kind.h"

#include <QProcess>
#include <QStandardPaths>

#include <utility>

namespace quillon {

A11yBusAccess::A11yBusAccess(QDBusConnection bus, std::chrono::milliseconds askInterval)
    : m_status(std::make_unique<A11yStatus>(std::move(bus))), m_askInterval(askInterval) {}

bool A11yBusAccess::isTrusted() const {
    m_status->refreshAfter(m_askInterval);
    return m_status->isOn();
}

bool A11yBusAccess::openSettings() {
    const auto isInstalled = [](const std::string& program) {
        return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
    };
    const auto command = accessibilitySettings(processEnvironment("XDG_CURRENT_DESKTOP"), isInstalled);
    if (!command)
        return false;
    QStringList arguments;
    for (std::size_t i = 1; i < command->size(); ++i)
        arguments << QString::fromStdString((*command)[i]);
    return QProcess::startDetached(QString::fromStdString(command->front()), arguments);
}

Subscription A11yBusAccess::onChanged(std::function<void()> callback) {
    return m_status->onChanged(std::move(callback));
}

} // namespace quillon
