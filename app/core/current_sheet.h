#pragma once

#include "shared_sheets.h"

#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/running_app.h>
#include <quillon/kit/menu/app_sheet.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The sheet of the application in front, and the sheets read so far. A value: nothing happens but what its
/// operations do, and whoever wants to know what one of them changed compares before and after.
class CurrentSheet {
  public:
    /// The sheets that are kept have no more entries together than this: two hundred applications with three
    /// hundred commands each, more than anyone uses. They take 18 MiB, and 7.3 MiB as a file.
    static constexpr std::size_t mostEntries = 60'000;
    /// And there are no more of them than this, be they ever so small.
    static constexpr std::size_t mostSheets = 500;

    /// Absent before the first application is known.
    const std::optional<AppSheet>& current() const { return m_current; }
    /// By bundle identifier; none is empty. Where there would be too many, those used longest ago are left
    /// out, never the current one.
    const SharedSheets& sheets() const { return m_sheets; }
    /// Another number whenever `current` has become another sheet; cheaper to compare than sheets.
    std::uint64_t revision() const { return m_revision; }

    /// Whether the current application answered to the end when it was read last. True until then.
    bool answered() const { return m_answered; }

    /// The sheets of an earlier run.
    void load(SharedSheets sheets);
    /// Another application came to the front: its sheet is current at once, an empty one while none is known.
    void frontIs(const RunningApp& app);
    /// The menus of `app` have been read to `sheet`. Whether `sheets` has another sheet now.
    bool arrived(const RunningApp& app, AppSheet sheet, ReadOutcome outcome, bool isInFront);
    /// Makes the sheet current without keeping it.
    void show(AppSheet sheet);
    /// Forgets all of them, the current one too.
    void clear();

  private:
    void setCurrent(AppSheet sheet);
    void store(AppSheet sheet);
    void touch(const std::string& bundleID);
    void dropLeastRecent();

    std::optional<AppSheet> m_current;
    std::uint64_t m_revision = 0;
    bool m_answered = true;
    SharedSheets m_sheets;
    std::size_t m_entries = 0;              ///< of all sheets
    std::vector<std::string> m_usedInOrder; ///< the sheets' identifiers, that of the last use at the end
};

} // namespace quillon
