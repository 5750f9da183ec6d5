#include <quillon/app/core/updates/update_memory.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant someTime = std::chrono::sys_days{std::chrono::year{2024} / 5 / 1} + std::chrono::hours{9};

class UpdateMemoryTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.ini"_s);
};

TEST_F(UpdateMemoryTest, BeginsWithNothing) {
    const UpdateMemory memory(path);
    EXPECT_EQ(memory.lastCheck(), std::nullopt);
    EXPECT_EQ(memory.dismissed(), "");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(UpdateMemoryTest, KeepsWhatItWasGiven) {
    {
        UpdateMemory memory(path);
        memory.setLastCheck(someTime + std::chrono::milliseconds(700));
        memory.setDismissed("1.3-beta");
    }
    const UpdateMemory memory(path);
    EXPECT_EQ(memory.lastCheck(), someTime) << "in whole seconds";
    EXPECT_EQ(memory.dismissed(), "1.3-beta");
}

TEST_F(UpdateMemoryTest, LeavesTheSettingsBesideItAlone) {
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(u"trigger"_s, u"option"_s);
    UpdateMemory memory(path);
    memory.setDismissed("1.3");
    settings.setValue(u"holdDelay"_s, 0.5);
    settings.sync();
    EXPECT_EQ(UpdateMemory(path).dismissed(), "1.3");
    EXPECT_EQ(QSettings(path, QSettings::IniFormat).value(u"trigger"_s).toString(), u"option"_s);
}

TEST_F(UpdateMemoryTest, WhatCannotBeReadIsNothing) {
    QSettings(path, QSettings::IniFormat).setValue(u"updatesCheckedAt"_s, u"yesterday"_s);
    EXPECT_EQ(UpdateMemory(path).lastCheck(), std::nullopt);
}

TEST_F(UpdateMemoryTest, WithoutAFileItRemembersUntilTheEnd) {
    UpdateMemory memory{QString()};
    memory.setLastCheck(someTime);
    memory.setDismissed("2");
    EXPECT_EQ(memory.lastCheck(), someTime);
    EXPECT_EQ(memory.dismissed(), "2");
}

} // namespace
} // namespace quillon
