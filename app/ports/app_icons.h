#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

/// An icon as pixels: rows from the top, each pixel 0xAARRGGBB, not premultiplied.
struct IconPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> argb; ///< width * height
};

/// A name in the desktop's icon theme.
struct IconName {
    std::string name;
};

/// A picture file.
struct IconFile {
    std::string path;
};

using AppIcon = std::variant<IconName, IconFile, IconPixels>;

/// Icons of applications.
class AppIcons {
  public:
    virtual ~AppIcons() = default;

    /// The icon of an application by its identifier; absent for an unknown one. Never waits.
    virtual std::optional<AppIcon> icon(std::string_view bundleID) const = 0;
};

} // namespace quillon
