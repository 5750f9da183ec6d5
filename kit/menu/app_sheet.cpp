#include "app_sheet.h"

#include <quillon/kit/base/hash.h>

#include <algorithm>

namespace quillon {

const MenuEntry* AppSheet::entry(std::string_view id) const {
    const auto found =
        std::ranges::find_if(entries, [id](const MenuEntry& candidate) { return candidate.hasId(id); });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace quillon

std::size_t std::hash<quillon::AppSheet>::operator()(const quillon::AppSheet& sheet) const noexcept {
    return quillon::hashOf(sheet.bundleID, sheet.appName, sheet.entries, sheet.readAt);
}
