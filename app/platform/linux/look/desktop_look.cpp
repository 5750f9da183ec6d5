#include "desktop_look.h"

#include <quillon/kit/base/ascii.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quillon {

namespace {

/// "Adwaita-dark", "Yaru-dark", "Adwaita:dark", "Arc-Dark".
bool isDarkTheme(std::string_view theme) {
    const std::string name = ascii::toLower(theme);
    return name.ends_with("-dark") || name.ends_with(":dark") || name.ends_with("_dark")
           || name.find("-dark-") != std::string::npos;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

std::string_view lastWord(std::string_view text) {
    const auto blank = text.find_last_of(" ,");
    return blank == std::string_view::npos ? text : text.substr(blank + 1);
}

/// A size in points, or in pixels of 1/96 inch: "11", "10.5", "14px".
std::optional<double> sizeOf(std::string_view word) {
    constexpr double pointsPerPixel = 0.75;
    constexpr double largest = 200;
    const bool isPixels = word.ends_with("px");
    if (isPixels)
        word.remove_suffix(2);
    double size = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), size);
    if (error != std::errc() || end != word.data() + word.size() || !(size > 0) || size > largest)
        return std::nullopt;
    return isPixels ? size * pointsPerPixel : size;
}

bool isNumber(std::string_view word) {
    return !word.empty() && word.find_first_not_of("0123456789.px") == std::string_view::npos;
}

bool isStyle(std::string_view word) {
    constexpr std::array<std::string_view, 20> styles{
        "regular", "normal",    "roman",       "book",        "thin",      "light",         "medium",
        "bold",    "heavy",     "black",       "italic",      "oblique",   "semi-bold",     "semibold",
        "demi",    "demi-bold", "ultra-light", "extra-light", "condensed", "semi-condensed"};
    return std::ranges::find(styles, ascii::toLower(word)) != styles.end();
}

ColourScheme schemeOf(const DesktopSettings& settings, std::string_view gtkThemeVariable) {
    constexpr std::uint32_t prefersDark = 1;
    constexpr std::uint32_t prefersLight = 2;
    if (isDarkTheme(gtkThemeVariable) || settings.colourScheme == prefersDark)
        return ColourScheme::dark;
    if (settings.colourScheme == prefersLight)
        return ColourScheme::light;
    const bool isDark = settings.preferDarkTheme == true || isDarkTheme(settings.gtkTheme.value_or(""));
    return isDark ? ColourScheme::dark : ColourScheme::light;
}

} // namespace

FontDescription parseFont(std::string_view description) {
    FontDescription font;
    std::string_view rest = trimmed(description);
    if (const std::string_view size = lastWord(rest); isNumber(size)) {
        font.points = sizeOf(size);
        rest = trimmed(rest.substr(0, rest.size() - size.size()));
    }
    // A comma ends the family, or the first of several.
    if (const auto comma = rest.find(','); comma != std::string_view::npos) {
        font.family = trimmed(rest.substr(0, comma));
        return font;
    }
    while (!rest.empty() && isStyle(lastWord(rest)) && lastWord(rest).size() < rest.size())
        rest = trimmed(rest.substr(0, rest.size() - lastWord(rest).size()));
    font.family = rest;
    return font;
}

DesktopSettings merged(const DesktopSettings& first, const DesktopSettings& second) {
    const auto either = [](const auto& one, const auto& other) { return one ? one : other; };
    return {
        either(first.colourScheme, second.colourScheme), either(first.gtkTheme, second.gtkTheme),
        either(first.preferDarkTheme, second.preferDarkTheme), either(first.font, second.font),
        either(first.textScale, second.textScale)};
}

Look lookOf(const DesktopSettings& settings, std::string_view gtkThemeVariable) {
    Look look;
    look.scheme = schemeOf(settings, gtkThemeVariable);
    if (!settings.font)
        return look;
    const FontDescription font = parseFont(*settings.font);
    if (!font.family.empty())
        look.fontFamily = font.family;
    // Scales beyond these are mistakes; the desktops' own sliders end at 0.5 and 3.
    const double scale = settings.textScale.value_or(1);
    const bool isSensible = std::isfinite(scale) && scale >= 0.5 && scale <= 3;
    if (font.points)
        look.fontPoints = *font.points * (isSensible ? scale : 1);
    return look;
}

} // namespace quillon
