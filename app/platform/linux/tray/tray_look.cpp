#include "tray_look.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

bool isOneOf(std::string_view name, const auto& names) {
    return std::ranges::find(names, name) != names.end();
}

/// Whether one of the names between the colons is one of `names`.
bool mentions(std::string_view list, const auto& names) {
    while (!list.empty()) {
        const auto colon = std::min(list.find(':'), list.size());
        if (isOneOf(list.substr(0, colon), names))
            return true;
        list.remove_prefix(std::min(colon + 1, list.size()));
    }
    return false;
}

} // namespace

TrayLook trayLookOf(std::string_view currentDesktop, ColourScheme windows) {
    // Their bars are dark whatever the windows are.
    constexpr std::array<std::string_view, 4> darkBars{"GNOME", "GNOME-Classic", "Unity", "Pantheon"};
    // Others load such an icon as any picture: dark, also on a dark bar.
    constexpr std::array<std::string_view, 6> colouring{"GNOME",    "GNOME-Classic", "Unity",
                                                        "Pantheon", "KDE",           "X-Cinnamon"};
    return {
        .scheme = mentions(currentDesktop, darkBars) ? ColourScheme::dark : windows,
        .coloursNamedIcons = mentions(currentDesktop, colouring)};
}

} // namespace quillon
