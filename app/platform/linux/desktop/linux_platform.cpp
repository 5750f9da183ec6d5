#include "linux_platform.h"

#include "linux_desktop.h"
#include "qt_platform.h"

#include <quillon/app/platform/linux/session/bus_instance.h>
#include <quillon/app/platform/linux/session/paths.h>

#include <unistd.h>

namespace quillon {

std::filesystem::path LinuxPlatform::settingsFile() const {
    return quillon::settingsFile();
}

std::filesystem::path LinuxPlatform::dataFolder() const {
    return quillon::dataFolder();
}

std::optional<std::string> LinuxPlatform::prepareDisplay() {
    const QtPlatformChoice choice = usableQtPlatform();
    if (choice.name.isEmpty())
        return choice.problem;
    qputenv("QT_QPA_PLATFORM", choice.name);
    m_session.hideSilent();
    return std::nullopt;
}

std::unique_ptr<Instance> LinuxPlatform::makeInstance() {
    return std::make_unique<BusInstance>(m_session);
}

std::unique_ptr<Desktop> LinuxPlatform::openDesktop(Background& background, const Clock& clock) {
    return std::make_unique<LinuxDesktop>(m_session.connection(), background, clock);
}

bool LinuxPlatform::startAnew(char** arguments) {
    m_session.unhide();
    ::execv("/proc/self/exe", arguments);
    return false;
}

} // namespace quillon
