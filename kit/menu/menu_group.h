#pragma once

#include "menu_entry.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace quillon {

/// The entries of one top-level menu, in sheet order.
struct MenuGroup {
    std::string menu;
    std::vector<MenuEntry> entries;

    /// Equal to `menu`.
    const std::string& id() const { return menu; }

    /// One group per top-level menu in order of first appearance, each with its entries in input order;
    /// nothing is sorted, lost or repeated.
    static std::vector<MenuGroup> group(std::span<const MenuEntry> entries);

    bool operator==(const MenuGroup&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::MenuGroup> {
    std::size_t operator()(const quillon::MenuGroup& group) const noexcept;
};
