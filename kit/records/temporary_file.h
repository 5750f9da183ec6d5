#pragma once

#include <quillon/kit/base/file_descriptor.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace quillon {

/// A new file beside another, to take its place; gone when it does not get that far.
class TemporaryFile {
  public:
    /// Readable and writable for its owner alone. Sets `error` when absent.
    static std::optional<TemporaryFile> beside(const std::filesystem::path& target, std::error_code& error);

    TemporaryFile(TemporaryFile&& other) noexcept;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile();

    /// Writes all of `bytes` and flushes them to the disk.
    std::error_code write(std::string_view bytes);
    /// Takes the name of the target.
    std::error_code rename(const std::filesystem::path& target);

  private:
    TemporaryFile(FileDescriptor file, std::filesystem::path path);

    FileDescriptor m_file;
    std::filesystem::path m_path; ///< empty once it has another name
};

/// Removes what writers of `target` that were killed in the middle have left beside it. What was written less
/// than an hour before `target` may belong to a writer at work, and stays.
void removeLeftovers(const std::filesystem::path& target);

} // namespace quillon
