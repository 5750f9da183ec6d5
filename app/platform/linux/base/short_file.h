#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

/// The bytes of an ordinary file that another program wrote. Absent when it cannot be read, is longer than
/// 64 KiB, or is no ordinary file. Never waits for another process, as opening a pipe would.
std::optional<std::string> readShortFile(const std::filesystem::path& path);

} // namespace quillon
