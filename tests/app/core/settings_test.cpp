#include <quillon/app/core/settings.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace quillon {
namespace {

class SettingsTest : public testing::Test {
  protected:
    void write(const char* text) {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("settings.ini"));
};

TEST_F(SettingsTest, HaveTheirDefaultsWithoutAFile) {
    const Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::command);
    EXPECT_EQ(settings.holdDelay(), Seconds(0.8));
    EXPECT_TRUE(settings.nudgesOn());
    EXPECT_TRUE(settings.countTyped());
    EXPECT_FALSE(settings.onboarded());
}

TEST_F(SettingsTest, AreThereForTheNextStart) {
    {
        Settings settings(m_path);
        settings.setTrigger(TriggerKey::option);
        settings.setHoldDelay(Seconds(1.5));
        settings.setNudgesOn(false);
        settings.setCountTyped(false);
        settings.setOnboarded(true);
    }
    const Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::option);
    EXPECT_EQ(settings.holdDelay(), Seconds(1.5));
    EXPECT_FALSE(settings.nudgesOn());
    EXPECT_FALSE(settings.countTyped());
    EXPECT_TRUE(settings.onboarded());
}

TEST_F(SettingsTest, AreInTheFileTheMomentTheyAreSet) {
    Settings settings(m_path);
    settings.setTrigger(TriggerKey::control);
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::control);
}

TEST_F(SettingsTest, ReadMistypedValuesAsTheirDefaults) {
    write("[General]\ntrigger=shift\nholdDelay=long\nnudgesOn=7\ncountTyped=\nonboarded=yes\n");
    const Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::command);
    EXPECT_EQ(settings.holdDelay(), Seconds(0.8));
    EXPECT_TRUE(settings.nudgesOn());
    EXPECT_TRUE(settings.countTyped());
    EXPECT_FALSE(settings.onboarded());
}

TEST_F(SettingsTest, TakeNoInfiniteDelay) {
    write("[General]\nholdDelay=inf\n");
    EXPECT_EQ(Settings(m_path).holdDelay(), Seconds(0.8));
}

TEST_F(SettingsTest, SurviveABrokenFile) {
    write("\x01\x02[[[===\n\xff\xfe");
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::command);
}

} // namespace
} // namespace quillon
