#pragma once

#include "read_limits.h"

#include <quillon/app/ports/menu_reader.h>

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
    const atspi::ReadLimits m_limits;
};

} // namespace quillon
