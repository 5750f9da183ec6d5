#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <cstdlib>

namespace quillon {

/// A folder of its own as long as this object lives.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        const auto pattern = "quillon-test-" + std::string(6, 'X');
        std::string name = (std::filesystem::temp_directory_path() / pattern).string();
        if (::mkdtemp(name.data()) != nullptr)
            m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& path() const { return m_path; }
    /// Writes a file, and the folders above it.
    std::filesystem::path write(const std::filesystem::path& name, std::string_view text) const {
        const auto file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

  private:
    std::filesystem::path m_path;
};

} // namespace quillon
