#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// One row of what the Library says of an application.
struct LibraryRow {
    enum class Kind {
        statistics,
        totals,
        heading,
        command,
    };

    Kind kind = Kind::command;
    QString text = {};                     ///< of a command its title
    QString counts = {};                   ///< of a command that was used, else empty
    bool leansOnClicks = false;            ///< it is clicked more than typed
    QString note = {};                     ///< of a command; empty for none
    std::optional<Shortcut> shortcut = {}; ///< of a command
    std::string entryID = {};              ///< of a command

    bool operator==(const LibraryRow&) const = default;
};

/// What is known of commands.
struct LibraryRecords {
    const UsageBook& usage;
    const AnnotationBook& annotations;
};

/// The rows of an application from top to bottom, at `now`: its statistics, the commands to learn next, its
/// menus with the commands that the query finds in them. The query leaves the first two as they are.
std::vector<LibraryRow>
libraryRows(const AppSheet& sheet, const LibraryRecords& records, std::string_view query, Instant now);

} // namespace quillon
