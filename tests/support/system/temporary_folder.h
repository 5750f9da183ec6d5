#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace quillon {

/// A folder of the test's own, gone with it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return m_path / name; }

    /// Writes a file below, and the folders above it; where it is.
    std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const;
    /// The names of what lies directly in it.
    std::set<std::string> names() const;

  private:
    std::filesystem::path m_path;
};

/// The bytes of a file; fails the test when it cannot be read.
std::string contentsOf(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// The permission bits, without the kind of file.
unsigned permissionsOf(const std::filesystem::path& path);

} // namespace quillon
