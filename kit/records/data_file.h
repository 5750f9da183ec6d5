#pragma once

#include <quillon/kit/base/outcome.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// Whole files, read with bounds and replaced as one step.
namespace quillon::DataFile {

/// No larger file is read or written. 200 applications of 300 commands each make 7 MiB of menus; four times
/// as much is no file of this program's, and would cost the start its time and, read into values, many times
/// its size in memory.
inline constexpr std::size_t largestSize = std::size_t{32} << 20;

/// The bytes of an ordinary file, or of one that a link leads to; the reason when there is none, when it
/// cannot be read or is too large, and for folders, pipes and devices, which are not waited for.
Outcome<std::string, std::error_code> read(const std::filesystem::path& path);

/// Creates the folder and every missing one above it, for their owner alone (0700). An existing folder is
/// left as it is.
std::error_code makeFolder(const std::filesystem::path& folder);

/// Makes `bytes` the contents of the file, of mode 0600, so that a reader finds the earlier contents or these
/// and nothing between, whatever happens on the way: they are written beside it, flushed to the disk and then
/// take its name. Where `path` is a link, the file that it leads to is replaced and the link stays. On
/// failure the earlier file stays as it was and nothing is left beside it; a folder, pipe or device is never
/// replaced.
std::error_code replace(const std::filesystem::path& path, std::string_view bytes);

} // namespace quillon::DataFile
