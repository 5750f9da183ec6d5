#include "short_file.h"

#include <cerrno>
#include <cstddef>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// These files are short; one that is not is not what it seems.
constexpr std::size_t fileLimit = 65536;

template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Closes what it was given.
class OpenFile {
  public:
    explicit OpenFile(int descriptor) : m_descriptor(descriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    bool isOrdinary() const {
        struct stat status {};
        return m_descriptor >= 0 && ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
    }

    /// Everything up to the end. The size is not asked for: files of the proc file system say that it is 0.
    std::optional<std::string> readAll() const {
        std::string bytes(fileLimit + 1, '\0');
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const ssize_t count = uninterrupted(
                [&] { return ::read(m_descriptor, bytes.data() + filled, bytes.size() - filled); });
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

  private:
    int m_descriptor;
};

} // namespace

std::optional<std::string> readShortFile(const std::filesystem::path& path) {
    const OpenFile file(uninterrupted(
        [&path] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    return file.isOrdinary() ? file.readAll() : std::nullopt;
}

} // namespace quillon
