#include <quillon/app/cheatsheet/exports/whole_file.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <iterator>

#include <sys/resource.h>

namespace quillon {
namespace {

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::size_t filesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

class WholeFileTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "Sheet für “dich”.pdf";
};

TEST_F(WholeFileTest, AFileIsWrittenByteByByte) {
    const std::string bytes("%PDF\0\r\n\xff", 8);
    EXPECT_EQ(writeWhole(file, bytes), std::nullopt);
    EXPECT_EQ(contentOf(file), bytes);
}

TEST_F(WholeFileTest, AFileThatIsThereIsReplaced) {
    EXPECT_EQ(writeWhole(file, QByteArrayView("old and long")), std::nullopt);
    EXPECT_EQ(writeWhole(file, QByteArrayView("new")), std::nullopt);
    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST_F(WholeFileTest, AFolderThatIsNotThereIsToldOf) {
    const auto reason = writeWhole(folder.path() / "missing" / "sheet.pdf", QByteArrayView("new"));
    ASSERT_TRUE(reason.has_value());
    EXPECT_THAT(reason->toStdString(), testing::HasSubstr("No such file or directory"));
}

TEST_F(WholeFileTest, AFolderIsNotReplaced) {
    std::filesystem::create_directory(file);
    EXPECT_TRUE(writeWhole(file, QByteArrayView("new")).has_value());
    EXPECT_TRUE(std::filesystem::is_directory(file));
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

/// As on a full disk: the system takes a part of it.
TEST_F(WholeFileTest, WhatDoesNotFitLeavesTheOldFile) {
    EXPECT_EQ(writeWhole(file, QByteArrayView("old")), std::nullopt);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto reason = writeWhole(file, std::string(100000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    ASSERT_TRUE(reason.has_value());
    EXPECT_THAT(reason->toStdString(), testing::HasSubstr("File too large"));
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(filesIn(folder.path()), 1U);
}

} // namespace
} // namespace quillon
