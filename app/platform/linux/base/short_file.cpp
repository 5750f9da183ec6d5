#include "short_file.h"

#include <quillon/kit/base/file_descriptor.h>

#include <cstddef>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// These files are short; one that is not is not what it seems.
constexpr std::size_t fileLimit = 65536;

bool isOrdinary(const FileDescriptor& file) {
    struct stat status {};
    return file && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Everything up to the end. The size is not asked for: files of the proc file system say that it is 0.
std::optional<std::string> readAll(const FileDescriptor& file) {
    std::string bytes(fileLimit + 1, '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count =
            uninterrupted([&] { return ::read(file.get(), bytes.data() + filled, bytes.size() - filled); });
        if (count < 0)
            return std::nullopt;
        if (count == 0) {
            bytes.resize(filled);
            return bytes;
        }
        filled += static_cast<std::size_t>(count);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> readShortFile(const std::filesystem::path& path) {
    const FileDescriptor file(uninterrupted(
        [&path] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    return isOrdinary(file) ? readAll(file) : std::nullopt;
}

} // namespace quillon
