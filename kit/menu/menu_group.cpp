#include "menu_group.h"

#include <quillon/kit/base/hash.h>

#include <unordered_map>

namespace quillon {

std::vector<MenuGroup> MenuGroup::group(std::span<const MenuEntry> entries) {
    std::vector<MenuGroup> groups;
    std::unordered_map<std::string_view, std::size_t> positions;
    for (const MenuEntry& entry : entries) {
        const auto [found, fresh] = positions.try_emplace(entry.menu(), groups.size());
        if (fresh)
            groups.push_back({std::string(entry.menu()), {}});
        groups[found->second].entries.push_back(entry);
    }
    return groups;
}

} // namespace quillon

std::size_t std::hash<quillon::MenuGroup>::operator()(const quillon::MenuGroup& group) const noexcept {
    return quillon::hashOf(group.menu, group.entries);
}
