#include "app_model_learning_fixture.h"

#include <quillon/tests/app/core/support/menu_clicks.h>

#include <sys/resource.h>

#include <array>
#include <csignal>
#include <vector>

namespace quillon {
namespace {

namespace fs = std::filesystem;

/// No file gets larger than `bytes` while this lives, as on a disk that is full, whoever the test runs as.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit tiny{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tiny);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

  private:
    void (*m_handler)(int);
    rlimit m_before{};
};

class AppModelBadDaysTest : public AppModelLearningTest {
  protected:
    static constexpr std::array files{"usage.json", "notes.json", "menus.json", "weeks.json"};

    static MenuEntry command(const std::string& title) {
        return {.path = {"File", title}, .shortcut = Shortcut(Modifiers::command, Key::character("A"))};
    }
    void click(const std::string& title) { tellClick(desktop.menuUse, sketch, command(title)); }
    void press(const std::string& letter) {
        desktop.typedKeys.press({.characters = letter, .keyCode = 0, .modifiers = Modifiers::command});
    }
    Count clicked(const AppModel& model, const std::string& title) const {
        return model.usage().record(sketch.bundleID, command(title).id()).value_or(UsageRecord{}).clicked;
    }
    /// What a next run finds of the clicks.
    Count clickedInNextRun(const std::string& title) {
        const auto next = modelOver(data);
        next->start();
        return clicked(*next, title);
    }
    std::vector<std::string> contents() const {
        std::vector<std::string> all;
        for (const char* name : files)
            all.push_back(read(name));
        return all;
    }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(data), {}));
    }
};

TEST_F(AppModelBadDaysTest, ABrokenFileIsKeptBeforeAnythingIsWrittenOverIt) {
    for (const char* name : files) {
        fs::remove_all(data);
        for (const char* each : files)
            write(each, R"({"apps":{}})");
        write("menus.json", "{}");
        write(name, "broken");
        const auto model = startedModel();
        model->savePending();
        EXPECT_EQ(read(std::string(name) + ".broken"), "broken") << name;
        EXPECT_NE(read(name), "broken") << name;
        EXPECT_EQ(filesInFolder(), 1 + files.size()) << name << ": no other is set aside";
    }
}

TEST_F(AppModelBadDaysTest, WhatIsLearnedAfterABrokenStartIsSaved) {
    write("usage.json", "{\"apps\":{\"org.example.sketch\":{");
    const auto model = startedModel();
    EXPECT_EQ(model->usage(), UsageBook());
    click("Save");
    EXPECT_FALSE(fs::exists(data / "usage.json.broken")) << "nothing is touched before the save";
    pass(Seconds(1));
    EXPECT_EQ(read("usage.json.broken"), "{\"apps\":{\"org.example.sketch\":{");
    EXPECT_EQ(clickedInNextRun("Save"), 1);
}

TEST_F(AppModelBadDaysTest, AFullDiskKeepsTheFilesAndTheNextChangeSavesAll) {
    const auto model = startedModel();
    click("Save");
    pass(Seconds(1));
    const std::vector<std::string> before = contents();
    {
        const FullDisk full(16);
        click("Print");
        pass(Seconds(5));
    }
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(filesInFolder(), files.size());
    EXPECT_EQ(clicked(*model, "Print"), 1);
    pass(Seconds(5));
    EXPECT_EQ(contents(), before) << "not tried again before the next change";
    click("Save");
    pass(Seconds(1));
    EXPECT_EQ(clickedInNextRun("Print"), 1);
    EXPECT_EQ(clickedInNextRun("Save"), 2);
}

TEST_F(AppModelBadDaysTest, APinThatAFullDiskDidNotTakeIsSavedWithTheNextChange) {
    const auto model = startedModel();
    model->savePending();
    model->togglePin(sketch.bundleID, save);
    {
        const FullDisk full(16);
        model->savePending();
    }
    click("Save");
    pass(Seconds(1));
    const auto next = modelOver(data);
    next->start();
    EXPECT_TRUE(next->annotations().get(sketch.bundleID, save).pinned);
}

TEST_F(AppModelBadDaysTest, SheetsThatAFullDiskDidNotTakeAreSavedWithTheNextChange) {
    const auto model = startedModel();
    model->savePending();
    desktop.menus.answer(sketch.bundleID, {menuBarOf(9), ReadOutcome::complete});
    desktop.front.activate(sketch);
    desktop.background.runAll();
    {
        const FullDisk full(16);
        model->savePending();
    }
    click("Save");
    pass(Seconds(1));
    const auto next = modelOver(data);
    next->start();
    EXPECT_EQ(next->sheets().at(sketch.bundleID)->entries.size(), 9U);
}

TEST_F(AppModelBadDaysTest, AFullDiskAtABrokenStartLosesNeitherFileNorMemory) {
    write("usage.json", "broken");
    const auto model = startedModel();
    click("Save");
    {
        const FullDisk full(16);
        pass(Seconds(1));
    }
    EXPECT_EQ(read("usage.json.broken"), "broken");
    click("Print");
    pass(Seconds(1));
    EXPECT_EQ(read("usage.json.broken"), "broken");
    EXPECT_FALSE(fs::exists(data / "usage.json.broken-2"));
    EXPECT_EQ(clickedInNextRun("Save"), 1);
    EXPECT_EQ(clickedInNextRun("Print"), 1);
}

