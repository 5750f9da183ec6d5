#pragma once

#include "temporary_folder.h"

#include <QDBusConnection>
#include <QProcess>

#include <string>

namespace quillon {

/// A message bus of its own that starts no services, as long as this object lives.
class PrivateBus {
  public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    bool isRunning() const { return !m_address.isEmpty(); }
    /// Where it listens.
    std::string address() const { return m_address.toStdString(); }
    /// Another connection to the bus, which ends with this object.
    QDBusConnection connect();
    void kill();

  private:
    TemporaryFolder m_folder;
    QProcess m_process;
    QString m_address;
    QStringList m_names;
};

} // namespace quillon
