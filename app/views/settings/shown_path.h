#pragma once

#include <QString>

#include <filesystem>

namespace quillon {

/// A path as people write it: `home` and what lies in it begin with "~". "" for an empty path.
QString shownPath(const std::filesystem::path& path, const std::filesystem::path& home);

} // namespace quillon
