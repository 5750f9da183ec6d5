#pragma once

#include <quillon/app/ports/menu_reader.h>

namespace quillon {

/// A desktop on which no application shares its menus.
class NoMenuReader final : public MenuReader {
  public:
    MenuReading readMenus(const RunningApp&, std::stop_token) override {
        return {{}, ReadOutcome::unavailable};
    }
};

} // namespace quillon
