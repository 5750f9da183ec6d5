#include "child_process.h"
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <string>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using Step = SaveFailure::Step;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;

/// A book that can be told from others by one number, and is as long as `commands` make it.
UsageBook bookOf(Count number, int commands = 1) {
    UsageBook book;
    for (int i = 0; i < commands; ++i)
        book.apps["app"]["command " + std::to_string(i)].typed = number;
    return book;
}

SaveFailure failure(Step step, std::errc error) {
    return {step, std::make_error_code(error)};
}

/// Compares by step and reason, whichever category reports it.
MATCHER_P2(FailsWith, step, error, "") {
    return arg && arg->step == step && arg->code == std::make_error_condition(error);
}

class JSONFileSave : public testing::Test {
  protected:
    TemporaryFolder m_folder;
    const fs::path m_path = m_folder / "usage.json";
    const JSONFile<UsageBook> m_file{m_path};
};

TEST_F(JSONFileSave, WritesWhatLoadsAgain) {
    EXPECT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_EQ(m_file.load(), bookOf(1));
    EXPECT_EQ(contentsOf(m_path), Json::encode(bookOf(1)));
}

TEST_F(JSONFileSave, KeepsAllFourKindsOfValues) {
    const JSONFile<AppSheet> sheet(m_folder / "sheet.json");
    EXPECT_EQ(sheet.save(SampleMenus::sheet()), std::nullopt);
    EXPECT_EQ(sheet.load(), SampleMenus::sheet());
    const JSONFile<SheetMap> sheets(m_folder / "menus.json");
    EXPECT_EQ(sheets.save({{"a", SampleMenus::sheet()}}), std::nullopt);
    EXPECT_EQ(sheets.load(), (SheetMap{{"a", SampleMenus::sheet()}}));
    const JSONFile<AnnotationBook> notes(m_folder / "notes.json");
    EXPECT_EQ(notes.save({{{"a", SampleMenus::annotations()}}}), std::nullopt);
    EXPECT_EQ(notes.load(), (AnnotationBook{{{"a", SampleMenus::annotations()}}}));
}

TEST_F(JSONFileSave, ReplacesTheFileInsteadOfWritingIntoIt) {
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    fs::create_hard_link(m_path, m_folder / "earlier");
    ASSERT_EQ(m_file.save(bookOf(2)), std::nullopt);
    EXPECT_EQ(m_file.load(), bookOf(2));
    EXPECT_EQ(JSONFile<UsageBook>(m_folder / "earlier").load(), bookOf(1));
}

TEST_F(JSONFileSave, LeavesNothingElseInTheFolder) {
    for (Count number = 0; number < 5; ++number)
        ASSERT_EQ(m_file.save(bookOf(number)), std::nullopt);
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, MakesItsFoldersForTheirOwnerAlone) {
    const fs::path path = m_folder / "data" / "app.quillon.Quillon" / "usage.json";
    EXPECT_EQ(JSONFile<UsageBook>(path).save(bookOf(1)), std::nullopt);
    EXPECT_EQ(permissionsOf(m_folder / "data"), 0700u);
    EXPECT_EQ(permissionsOf(m_folder / "data" / "app.quillon.Quillon"), 0700u);
    EXPECT_EQ(permissionsOf(path), 0600u);
}

TEST_F(JSONFileSave, LeavesAnExistingFolderAsItIs) {
    fs::permissions(m_folder.path(), fs::perms(0755));
    EXPECT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_EQ(permissionsOf(m_folder.path()), 0755u);
}

TEST_F(JSONFileSave, MakesAFilePrivateThatWasNot) {
    writeFile(m_path, "old");
    fs::permissions(m_path, fs::perms(0644));
    EXPECT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_EQ(permissionsOf(m_path), 0600u);
}

