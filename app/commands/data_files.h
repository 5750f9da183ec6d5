#pragma once

#include <quillon/app/ports/diagnosis.h>

#include <filesystem>
#include <vector>

namespace quillon {

/// Looks at the files of what the program has learned: which of them cannot be made out, what is wrong and at
/// which byte. Files that were set aside because of that are among them. `folder` need not exist, nor be
/// named.
std::vector<Check> checkDataFiles(const std::filesystem::path& folder);

} // namespace quillon
