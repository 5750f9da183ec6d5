#pragma once

#include <chrono>
#include <filesystem>
#include <future>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

/// A pipe in place of a file, at whose other end nobody is.
class LonelyPipe {
  public:
    explicit LonelyPipe(const std::filesystem::path& path) : m_path(path) {
        std::filesystem::create_directories(path.parent_path());
        m_exists = ::mkfifo(path.c_str(), 0600) == 0;
    }

    bool exists() const { return m_exists; }

    /// What `read` returns; absent when it waits for the pipe.
    template <class Read>
    auto resultOf(Read read) const {
        auto future = std::async(std::launch::async, read);
        std::optional<decltype(read())> result;
        if (future.wait_for(std::chrono::seconds(5)) == std::future_status::ready)
            result = future.get();
        else
            ::close(::open(m_path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)); // lets it go on
        return result;
    }

  private:
    std::filesystem::path m_path;
    bool m_exists = false;
};

} // namespace quillon