TEST_F(AppModelBadDaysTest, AFolderThatCannotBeMadeIsTriedAgainAtTheNextChange) {
    std::ofstream(data) << "in the way";
    const auto model = startedModel();
    click("Save");
    pass(Seconds(1));
    EXPECT_TRUE(fs::is_regular_file(data));
    EXPECT_EQ(clicked(*model, "Save"), 1);
    fs::remove(data);
    click("Print");
    pass(Seconds(1));
    EXPECT_EQ(clickedInNextRun("Save"), 1);
}

TEST_F(AppModelBadDaysTest, AFolderThatIsDeletedComesBackWithAllThatWasLearned) {
    const auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    click("Save");
    pass(Seconds(1));
    fs::remove_all(data);
    click("Print");
    pass(Seconds(1));
    EXPECT_EQ(filesInFolder(), files.size());
    const auto next = modelOver(data);
    next->start();
    EXPECT_EQ(clicked(*next, "Save"), 1);
    EXPECT_EQ(clicked(*next, "Print"), 1);
    EXPECT_TRUE(next->annotations().get(sketch.bundleID, save).pinned);
    EXPECT_EQ(next->sheets(), model->sheets());
}

TEST_F(AppModelBadDaysTest, ACrashLosesNoMoreThanTheLastSecond) {
    auto model = startedModel();
    click("Save");
    pass(Seconds(1));
    click("Print");
    pass(Seconds(0.9));
    model.reset();
    EXPECT_EQ(clickedInNextRun("Save"), 1);
    EXPECT_EQ(clickedInNextRun("Print"), 0);
}

TEST_F(AppModelBadDaysTest, AnOrderlyEndLosesNothingOfAStreamOfChanges) {
    const auto model = startedModel();
    for (int number = 0; number < 100; ++number) {
        press("a");
        pass(Seconds(0.9));
    }
    EXPECT_FALSE(isStored()) << "each change puts the save off";
    model->savePending();
    const auto next = modelOver(data);
    next->start();
    EXPECT_EQ(next->usage().record(sketch.bundleID, save)->typed, 100);
}

TEST_F(AppModelBadDaysTest, TenThousandClicksAndPressesAreCountedExactlyAndSavedOnce) {
    const auto model = startedModel();
    model->savePending();
    fs::remove_all(data);
    const std::size_t timers = desktop.timers.running();
    for (int number = 0; number < 10'000; ++number) {
        click("Command " + std::to_string(number % 10));
        press("b");
        desktop.clock.advance(Seconds(0.1)); // a second between two clicks on one command
        EXPECT_LE(desktop.timers.running(), timers + 2) << "the save and the toast's end";
    }
    EXPECT_FALSE(isStored());
    pass(Seconds(1));
    EXPECT_TRUE(isStored());
    const auto next = modelOver(data);
    next->start();
    for (int number = 0; number < 10; ++number)
        EXPECT_EQ(clicked(*next, "Command " + std::to_string(number)), 1'000) << number;
    EXPECT_EQ(next->usage().record(sketch.bundleID, "File › Command b")->typed, 10'000);
    fs::remove_all(data);
    pass(Seconds(10));
    EXPECT_FALSE(isStored()) << "one save was enough";
    EXPECT_EQ(panels.panelsMade, 1);
}

TEST_F(AppModelBadDaysTest, AnHourOfWorkIsCountedExactlyAndLeavesNothingBehind) {
    desktop.menus.answer(writer.bundleID, {menuBarOf(2), ReadOutcome::complete});
    const auto model = startedModel();
    pass(Seconds(5));
    fs::remove_all(data);
    const std::size_t timers = desktop.timers.running();
    Count clicks = 0;
    Count presses = 0;
    int saves = 0;
    for (int second = 1; second <= 3600; ++second) {
        if (second % 120 == 0) {
            desktop.front.activate(second % 240 == 0 ? sketch : writer);
            desktop.background.runAll();
        }
        if (second % 60 == 0) {
            click("Save");
            ++clicks;
        }
        for (int burst = 0; second % 45 == 0 && burst < 10; ++burst) {
            press("b");
            ++presses;
        }
        pass(Seconds(1));
        if (isStored()) {
            ++saves;
            fs::remove_all(data);
        }
    }
    const UsageBook& usage = model->usage();
    EXPECT_EQ(clicked(*model, "Save"), clicks);
    EXPECT_EQ(usage.totals(sketch.bundleID).typed + usage.totals(writer.bundleID).typed, presses);
    EXPECT_GT(usage.totals(writer.bundleID).typed, 0);
    EXPECT_EQ(saves, 3600 / 60 + 3600 / 45 - 3600 / 180) << "one for each second in which something changed";
    pass(Seconds(5));
    EXPECT_EQ(desktop.timers.running(), timers);
    EXPECT_EQ(desktop.menuUse.monitors(), 1U);
    EXPECT_EQ(desktop.typedKeys.monitors(), 1U);
    EXPECT_EQ(desktop.keyboard.monitors(), 1U);
    EXPECT_EQ(desktop.front.listeners(), 1U);
    EXPECT_EQ(desktop.access.listeners(), 1U);
    EXPECT_EQ(panels.panelsMade, 1);
}

TEST_F(AppModelBadDaysTest, AnApplicationThatDiesWithItsMenuOpenIsForgotten) {
    const auto model = startedModel();
    desktop.menuUse.tell(menu_use::Opened{writer});
    desktop.menuUse.tell(menu_use::Pointed{1});
    desktop.menuUse.tell(menu_use::Closed{});
    pass(Seconds(5));
    click("Save");
    EXPECT_EQ(clicked(*model, "Save"), 1);
    EXPECT_EQ(model->usage().totals(writer.bundleID).clicked, 0);
}

} // namespace
} // namespace quillon