TEST_F(JSONFileSave, WorksInTheCurrentFolder) {
    EXPECT_TRUE(succeedsInChild([this] {
        fs::current_path(m_folder.path());
        const JSONFile<UsageBook> file("here.json");
        return !file.save(bookOf(3)) && file.load() == bookOf(3);
    }));
    EXPECT_THAT(m_folder.names(), ElementsAre("here.json"));
}

TEST_F(JSONFileSave, FollowsALinkAndKeepsIt) {
    fs::create_directory(m_folder / "synced");
    writeFile(m_folder / "synced" / "real.json", "old");
    fs::create_symlink("synced/real.json", m_folder / "second");
    fs::create_symlink(m_folder / "second", m_path);
    EXPECT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_TRUE(fs::is_symlink(m_folder / "second"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(m_folder / "synced" / "real.json")));
    EXPECT_EQ(JSONFile<UsageBook>(m_folder / "synced" / "real.json").load(), bookOf(1));
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("usage.json", "second", "synced"));
}

TEST_F(JSONFileSave, MakesTheFileThatALinkLeadsTo) {
    fs::create_symlink("later.json", m_path);
    EXPECT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_EQ(m_file.load(), bookOf(1));
}

TEST_F(JSONFileSave, MakesNoFolderAtTheFarEndOfALink) {
    // The folder may be a disk that is not there just now.
    fs::create_symlink(m_folder / "absent" / "real.json", m_path);
    EXPECT_THAT(m_file.save(bookOf(1)), FailsWith(Step::writing, std::errc::no_such_file_or_directory));
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, ReportsALinkToItself) {
    fs::create_symlink(m_path, m_path);
    EXPECT_THAT(m_file.save(bookOf(1)), FailsWith(Step::writing, std::errc::too_many_symbolic_link_levels));
    EXPECT_TRUE(fs::is_symlink(m_path));
}

TEST_F(JSONFileSave, NeverReplacesAFolder) {
    fs::create_directory(m_path);
    EXPECT_THAT(m_file.save(bookOf(1)), FailsWith(Step::writing, std::errc::is_a_directory));
    EXPECT_TRUE(fs::is_directory(m_path));
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, NeverReplacesAPipeOrDevice) {
    ASSERT_EQ(::mkfifo(m_path.c_str(), 0600), 0);
    EXPECT_THAT(m_file.save(bookOf(1)), FailsWith(Step::writing, std::errc::operation_not_supported));
    EXPECT_TRUE(fs::is_fifo(m_path));
    fs::remove(m_path);
    fs::create_symlink("/dev/null", m_path);
    EXPECT_THAT(m_file.save(bookOf(1)), FailsWith(Step::writing, std::errc::operation_not_supported));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(JSONFileSave, ReportsAFolderThatCannotBeMade) {
    writeFile(m_folder / "file", "in the way");
    for (const fs::path& path : {m_folder / "file" / "usage.json", m_folder / "file" / "sub" / "usage.json"})
        EXPECT_THAT(
            JSONFile<UsageBook>(path).save(bookOf(1)), FailsWith(Step::folder, std::errc::not_a_directory));
    EXPECT_EQ(contentsOf(m_folder / "file"), "in the way");
    fs::create_symlink(m_folder / "nowhere", m_folder / "link");
    EXPECT_THAT(
        JSONFile<UsageBook>(m_folder / "link" / "usage.json").save(bookOf(1)),
        FailsWith(Step::folder, std::errc::not_a_directory));
}

TEST_F(JSONFileSave, ReportsTextThatCannotBeEncoded) {
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    UsageBook broken;
    broken.typed("app", "\xff");
    EXPECT_EQ(m_file.save(broken), failure(Step::encoding, std::errc::illegal_byte_sequence));
    EXPECT_EQ(m_file.load(), bookOf(1));
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, NeverWritesWhatItWouldNotRead) {
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    UsageBook huge;
    huge.typed("app", std::string(DataFile::largestSize, 'x'));
    EXPECT_THAT(m_file.save(huge), FailsWith(Step::writing, std::errc::file_too_large));
    EXPECT_EQ(m_file.load(), bookOf(1));
}

TEST_F(JSONFileSave, AFullDiskLeavesTheEarlierFileAndNothingBeside) {
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_TRUE(succeedsInChild([this] {
        // The same as a full disk from here: a part is written, then no more.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const auto failed = m_file.save(bookOf(2, 1000));
        return failed && failed->step == Step::writing && failed->code == std::errc::file_too_large;
    }));
    EXPECT_EQ(m_file.load(), bookOf(1));
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, AReadOnlyFolderLeavesTheEarlierFile) {
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0) {
        // Root may write anywhere; be somebody else.
        ASSERT_EQ(::chown(m_folder.path().c_str(), nobody, nobody), 0);
        ASSERT_EQ(::chown(m_path.c_str(), nobody, nobody), 0);
    }
    fs::permissions(m_folder.path(), fs::perms(0500));
    EXPECT_TRUE(succeedsInChild([this] {
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            return false;
        const auto failed = m_file.save(bookOf(2));
        return failed && failed->step == Step::writing && failed->code == std::errc::permission_denied
               && m_file.load() == bookOf(1);
    }));
    fs::permissions(m_folder.path(), fs::perms(0700));
    EXPECT_EQ(m_file.load(), bookOf(1));
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

TEST_F(JSONFileSave, ReportsAFileSystemThatTakesNoFiles) {
    const auto failed = JSONFile<UsageBook>("/proc/usage.json").save(bookOf(1));
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->step, Step::writing);
}

