#pragma once

#include <quillon/app/views/learned/learned_summary.h>
#include <quillon/app/views/sheet/prepared_sheet.h>
#include <quillon/kit/base/instant.h>
#include <quillon/kit/records/usage.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// One row of what the Library says of an application.
struct LibraryRow {
    enum class Kind {
        statistics,
        totals,
        heading,
        command,
        weeks,  ///< the chart of what was done in them
        remark, ///< a sentence, wrapped
    };

    Kind kind = Kind::command;
    bool isToLearn = false;                ///< it stands among what to learn next, not in its menu
    QString text = {};                     ///< of a command its title
    QString counts = {};                   ///< of a command that was used, else empty
    bool leansOnClicks = false;            ///< it is clicked more than typed
    bool pinned = false;                   ///< of a command
    bool muted = false;                    ///< of a command: no nudges are shown for it
    QString note = {};                     ///< of a command; empty for none
    std::optional<Shortcut> shortcut = {}; ///< of a command
    std::string entryID = {};              ///< of a command
    std::vector<WeekBar> weeks = {};       ///< of the chart, whose `text` is what it shows in words

    /// Whether it tells of the same, be it something else now.
    bool isSameAs(const LibraryRow& other) const {
        return kind == other.kind && isToLearn == other.isToLearn && entryID == other.entryID
               && (kind != Kind::heading || text == other.text);
    }

    bool operator==(const LibraryRow&) const = default;
};

/// The rows of an application from top to bottom whose menus were read so long ago: its statistics, the
/// commands to learn next, its menus with the commands at `matches`, which are positions in the sheet. The
/// first two are the same whatever is searched.
std::vector<LibraryRow> libraryRows(
    const PreparedSheet& sheet, const UsageBook& usage, const std::vector<std::size_t>& matches, Seconds age);

} // namespace quillon
