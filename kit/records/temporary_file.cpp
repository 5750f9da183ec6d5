#include "temporary_file.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <fcntl.h>

namespace quillon {

namespace fs = std::filesystem;

namespace {

/// What mkostemp() replaces to make the name unique.
constexpr std::string_view placeholder = "XXXXXX";

/// Hidden, and telling whose it is: ".usage.json.XXXXXX".
std::string namePrefix(const fs::path& target) {
    return std::string(".").append(target.filename().string()).append(".");
}

} // namespace

TemporaryFile::TemporaryFile(FileDescriptor file, fs::path path)
    : m_file(std::move(file)), m_path(std::move(path)) {}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : m_file(std::move(other.m_file)), m_path(std::exchange(other.m_path, {})) {}

TemporaryFile::~TemporaryFile() {
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

std::optional<TemporaryFile> TemporaryFile::beside(const fs::path& target, std::error_code& error) {
    std::string path = (target.parent_path() / namePrefix(target)).string().append(placeholder);
    FileDescriptor file(::mkostemp(path.data(), O_CLOEXEC));
    if (!file) {
        error = lastError();
        return std::nullopt;
    }
    return TemporaryFile(std::move(file), std::move(path));
}

std::error_code TemporaryFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count =
            uninterrupted([&] { return ::write(m_file.get(), bytes.data(), bytes.size()); });
        if (count < 0)
            return lastError();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return uninterrupted([this] { return ::fsync(m_file.get()); }) == 0 ? std::error_code() : lastError();
}

std::error_code TemporaryFile::rename(const fs::path& target) {
    if (::rename(m_path.c_str(), target.c_str()) != 0)
        return lastError();
    m_path.clear();
    return {};
}

void removeLeftovers(const fs::path& target) {
    std::error_code ignored;
    const fs::file_time_type newest = fs::last_write_time(target, ignored);
    const std::string prefix = namePrefix(target);
    const fs::path folder = target.parent_path().empty() ? "." : target.parent_path();
    for (fs::directory_iterator at(folder, ignored), end; !ignored && at != end; at.increment(ignored)) {
        const std::string name = at->path().filename().string();
        if (name.size() != prefix.size() + placeholder.size() || !name.starts_with(prefix))
            continue;
        std::error_code unreadable;
        const fs::file_time_type written = fs::last_write_time(at->path(), unreadable);
        if (!unreadable && newest - written > std::chrono::hours(1))
            ::unlink(at->path().c_str());
    }
}

} // namespace quillon