TEST_F(JSONFileSave, SaysWhyInOneLine) {
    EXPECT_EQ(
        failure(Step::folder, std::errc::not_a_directory).message(),
        "could not make the folder: Not a directory");
    EXPECT_EQ(
        failure(Step::encoding, std::errc::illegal_byte_sequence).message(),
        "could not encode the value: Invalid or incomplete multibyte or wide character");
    EXPECT_EQ(
        failure(Step::writing, std::errc::no_space_on_device).message(),
        "could not write the file: No space left on device");
}

TEST_F(JSONFileSave, ClearsAwayWhatKilledWritersLeft) {
    const auto age = [this](const char* name, std::chrono::minutes minutes) {
        writeFile(m_folder / name, "half");
        fs::last_write_time(m_folder / name, fs::file_time_type::clock::now() - minutes);
    };
    using namespace std::chrono_literals;
    age(".usage.json.AbC123", 61min);
    age(".usage.json.zzzzzz", 59min);
    age(".usage.json.toolong", 24h);
    age(".usage.json.short", 24h);
    age(".notes.json.AbC123", 24h);
    age("usage.json.AbC123", 24h);
    ASSERT_EQ(m_file.save(bookOf(1)), std::nullopt);
    EXPECT_THAT(
        m_folder.names(), UnorderedElementsAre(
                              "usage.json", ".usage.json.zzzzzz", ".usage.json.toolong", ".usage.json.short",
                              ".notes.json.AbC123", "usage.json.AbC123"));
}

TEST_F(JSONFileSave, AReaderNeverSeesHalfAFile) {
    ASSERT_EQ(m_file.save(bookOf(0, 300)), std::nullopt);
    std::atomic<bool> done = false;
    std::vector<std::thread> writers;
    for (const Count number : {1, 2}) {
        writers.emplace_back([this, number] {
            for (int i = 0; i < 40; ++i)
                EXPECT_EQ(m_file.save(bookOf(number, 300)), std::nullopt);
        });
    }
    std::thread reader([this, &done] {
        while (!done) {
            const auto book = m_file.load();
            ASSERT_TRUE(book);
            EXPECT_EQ(*book, bookOf(book->record("app", "command 0")->typed, 300));
        }
    });
    for (std::thread& writer : writers)
        writer.join();
    done = true;
    reader.join();
    EXPECT_THAT(m_folder.names(), ElementsAre("usage.json"));
}

} // namespace
} // namespace quillon
