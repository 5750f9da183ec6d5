#include "data_file.h"

#include <quillon/kit/base/file_descriptor.h>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::DataFile {

namespace {

constexpr std::size_t firstBuffer = 4096;

/// The size of an open ordinary file of bearable length. A size is what the file says it has, which a file of
/// the proc file system, or one that grows, gets wrong.
Outcome<std::size_t, std::error_code> ordinarySize(const FileDescriptor& file) {
    struct stat status {};
    if (::fstat(file.get(), &status) != 0)
        return lastError();
    if (S_ISDIR(status.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode))
        return std::make_error_code(std::errc::not_supported);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > largestSize)
        return std::make_error_code(std::errc::file_too_large);
    return size;
}

} // namespace

Outcome<std::string, std::error_code> read(const std::filesystem::path& path) {
    // Not waiting is what keeps a pipe without a writer from holding up the start.
    const FileDescriptor file(uninterrupted(
        [&path] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
    if (!file)
        return lastError();
    const Outcome<std::size_t, std::error_code> size = ordinarySize(file);
    if (const std::error_code* const reason = size.failure())
        return *reason;
    std::string bytes(std::max(*size + 1, firstBuffer), '\0');
    std::size_t filled = 0;
    while (filled <= largestSize) {
        if (filled == bytes.size())
            bytes.resize(std::min(2 * bytes.size(), largestSize + 1));
        const ssize_t count =
            uninterrupted([&] { return ::read(file.get(), bytes.data() + filled, bytes.size() - filled); });
        if (count < 0)
            return lastError();
        if (count == 0) {
            bytes.resize(filled);
            return bytes;
        }
        filled += static_cast<std::size_t>(count);
    }
    return std::make_error_code(std::errc::file_too_large);
}

} // namespace quillon::DataFile
