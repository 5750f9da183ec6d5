#pragma once

#include "desktop_look.h"

#include <filesystem>

namespace quillon {

/// What GTK's own settings file tells: `gtk-theme-name`, `gtk-application-prefer-dark-theme` and
/// `gtk-font-name` of the group `[Settings]`. Nothing when the file is missing or broken.
DesktopSettings readGtkSettings(const std::filesystem::path& file);

} // namespace quillon
