#include "software_centre.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

struct Centre {
    std::string_view desktop;
    std::string_view program;
};

constexpr std::array<Centre, 4> centres{{
    {"GNOME", "gnome-software"},
    {"KDE", "plasma-discover"},
    {"Pantheon", "io.elementary.appcenter"},
    {"X-Cinnamon", "mintinstall"},
}};

bool isNamed(std::string_view desktops, std::string_view desktop) {
    while (true) {
        const auto end = desktops.find(':');
        if (desktops.substr(0, end) == desktop)
            return true;
        if (end == std::string_view::npos)
            return false;
        desktops.remove_prefix(end + 1);
    }
}

} // namespace

std::optional<std::string>
softwareCentre(std::string_view desktops, const std::function<bool(const std::string&)>& isInstalled) {
    const auto installed = [&](const Centre& centre) { return isInstalled(std::string(centre.program)); };
    auto chosen = std::ranges::find_if(centres, [&](const Centre& centre) {
        return isNamed(desktops, centre.desktop) && installed(centre);
    });
    if (chosen == centres.end())
        chosen = std::ranges::find_if(centres, installed);
    return chosen == centres.end() ? std::nullopt : std::optional(std::string(chosen->program));
}

} // namespace quillon
