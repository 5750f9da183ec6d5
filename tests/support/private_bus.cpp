#include "private_bus.h"

#include <string>

namespace quillon {

namespace {

constexpr int startLimit = 20'000; ///< milliseconds
int nextConnection = 0;

std::string configuration(const std::filesystem::path& folder) {
    return R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:dir=)"
           + folder.string() + R"(</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>)";
}

} // namespace

PrivateBus::PrivateBus() {
    const auto file = m_folder.write("bus.conf", configuration(m_folder.path()));
    m_process.start(
        QStringLiteral("dbus-daemon"),
        {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
         QStringLiteral("--config-file=") + QString::fromStdString(file.string())});
    while (!m_process.canReadLine() && m_process.waitForReadyRead(startLimit)) {
    }
    m_address = QString::fromUtf8(m_process.readLine().trimmed());
}

PrivateBus::~PrivateBus() {
    for (const QString& name : m_names)
        QDBusConnection::disconnectFromBus(name);
    kill();
}

void PrivateBus::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

QDBusConnection PrivateBus::connect() {
    m_names << QStringLiteral("test-") + QString::number(nextConnection++);
    return QDBusConnection::connectToBus(m_address, m_names.back());
}

} // namespace quillon
