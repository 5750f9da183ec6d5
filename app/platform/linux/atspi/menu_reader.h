#pragma once

#include "read_limits.h"

#include <quillon/ports/menu_reader.h>

#include <deque>
#include <mutex>
#include <string>

namespace quillon {

/// Reads menus over the accessibility bus (AT-SPI2), each reading over a connection of its own. Asks and
/// never acts: no application is changed by being read.
class AtspiMenuReader : public MenuReader {
  public:
    explicit AtspiMenuReader(atspi::ReadLimits limits = {}) : m_limits(limits) {}

    /// The menu bar of the first of the application's windows that has one, see `RunningApp::windows`; where
    /// no window has a title told there, of the active one, else of one that shows. An application in a
    /// sandbox is known by its windows' titles alone.
    MenuReading readMenus(const RunningApp& app, std::stop_token stop) override;

  private:
    class Reading;

    /// Applications whose cache holds so much besides their menus that asking item by item is quicker.
    class LargeCaches {
      public:
        bool holds(const std::string& application) const;
        void add(std::string application);

      private:
        mutable std::mutex m_mutex;
        std::deque<std::string> m_applications;
    };

    const atspi::ReadLimits m_limits;
    LargeCaches m_largeCaches;
};

} // namespace quillon
