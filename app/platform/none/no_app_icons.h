#pragma once

#include <quillon/app/ports/app_icons.h>

namespace quillon {

/// A desktop that has an icon for no application.
class NoAppIcons final : public AppIcons {
  public:
    std::optional<AppIcon> icon(std::string_view) const override { return std::nullopt; }
};

} // namespace quillon
