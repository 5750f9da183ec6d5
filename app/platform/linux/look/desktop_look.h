#pragma once

#include <quillon/app/ports/appearance.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// What a source of desktop settings tells; absent where it does not.
struct DesktopSettings {
    std::optional<std::uint32_t> colourScheme; ///< the portal's: 1 prefers dark, 2 prefers light, 0 neither
    std::optional<std::string> gtkTheme;
    std::optional<bool> preferDarkTheme;
    std::optional<std::string> font; ///< family, style and size: "Cantarell 11"
    std::optional<double> textScale;

    bool operator==(const DesktopSettings&) const = default;
};

/// The settings of `first` and, where it has none, those of `second`.
DesktopSettings merged(const DesktopSettings& first, const DesktopSettings& second);

/// The look that settings amount to. `gtkThemeVariable` is $GTK_THEME, which wins when it names a dark theme
/// ("Adwaita:dark"). A preference counts more than the theme's name; without either the look is light.
Look lookOf(const DesktopSettings& settings, std::string_view gtkThemeVariable);

/// A font description as GTK writes it. Style words are left out; a size that is missing or makes no sense is
/// absent.
struct FontDescription {
    std::string family;
    std::optional<double> points;

    bool operator==(const FontDescription&) const = default;
};
FontDescription parseFont(std::string_view description);

} // namespace quillon
