#include "xdg_app_icons.h"

#include <utility>

namespace quillon {

namespace {

/// A picture takes up to 256 kB.
constexpr std::size_t notedLimit = 64;

} // namespace

std::optional<AppIcon> iconOfEntry(std::string_view icon) {
    if (icon.empty())
        return std::nullopt;
    if (icon.starts_with('/'))
        return IconFile{std::string(icon)};
    for (const std::string_view extension : {".png", ".svg", ".xpm"}) {
        if (icon.ends_with(extension))
            icon.remove_suffix(extension.size());
    }
    return IconName{std::string(icon)};
}

std::optional<AppIcon> XdgAppIcons::icon(std::string_view bundleID) const {
    const auto entries = m_identifier.entries();
    if (const DesktopEntry* entry = entries ? entries->byID(bundleID) : nullptr) {
        if (auto icon = iconOfEntry(entry->icon))
            return icon;
    }
    const auto noted = m_noted.find(bundleID);
    return noted == m_noted.end() ? std::nullopt : std::optional<AppIcon>(noted->second);
}

void XdgAppIcons::note(const std::string& bundleID, IconPixels icon) {
    if (m_noted.size() >= notedLimit && !m_noted.contains(bundleID))
        m_noted.erase(m_noted.begin());
    m_noted.insert_or_assign(bundleID, std::move(icon));
}

} // namespace quillon
