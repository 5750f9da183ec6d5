#pragma once

#include <quillon/app/core/shared_sheets.h>

#include <QString>

#include <string>
#include <vector>

namespace quillon {

/// An application as lists name it.
struct NamedApp {
    std::string bundleID;
    QString name; ///< its identifier where it has none

    bool operator==(const NamedApp&) const = default;
};

/// What the application of this sheet is called.
QString shownName(const AppSheet& sheet);

/// The applications of which there are sheets, by their names as people sort them.
std::vector<NamedApp> appsByName(const SharedSheets& sheets);

} // namespace quillon
