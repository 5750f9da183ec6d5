#pragma once

#include "temporary_folder.h"

#include <string>

#include <sys/types.h>

namespace quillon {

/// A message bus of its own, as long as this object lives. No services can be started on it, so it has no
/// accessibility bus either.
class BusDaemon {
  public:
    BusDaemon();
    ~BusDaemon();
    BusDaemon(const BusDaemon&) = delete;
    BusDaemon& operator=(const BusDaemon&) = delete;

    bool isRunning() const { return m_process > 0 && !m_address.empty(); }
    const std::string& address() const { return m_address; }
    void kill();

  private:
    TemporaryFolder m_folder;
    pid_t m_process = -1;
    std::string m_address;
};

} // namespace quillon
