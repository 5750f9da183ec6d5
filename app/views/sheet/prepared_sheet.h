#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>

#include <QString>

#include <cstddef>
#include <string>
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
    Count clicked = 0;
    QString note; ///< empty for none
};

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
