#include "data_file.h"

#include "temporary_file.h"
#include <quillon/kit/base/file_descriptor.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::DataFile {

namespace fs = std::filesystem;

namespace {

/// As many links in a row as the kernel follows (MAXSYMLINKS).
constexpr int mostLinks = 40;

/// The file that `path` stands for: itself, or what it leads to as a link, even where that does not exist
/// yet.
fs::path linkTarget(fs::path path, std::error_code& error) {
    for (int hop = 0; hop < mostLinks; ++hop) {
        std::error_code notALink;
        const fs::path next = fs::read_symlink(path, notALink);
        if (notALink)
            return path;
        path = path.parent_path() / next;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

/// Why a thing that is there already may not be replaced by a file.
std::error_code refusal(const fs::path& target) {
    std::error_code unknown;
    const fs::file_status status = fs::symlink_status(target, unknown);
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if (fs::exists(status) && !fs::is_regular_file(status))
        return std::make_error_code(std::errc::operation_not_supported);
    return {};
}

/// Flushes a new name to the disk. The file stands under it whether or not this succeeds, so a folder that
/// cannot be flushed is no failure.
void flushFolder(const fs::path& folder) {
    const fs::path& path = folder.empty() ? fs::path(".") : folder;
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file)
        ::fsync(file.get());
}

} // namespace

std::error_code makeFolder(const fs::path& folder) {
    std::error_code unknown;
    if (folder.empty() || fs::is_directory(folder, unknown))
        return {};
    if (const std::error_code error = makeFolder(folder.parent_path()))
        return error;
    if (::mkdir(folder.c_str(), 0700) == 0)
        return {};
    const std::error_code error = lastError();
    // Somebody else may have made it meanwhile.
    if (fs::is_directory(folder, unknown))
        return {};
    return error == std::errc::file_exists ? std::make_error_code(std::errc::not_a_directory) : error;
}

std::error_code replace(const fs::path& path, std::string_view bytes) {
    if (bytes.size() > largestSize)
        return std::make_error_code(std::errc::file_too_large);
    std::error_code error;
    const fs::path target = linkTarget(path, error);
    if (!error)
        error = refusal(target);
    if (error)
        return error;
    std::optional<TemporaryFile> fresh = TemporaryFile::beside(target, error);
    if (!fresh)
        return error;
    error = fresh->write(bytes);
    if (!error)
        error = fresh->rename(target);
    if (error)
        return error;
    flushFolder(target.parent_path());
    removeLeftovers(target);
    return {};
}

} // namespace quillon::DataFile
