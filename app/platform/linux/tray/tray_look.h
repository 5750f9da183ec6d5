#pragma once

#include <quillon/app/ports/appearance.h>

#include <string_view>

namespace quillon {

/// How the icon is given to a tray on the session bus, which does not say what it looks like.
struct TrayLook {
    ColourScheme scheme = ColourScheme::light; ///< of the tray
    /// The tray colours an icon itself that is told by its name in the icon theme and made for that.
    bool coloursNamedIcons = false;

    bool operator==(const TrayLook&) const = default;
};

/// Of the desktop that calls itself this (`XDG_CURRENT_DESKTOP`: names between colons), whose windows are of
/// this scheme.
TrayLook trayLookOf(std::string_view currentDesktop, ColourScheme windows);

} // namespace quillon
