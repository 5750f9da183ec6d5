#include <quillon/app/core/data_folder.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quillon {
namespace {

namespace fs = std::filesystem;

class DataFolderTest : public testing::Test {
  protected:
    DataFolderTest() {
        learned.usage.typed("app", "File › Save");
        learned.annotations.togglePin("app", "File › Save");
        learned.weeks.typed("app", Day());
        const MenuEntry save{
            .path = {"File", "Save"}, .shortcut = Shortcut(Modifiers::command, Key::character("S"))};
        learned.sheets.emplace("app", SharedSheet({"app", "App", {save}, distantPast}));
    }
    void write(const char* name, const std::string& text) const {
        fs::create_directories(path);
        std::ofstream(path / name) << text;
    }
    std::string read(const char* name) const {
        std::ifstream file(path / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void save(DataFolder& to) const { to.save(learned); }

    QTemporaryDir folder;
    const fs::path path = fs::path(folder.path().toStdString()) / "app.quillon.Quillon";
    LearnedData learned;
    DataFolder data{path};
};

TEST_F(DataFolderTest, IsEmptyBeforeTheFirstSave) {
    EXPECT_EQ(data.load(), LearnedData());
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(DataFolderTest, GivesBackWhatWasSaved) {
    save(data);
    EXPECT_EQ(DataFolder(path).load(), learned);
    for (const char* name : {"usage.json", "notes.json", "menus.json", "weeks.json"})
        EXPECT_TRUE(fs::exists(path / name)) << name;
}

TEST_F(DataFolderTest, ABrokenFileCountsAsNoneAndIsKeptBesideTheNewOne) {
    save(data);
    write("usage.json", "[]");
    DataFolder next(path);
    const LearnedData loaded = next.load();
    EXPECT_EQ(loaded.usage, UsageBook());
    EXPECT_EQ(loaded.annotations, learned.annotations);
    EXPECT_FALSE(fs::exists(path / "usage.json.broken")) << "nothing is touched before it is written over";
    save(next);
    EXPECT_EQ(read("usage.json.broken"), "[]");
    EXPECT_FALSE(fs::exists(path / "notes.json.broken"));
    EXPECT_EQ(DataFolder(path).load(), learned);
}

TEST_F(DataFolderTest, EachBrokenFileIsKept) {
    for (const char* text : {"first", "second"}) {
        write("menus.json", text);
        DataFolder next(path);
        EXPECT_TRUE(next.load().sheets.empty());
        save(next);
        save(next);
    }
    EXPECT_EQ(read("menus.json.broken"), "first");
    EXPECT_EQ(read("menus.json.broken-2"), "second");
    EXPECT_FALSE(fs::exists(path / "menus.json.broken-3"));
}

TEST_F(DataFolderTest, ABrokenFileThatALinkLeadsToIsKeptAndTheLinkToo) {
    write("elsewhere.json", "broken");
    fs::create_symlink(path / "elsewhere.json", path / "notes.json");
    data.load();
    save(data);
    EXPECT_EQ(read("notes.json.broken"), "broken");
    EXPECT_TRUE(fs::is_symlink(path / "notes.json"));
    EXPECT_EQ(DataFolder(path).load(), learned);
}

TEST_F(DataFolderTest, WritesUsageThenNotesThenMenus) {
    for (const auto& [first, second] :
         {std::pair("usage.json", "notes.json"), std::pair("notes.json", "menus.json")}) {
        fs::remove_all(path);
        fs::create_directories(path);
        fs::create_symlink("both.json", path / first);
        fs::create_symlink("both.json", path / second);
        DataFolder(path).save(learned);
        const std::string both = read("both.json");
        fs::remove(path / first);
        fs::remove(path / second);
        DataFolder(path).save(learned);
        EXPECT_EQ(both, read(second)) << "what is written last stays";
        EXPECT_NE(both, read(first));
    }
}

TEST_F(DataFolderTest, AFailureDoesNotKeepTheOtherFilesFromBeingWritten) {
    fs::create_directories(path / "usage.json");
    data.load();
    save(data);
    const LearnedData loaded = DataFolder(path).load();
    EXPECT_EQ(loaded.annotations, learned.annotations);
    EXPECT_EQ(loaded.sheets, learned.sheets);
}

TEST_F(DataFolderTest, IsGoneWhenItIsErasedUntilTheNextSave) {
    save(data);
    data.erase();
    EXPECT_FALSE(fs::exists(path));
    save(data);
    EXPECT_EQ(DataFolder(path).load(), learned);
}

TEST_F(DataFolderTest, WhatCameBackAfterTheErasingIsWrittenOver) {
    save(data);
    const std::string notes = read("notes.json");
    const std::string menus = read("menus.json");
    data.erase();
    write("notes.json", notes);
    write("menus.json", menus);
    data.save({});
    EXPECT_EQ(DataFolder(path).load(), LearnedData());
}

TEST_F(DataFolderTest, WithoutAPathNothingIsReadOrWritten) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path().toStdString());
    DataFolder none{fs::path()};
    save(none);
    none.erase();
    EXPECT_EQ(none.load(), LearnedData());
    EXPECT_TRUE(fs::is_empty(folder.path().toStdString()));
    fs::current_path(before);
}

} // namespace
} // namespace quillon
