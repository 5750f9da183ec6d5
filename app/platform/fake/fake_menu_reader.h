#pragma once

#include <quillon/app/ports/menu_reader.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace quillon {

/// Menus that were told beforehand. An application of which nothing was told is not on the bus.
class FakeMenuReader final : public MenuReader {
  public:
    MenuReading readMenus(const RunningApp& app, std::stop_token stop) override;

    /// What readings of the application with this identifier, or of this process, give from now on. The
    /// process is looked up first.
    void answer(const std::string& bundleID, MenuReading reading);
    void answer(std::int64_t pid, MenuReading reading);

    /// The applications that were asked for, in order.
    std::vector<RunningApp> asked() const;

  private:
    mutable std::mutex m_mutex;
    std::map<std::int64_t, MenuReading> m_byPid;
    std::map<std::string, MenuReading> m_byBundleID;
    std::vector<RunningApp> m_asked;
};

} // namespace quillon
