#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One command with everything that its row shows, ready to be drawn.
struct PreparedEntry {
    std::string id;
    QString title;
    QString submenu; ///< what lies between menu and title; empty when nothing does
    Shortcut shortcut;
    std::size_t menu = 0; ///< position in `PreparedSheet::menus`
    bool enabled = true;
    bool pinned = false;
    bool muted = false; ///< no nudges are shown for it
    Count clicked = 0;
    Count typed = 0;
    QString note; ///< as `noteLine` has it; empty for none
};

/// A note for one line on the screen, without line breaks, tabs and what turns the direction of the text
/// around it. Of a note that nobody would read there only the beginning, ending in an ellipsis.
QString noteLine(std::string_view note);

/// A sheet joined with what is known of its commands. Made once per change of the sheet, the pins and notes
/// or the counts, so that searching and drawing need not look anything up.
struct PreparedSheet {
    std::string bundleID;
    QString appName;
    std::vector<PreparedEntry> entries; ///< in sheet order
    std::vector<QString> menus;         ///< titles of the groups, in order of first appearance

    static PreparedSheet
    prepare(const AppSheet& sheet, const AnnotationBook& annotations, const UsageBook& usage);
};

} // namespace quillon
