#include <quillon/app/platform/linux/launcher/session_settings.h>

#include <gmock/gmock.h>

#include <QProcess>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// GSettings looks for its schemas once in the life of a process.
class SchemaFolder : public testing::Environment {
  public:
    void SetUp() override {
        std::ofstream(m_folder.filePath(QStringLiteral("a.gschema.xml")).toStdString()) << R"(<schemalist>
<schema id="org.example.launcher" path="/org/example/launcher/">
<key name="one" type="s"><default>'Super_L'</default></key>
<key name="several" type="as"><default>['a', 'b']</default></key>
<key name="number" type="i"><default>1</default></key></schema>
<schema id="org.example.movable"><key name="one" type="s"><default>''</default></key></schema></schemalist>)";
        ASSERT_EQ(QProcess::execute(QStringLiteral("glib-compile-schemas"), {m_folder.path()}), 0);
        qputenv("GSETTINGS_SCHEMA_DIR", m_folder.path().toUtf8());
        qputenv("GSETTINGS_BACKEND", "memory");
    }

  private:
    QTemporaryDir m_folder;
};

const testing::Environment* const schemas = testing::AddGlobalTestEnvironment(new SchemaFolder);

class SessionSettingsTest : public testing::Test {
  protected:
    void write(const fs::path& path, const std::string& text) const {
        fs::create_directories((root / path).parent_path());
        std::ofstream(root / path) << text;
    }

    const QTemporaryDir folder;
    const fs::path root{folder.path().toStdString()};
    const LauncherSources sources = sessionSettings([this](const char* name) -> std::string {
        const std::string_view variable(name);
        return variable == "XDG_CONFIG_HOME"   ? (root / "own").string()
               : variable == "XDG_CONFIG_DIRS" ? (root / "shared").string()
                                               : "";
    });
};

TEST_F(SessionSettingsTest, TellsTheTextsOfAKey) {
    EXPECT_THAT(sources.setting("org.example.launcher", "one").value(), ElementsAre("Super_L"));
    EXPECT_THAT(sources.setting("org.example.launcher", "several").value(), ElementsAre("a", "b"));
}

TEST_F(SessionSettingsTest, WhatIsNotThereIsAbsent) {
    EXPECT_EQ(sources.setting("org.example.nowhere", "one"), std::nullopt);
    EXPECT_EQ(sources.setting("org.example.launcher", "nothing"), std::nullopt);
    EXPECT_EQ(sources.setting("org.example.launcher", "number"), std::nullopt);
    EXPECT_EQ(sources.setting("org.example.movable", "one"), std::nullopt);
    EXPECT_EQ(sources.file("kwinrc"), std::nullopt);
    EXPECT_TRUE(sources.folder("menus").empty());
}

TEST_F(SessionSettingsTest, TheUsersFileComesFirst) {
    write("shared/a/file", "shared");
    EXPECT_EQ(sources.file("a/file"), "shared");
    write("own/a/file", "own");
    EXPECT_EQ(sources.file("a/file"), "own");
}

TEST_F(SessionSettingsTest, FoldersAreListedInOrderAndNotWithoutEnd) {
    for (int number = 0; number < 100; ++number)
        write("own/menus/" + std::to_string(number), "");
    EXPECT_EQ(sources.folder("menus").size(), 16U);
}

} // namespace
} // namespace quillon
