#include "accessibility_bus_access.h"

#include "accessibility_settings.h"
#include <quillon/app/platform/linux/session/session_kind.h>

#include <QProcess>
#include <QStandardPaths>

#include <utility>

namespace quillon {

namespace {

std::optional<ProgramCall> installedSettings() {
    return accessibilitySettings(processEnvironment("XDG_CURRENT_DESKTOP"), [](const std::string& program) {
        return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
    });
}

} // namespace

AccessibilityBusAccess::AccessibilityBusAccess(QDBusConnection bus, std::chrono::milliseconds askInterval)
    : m_status(std::make_unique<AccessibilityStatus>(std::move(bus))), m_askInterval(askInterval) {}

bool AccessibilityBusAccess::isTrusted() const {
    m_status->refreshAfter(m_askInterval);
    return m_status->isOn();
}

bool AccessibilityBusAccess::hasSettings() const {
    return installedSettings().has_value();
}

bool AccessibilityBusAccess::openSettings() {
    const auto command = installedSettings();
    if (!command)
        return false;
    QStringList arguments;
    for (std::size_t i = 1; i < command->size(); ++i)
        arguments << QString::fromStdString((*command)[i]);
    return QProcess::startDetached(QString::fromStdString(command->front()), arguments);
}

Subscription AccessibilityBusAccess::onChanged(std::function<void()> callback) {
    return m_status->onChanged(std::move(callback));
}

} // namespace quillon
