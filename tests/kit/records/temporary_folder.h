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
    std::filesystem::path operator/(std::string_view name) const { return m_path / name; }

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
