#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace quillon {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "quillon-test.XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::system_error(errno, std::generic_category(), name);
    m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

fs::path TemporaryFolder::write(const fs::path& name, std::string_view bytes) const {
    const fs::path file = m_path / name;
    fs::create_directories(file.parent_path());
    writeFile(file, bytes);
    return file;
}

std::set<std::string> TemporaryFolder::names() const {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_path))
        names.insert(entry.path().filename().string());
    return names;
}

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const fs::path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    EXPECT_TRUE(file) << path;
}

unsigned permissionsOf(const fs::path& path) {
    return static_cast<unsigned>(fs::symlink_status(path).permissions());
}

} // namespace quillon
