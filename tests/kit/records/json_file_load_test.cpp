#include <quillon/kit/records/json_file.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;

const std::string goodJson = R"({"apps":{"app":{"id":{"muted":true,"note":"n","pinned":false}}}})";

AnnotationBook goodBook() {
    AnnotationBook book;
    book.set("app", "id", {.note = "n", .muted = true});
    return book;
}

std::optional<AnnotationBook> load(const fs::path& path) {
    return JSONFile<AnnotationBook>(path).load();
}

LoadFailure failureOf(const fs::path& path) {
    const Outcome<AnnotationBook, LoadFailure> outcome = JSONFile<AnnotationBook>(path).tryLoad();
    EXPECT_TRUE(outcome.failure()) << path;
    return outcome.failure() ? *outcome.failure() : LoadFailure{};
}

class JSONFileLoad : public testing::Test {
  protected:
    TemporaryFolder m_folder;
    const fs::path m_file = m_folder / "notes.json";
};

TEST_F(JSONFileLoad, ReadsWhatTheFileHolds) {
    writeFile(m_file, goodJson);
    EXPECT_EQ(load(m_file), goodBook());
}

TEST_F(JSONFileLoad, TouchesNothingUntilAsked) {
    const JSONFile<AnnotationBook> file(m_file);
    EXPECT_EQ(file.url(), m_file);
    EXPECT_EQ(file, JSONFile<AnnotationBook>(m_file));
    EXPECT_TRUE(m_folder.names().empty());
}

TEST_F(JSONFileLoad, KeepsNoCopy) {
    const JSONFile<AnnotationBook> file(m_file);
    writeFile(m_file, goodJson);
    EXPECT_EQ(file.load(), goodBook());
    writeFile(m_file, R"({"apps":{}})");
    EXPECT_EQ(file.load(), AnnotationBook());
}

TEST_F(JSONFileLoad, AMissingFileIsAbsent) {
    EXPECT_EQ(load(m_file), std::nullopt);
    EXPECT_EQ(load(m_folder / "no" / "such" / "folder"), std::nullopt);
    EXPECT_EQ(load(""), std::nullopt);
}

TEST_F(JSONFileLoad, WhatDoesNotDecodeIsAbsent) {
    for (const char* text : {"", "[]", "{}", "\xff\xfe", "{\"apps\":{", "null"}) {
        writeFile(m_file, text);
        EXPECT_EQ(load(m_file), std::nullopt) << text;
    }
    writeFile(m_file, R"({"apps":{"app":{"id":{"note":"n","pinned":false}}}})");
    EXPECT_EQ(load(m_file), std::nullopt) << "one missing member";
}

TEST_F(JSONFileLoad, AFileOfAnotherTypeIsAbsent) {
    writeFile(m_file, goodJson);
    EXPECT_EQ(JSONFile<UsageBook>(m_file).load(), std::nullopt);
    EXPECT_EQ(JSONFile<SheetMap>(m_file).load(), std::nullopt);
    EXPECT_EQ(JSONFile<AppSheet>(m_file).load(), std::nullopt);
}

TEST_F(JSONFileLoad, FollowsLinksToAnOrdinaryFile) {
    fs::create_directory(m_folder / "synced");
    writeFile(m_folder / "synced" / "real.json", goodJson);
    fs::create_symlink("synced/real.json", m_folder / "second");
    fs::create_symlink(m_folder / "second", m_file);
    EXPECT_EQ(load(m_file), goodBook());
}

TEST_F(JSONFileLoad, ALinkToNothingIsAbsent) {
    fs::create_symlink(m_folder / "nowhere", m_file);
    EXPECT_EQ(load(m_file), std::nullopt);
}

TEST_F(JSONFileLoad, ALinkToItselfIsAbsent) {
    fs::create_symlink(m_file, m_file);
    EXPECT_EQ(load(m_file), std::nullopt);
}

TEST_F(JSONFileLoad, AFolderIsAbsent) {
    fs::create_directory(m_file);
    EXPECT_EQ(load(m_file), std::nullopt);
}

TEST_F(JSONFileLoad, APipeWithoutAWriterIsAbsentAtOnce) {
    ASSERT_EQ(::mkfifo(m_file.c_str(), 0600), 0);
    EXPECT_EQ(load(m_file), std::nullopt);
    fs::create_symlink(m_file, m_folder / "link");
    EXPECT_EQ(load(m_folder / "link"), std::nullopt);
}

TEST_F(JSONFileLoad, ASocketIsAbsent) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(m_file.string().size(), sizeof address.sun_path);
    std::strcpy(address.sun_path, m_file.c_str());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(load(m_file), std::nullopt);
    ::close(socket);
}

