#pragma once

#include "app_identifier.h"

#include <quillon/app/ports/app_icons.h>

#include <map>
#include <string>

namespace quillon {

/// Icons by the applications' desktop entries, else the pictures that their windows showed. Of the main
/// thread.
class XdgAppIcons final : public AppIcons {
  public:
    /// `identifier` must outlive this object.
    explicit XdgAppIcons(const AppIdentifier& identifier) : m_identifier(identifier) {}

    std::optional<AppIcon> icon(std::string_view bundleID) const override;

    /// Remembers what a window of an application without a desktop entry showed; for 64 applications.
    void note(const std::string& bundleID, IconPixels icon);

  private:
    const AppIdentifier& m_identifier;
    std::map<std::string, IconPixels, std::less<>> m_noted;
};

/// What the `Icon` of a desktop entry stands for: a file when it is an absolute path, else a name in the icon
/// theme, of which old entries also give the extension. Absent when it is "".
std::optional<AppIcon> iconOfEntry(std::string_view icon);

} // namespace quillon
