#pragma once

#include <quillon/app/ports/cheat_sheet_exports.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>

#include <QString>
#include <QStringList>

#include <string>
#include <unordered_map>
#include <vector>

namespace quillon {

/// A cheat sheet as it goes to paper: cut into pages, nothing measured yet.
struct PrintedSheet {
    QString appName;                     ///< on one line; its identifier where it has no name
    qint64 shortcuts = 0;                ///< of the whole sheet
    bool hasSigns = true;                ///< keys are shown by symbols, which a legend explains
    std::vector<CheatSheet::Page> pages; ///< none without shortcuts
    /// What the caps of a shortcut show, by the shortcut's text.
    std::unordered_map<std::string, QStringList> caps = {};

    static PrintedSheet of(const CheatSheetSource& source);
};

} // namespace quillon
