#include "accessibility_settings.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

struct Panel {
    std::string_view desktop;
    std::string_view program;
    std::string_view argument; ///< "" for none
};

constexpr std::array<Panel, 10> panels{{
    {"GNOME", "gnome-control-center", "universal-access"},
    {"KDE", "systemsettings", "kcm_access"},
    {"KDE", "systemsettings5", "kcm_access"},
    {"KDE", "kcmshell6", "kcm_access"},
    {"KDE", "kcmshell5", "kcm_access"},
    {"XFCE", "xfce4-accessibility-settings", ""},
    {"MATE", "mate-at-properties", ""},
    {"X-Cinnamon", "cinnamon-settings", "accessibility"},
    {"Unity", "unity-control-center", "universal-access"},
    {"Budgie", "budgie-control-center", "universal-access"},
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

ProgramCall callOf(const Panel& panel) {
    ProgramCall call{std::string(panel.program)};
    if (!panel.argument.empty())
        call.emplace_back(panel.argument);
    return call;
}

} // namespace

std::optional<ProgramCall>
accessibilitySettings(std::string_view desktops, const std::function<bool(const std::string&)>& isInstalled) {
    const auto installed = [&](const Panel& panel) { return isInstalled(std::string(panel.program)); };
    const auto own = std::ranges::find_if(
        panels, [&](const Panel& panel) { return isNamed(desktops, panel.desktop) && installed(panel); });
    if (own != panels.end())
        return callOf(*own);
    const auto any = std::ranges::find_if(panels, installed);
    return any == panels.end() ? std::nullopt : std::optional(callOf(*any));
}

} // namespace quillon
