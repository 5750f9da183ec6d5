#pragma once

#include <quillon/tests/support/system/bus_daemon.h>

#include <QDBusConnection>

#include <string>

namespace quillon {

/// A message bus of its own that starts no services, as long as this object lives.
class PrivateBus {
  public:
    PrivateBus() = default;
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    bool isRunning() const { return m_daemon.isRunning(); }
    /// Where it listens.
    const std::string& address() const { return m_daemon.address(); }
    /// Another connection to the bus, which ends with this object.
    QDBusConnection connect();
    void kill() { m_daemon.kill(); }

  private:
    BusDaemon m_daemon;
    QStringList m_names;
};

} // namespace quillon
