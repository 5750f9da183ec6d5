#pragma once

#include "menu_group.h"
#include <quillon/kit/base/instant.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Everything known of one application's menu shortcuts. A value: reading the menus again makes a new one.
struct AppSheet {
    std::string bundleID; ///< the application's identifier, the key of everything kept per application
    std::string appName;  ///< its display name
    std::vector<MenuEntry> entries; ///< in menu order
    Instant readAt = distantPast;   ///< when the menus were read

    /// The entries by top-level menu.
    std::vector<MenuGroup> groups() const { return MenuGroup::group(entries); }
    /// The first entry with this id, or nullptr. Valid as long as the sheet is neither changed nor gone.
    const MenuEntry* entry(std::string_view id) const;

    bool operator==(const AppSheet&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::AppSheet> {
    std::size_t operator()(const quillon::AppSheet& sheet) const noexcept;
};