TEST_F(JSONFileLoad, DevicesAreAbsent) {
    EXPECT_EQ(load("/dev/null"), std::nullopt);
    EXPECT_EQ(load("/dev/zero"), std::nullopt) << "which never ends";
}

TEST_F(JSONFileLoad, AFileThatFailsToReadIsAbsent) {
    // Ordinary by its status, but nothing is mapped at address 0: reading fails, for root as well.
    EXPECT_EQ(load("/proc/self/mem"), std::nullopt);
}

TEST_F(JSONFileLoad, AHugeFileIsAbsentUnread) {
    writeFile(m_file, goodJson);
    fs::resize_file(m_file, std::uintmax_t{1} << 30);
    EXPECT_EQ(load(m_file), std::nullopt);
}

TEST_F(JSONFileLoad, TheSizeBoundIsExact) {
    writeFile(m_file, goodJson);
    fs::resize_file(m_file, DataFile::largestSize);
    const Outcome<std::string, std::error_code> bytes = DataFile::read(m_file);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), DataFile::largestSize);
    EXPECT_TRUE(bytes->starts_with(goodJson));
    fs::resize_file(m_file, DataFile::largestSize + 1);
    EXPECT_EQ(DataFile::read(m_file), std::make_error_code(std::errc::file_too_large));
}

TEST_F(JSONFileLoad, ReadsAFileThatDoesNotTellItsSize) {
    // Files of the proc file system say that they are empty.
    ASSERT_EQ(fs::file_size("/proc/self/status"), 0u);
    EXPECT_TRUE(DataFile::read("/proc/self/status")->starts_with("Name:"));
    const Outcome<std::string, std::error_code> long_ = DataFile::read("/proc/self/smaps");
    ASSERT_TRUE(long_);
    EXPECT_GT(long_->size(), 4096u);
    EXPECT_EQ(long_->find('\0'), std::string::npos);
}

TEST_F(JSONFileLoad, TellsAFileThatIsNotThere) {
    const auto kindOf = [](const fs::path& path) { return failureOf(path).kind; };
    EXPECT_EQ(kindOf(m_file), LoadFailure::Kind::absent);
    EXPECT_EQ(kindOf(m_folder / "no" / "such" / "folder"), LoadFailure::Kind::absent);
    fs::create_symlink(m_folder / "nowhere", m_folder / "link");
    EXPECT_EQ(kindOf(m_folder / "link"), LoadFailure::Kind::absent);
    EXPECT_EQ(failureOf(m_file).message(), "there is no file");
}

TEST_F(JSONFileLoad, TellsWhyAFileCannotBeRead) {
    const auto expectReason = [](const fs::path& path, std::errc reason) {
        const LoadFailure failure = failureOf(path);
        EXPECT_EQ(failure.kind, LoadFailure::Kind::unreadable) << path;
        EXPECT_EQ(failure.code, reason) << path;
    };
    expectReason(m_folder.path(), std::errc::is_a_directory);
    expectReason("/dev/zero", std::errc::not_supported);
    expectReason("/proc/self/mem", std::errc::io_error);
    fs::create_symlink(m_folder / "link", m_folder / "link");
    expectReason(m_folder / "link", std::errc::too_many_symbolic_link_levels);
    writeFile(m_file, goodJson);
    expectReason(m_file / "below", std::errc::not_a_directory);
    fs::resize_file(m_file, DataFile::largestSize + 1);
    expectReason(m_file, std::errc::file_too_large);
    EXPECT_EQ(failureOf(m_file).message(), "could not read the file: File too large");
}

TEST_F(JSONFileLoad, TellsWhatIsWrongInAFileThatIsBroken) {
    writeFile(m_file, R"({"apps":{"app":{"id":{"muted":1}}}})");
    EXPECT_EQ(
        failureOf(m_file),
        (LoadFailure{.kind = LoadFailure::Kind::broken, .fault = {30, "\"muted\" must be true or false"}}));
    EXPECT_EQ(failureOf(m_file).message(), "byte 30: \"muted\" must be true or false");
    writeFile(m_file, "");
    EXPECT_EQ(failureOf(m_file).message(), "byte 0: the text ends too early");
}

TEST_F(JSONFileLoad, DeepNestingIsAbsent) {
    writeFile(m_file, R"({"apps":{"a":)" + std::string(30'000'000, '['));
    EXPECT_EQ(load(m_file), std::nullopt);
}

} // namespace
} // namespace quillon
