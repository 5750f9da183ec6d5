#pragma once

#include <quillon/app/ports/menu_reader.h>

namespace quillon {

/// Another reader, with a line in the log for each of its readings: of whom, how it ended, how much, how
/// long.
class LoggedMenuReader final : public MenuReader {
  public:
    /// `reader` outlives it.
    explicit LoggedMenuReader(MenuReader& reader) : m_reader(reader) {}

    MenuReading readMenus(const RunningApp& app, std::stop_token stop) override;

  private:
    MenuReader& m_reader;
};

} // namespace quillon
