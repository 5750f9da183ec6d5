#include <quillon/app/core/settings.h>
#include <quillon/app/core/settings_store.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <limits>
#include <vector>

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
    EXPECT_EQ(settings.keyLabels(), KeyLabels::symbols);
    EXPECT_EQ(settings.settingsTab(), SettingsTab::general);
}

TEST_F(SettingsTest, AreThereForTheNextStart) {
    {
        Settings settings(m_path);
        settings.setTrigger(TriggerKey::option);
        settings.setHoldDelay(Seconds(1.5));
        settings.setNudgesOn(false);
        settings.setCountTyped(false);
        settings.setOnboarded(true);
        settings.setKeyLabels(KeyLabels::names);
        settings.setSettingsTab(SettingsTab::privacy);
    }
    const Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::option);
    EXPECT_EQ(settings.holdDelay(), Seconds(1.5));
    EXPECT_FALSE(settings.nudgesOn());
    EXPECT_FALSE(settings.countTyped());
    EXPECT_TRUE(settings.onboarded());
    EXPECT_EQ(settings.keyLabels(), KeyLabels::names);
    EXPECT_EQ(settings.settingsTab(), SettingsTab::privacy);
}

TEST_F(SettingsTest, AreInTheFileTheMomentTheyAreSet) {
    Settings settings(m_path);
    settings.setTrigger(TriggerKey::control);
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::control);
}

TEST_F(SettingsTest, ReadMistypedValuesAsTheirDefaults) {
    write("[General]\ntrigger=shift\nholdDelay=long\nnudgesOn=7\ncountTyped=\nonboarded=yes\nkeyLabels="
          "runes\nsettingsTab=9\n");
    const Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::command);
    EXPECT_EQ(settings.holdDelay(), Seconds(0.8));
    EXPECT_TRUE(settings.nudgesOn());
    EXPECT_TRUE(settings.countTyped());
    EXPECT_FALSE(settings.onboarded());
    EXPECT_EQ(settings.keyLabels(), KeyLabels::symbols);
    EXPECT_EQ(settings.settingsTab(), SettingsTab::general);
}

TEST_F(SettingsTest, TakeNoInfiniteDelay) {
    write("[General]\nholdDelay=inf\n");
    EXPECT_EQ(Settings(m_path).holdDelay(), Seconds(0.8));
}

TEST_F(SettingsTest, TakeNoDelayBelowZero) {
    write("[General]\nholdDelay=-0.5\n");
    EXPECT_EQ(Settings(m_path).holdDelay(), Seconds(0.8));
    write("[General]\nholdDelay=nan\n");
    EXPECT_EQ(Settings(m_path).holdDelay(), Seconds(0.8));
    write("[General]\nholdDelay=0\n");
    EXPECT_EQ(Settings(m_path).holdDelay(), Seconds(0));
}

TEST_F(SettingsTest, KeepTheDelayThatTheyHaveWhenGivenOneThatIsNone) {
    Settings settings(m_path);
    settings.setHoldDelay(Seconds(-1));
    settings.setHoldDelay(Seconds(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(settings.holdDelay(), Seconds(0.8));
}

TEST_F(SettingsTest, TellWhichOfThemGotAnotherValue) {
    Settings settings(m_path);
    std::vector<Setting> told;
    const Subscription subscription =
        settings.changed.subscribe([&](Setting setting) { told.push_back(setting); });
    settings.setNudgesOn(false);
    settings.setNudgesOn(false);
    settings.setTrigger(TriggerKey::control);
    EXPECT_EQ(told, (std::vector{Setting::nudgesOn, Setting::trigger}));
}

TEST_F(SettingsTest, AreNotKeptWithoutAPath) {
    {
        Settings settings{QString()};
        settings.setTrigger(TriggerKey::control);
        EXPECT_EQ(settings.trigger(), TriggerKey::control);
    }
    EXPECT_EQ(Settings(QString()).trigger(), TriggerKey::command);
}

TEST_F(SettingsTest, DoNotWaitForAPipe) {
    ASSERT_EQ(mkfifo(m_path.toLocal8Bit().constData(), 0600), 0);
    Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::command);
    settings.setTrigger(TriggerKey::option);
    EXPECT_EQ(settings.trigger(), TriggerKey::option) << "until the end of the program";
}

TEST_F(SettingsTest, DoNotReadADevice) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), m_path));
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::command);
}

TEST_F(SettingsTest, DoNotReadAFileThatIsFarTooLarge) {
    write("[General]\ntrigger=option\n");
    ASSERT_TRUE(QFile::resize(m_path, largestSettingsFile));
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::option);
    ASSERT_TRUE(QFile::resize(m_path, largestSettingsFile + 1));
    Settings settings(m_path);
    EXPECT_EQ(settings.trigger(), TriggerKey::command);
    settings.setTrigger(TriggerKey::control);
    EXPECT_EQ(QFileInfo(m_path).size(), largestSettingsFile + 1) << "it is not this program's to write over";
}

TEST_F(SettingsTest, SurviveABrokenFile) {
    write("\x01\x02[[[===\n\xff\xfe");
    EXPECT_EQ(Settings(m_path).trigger(), TriggerKey::command);
}

} // namespace
} // namespace quillon
