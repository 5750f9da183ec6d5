#pragma once

#include <quillon/app/ports/app_icons.h>

#include <map>
#include <string>
#include <utility>

namespace quillon {

/// Icons that were told beforehand.
class FakeAppIcons final : public AppIcons {
  public:
    std::optional<AppIcon> icon(std::string_view bundleID) const override {
        const auto found = m_icons.find(bundleID);
        return found == m_icons.end() ? std::nullopt : std::optional(found->second);
    }
    void set(std::string bundleID, AppIcon icon) {
        m_icons.insert_or_assign(std::move(bundleID), std::move(icon));
    }

  private:
    std::map<std::string, AppIcon, std::less<>> m_icons;
};

} // namespace quillon
