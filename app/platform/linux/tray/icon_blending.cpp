#include "icon_blending.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint32_t opaque = 255;

std::uint32_t alphaOf(std::uint32_t pixel) {
    return pixel >> 24;
}

/// 0 to 255, weighted as eyes do.
std::uint32_t brightness(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return (red * 11 + green * 16 + blue * 5) / 32;
}

std::uint32_t scaled(std::uint32_t channel, std::uint32_t by) {
    return (channel * by + opaque / 2) / opaque;
}

std::uint32_t over(std::uint32_t icon, std::uint32_t background) {
    const std::uint32_t alpha = alphaOf(icon);
    std::uint32_t result = 0;
    for (const int shift : {0, 8, 16, 24}) {
        const std::uint32_t full = shift == 24 ? opaque : (icon >> shift) & opaque;
        const std::uint32_t below = (background >> shift) & opaque;
        result |= std::min(opaque, scaled(full, alpha) + scaled(below, opaque - alpha)) << shift;
    }
    return result;
}

} // namespace

std::optional<ColourScheme> schemeOfTrayColours(std::span<const std::uint32_t> colours) {
    if (colours.size() < 3)
        return std::nullopt;
    const auto channel = [&](std::size_t at) { return std::min(colours[at], 65535U) / 257; };
    return brightness(channel(0), channel(1), channel(2)) > opaque / 2 ? ColourScheme::dark
                                                                       : ColourScheme::light;
}

std::optional<ColourScheme> schemeOfBackground(std::span<const std::uint32_t> pixels) {
    std::uint64_t sum = 0;
    std::uint64_t seen = 0;
    for (const std::uint32_t pixel : pixels) {
        if (alphaOf(pixel) < opaque)
            continue;
        sum += brightness((pixel >> 16) & opaque, (pixel >> 8) & opaque, pixel & opaque);
        ++seen;
    }
    if (seen * 2 <= pixels.size())
        return std::nullopt;
    return sum / seen > opaque / 2 ? ColourScheme::light : ColourScheme::dark;
}

std::vector<std::uint32_t> blended(const IconPixels& icon, std::span<const std::uint32_t> background) {
    std::vector<std::uint32_t> result(background.begin(), background.end());
    for (std::size_t i = 0; i < std::min(result.size(), icon.argb.size()); ++i)
        result[i] = over(icon.argb[i], result[i]);
    return result;
}

} // namespace quillon
