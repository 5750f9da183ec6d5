#pragma once

#include <quillon/app/ports/app_icons.h>
#include <quillon/app/ports/appearance.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// The scheme of a tray whose texts and signs have this colour: `_NET_SYSTEM_TRAY_COLORS`, of which the first
/// three numbers are its red, green and blue, up to 65535. Absent when there are fewer.
std::optional<ColourScheme> schemeOfTrayColours(std::span<const std::uint32_t> colours);

/// The scheme of a background of pixels 0xAARRGGBB, premultiplied. Absent when there is none, or one can see
/// through most of it.
std::optional<ColourScheme> schemeOfBackground(std::span<const std::uint32_t> pixels);

/// The icon over a background of as many pixels, premultiplied; so is the result.
std::vector<std::uint32_t> blended(const IconPixels& icon, std::span<const std::uint32_t> background);

} // namespace quillon
