#include <quillon/app/cli/app_choice.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

ListedApp
listed(std::int64_t pid, std::string id, std::string name, std::vector<std::string> otherNames = {}) {
    return {{pid, std::move(id), std::move(name), {}}, "", std::move(otherNames)};
}

const std::vector<ListedApp> apps{
    listed(10, "org.geany.Geany", "Geany"),
    listed(20, "libreoffice-writer", "LibreOffice Writer", {"soffice.bin", "libreoffice"}),
    listed(20, "libreoffice-calc", "LibreOffice Calc", {"soffice.bin", "libreoffice"}),
    listed(30, "straße", "Straße"),
    listed(40, "com.obsproject.Studio", "OBS Studio", {"obs"}),
};

TEST(AppChoice, FindsByIdAndByNameCaseBlind) {
    EXPECT_EQ(appCalled("ORG.GEANY.geany", apps), apps[0].app);
    EXPECT_EQ(appCalled("geany", apps), apps[0].app);
    EXPECT_EQ(appCalled("libreoffice calc", apps), apps[2].app);
    EXPECT_EQ(appCalled("STRAßE", apps), apps[3].app);
}

TEST(AppChoice, FindsByTheLastPartOfAnId) {
    const std::vector<ListedApp> files{listed(5, "org.gnome.Nautilus", "Files")};
    EXPECT_EQ(appCalled("nautilus", files), files[0].app);
}

TEST(AppChoice, PrefersAnExactNameToALooseOne) {
    const std::vector<ListedApp> both{listed(1, "org.example.edit", "Viewer"), listed(2, "edit", "Edit")};
    EXPECT_EQ(appCalled("edit", both), both[1].app);
}

TEST(AppChoice, FindsByTheNameOfTheProgramOrOfAWindowsClass) {
    EXPECT_EQ(appCalled("OBS", apps), apps[4].app);
    EXPECT_EQ(appCalled("soffice.bin", apps), apps[1].app) << "the topmost of several";
}

TEST(AppChoice, PrefersIdsAndNamesToOtherNames) {
    const std::vector<ListedApp> two{
        listed(1, "com.example.Launcher", "Launcher", {"edit"}), listed(2, "org.example.edit", "Viewer")};
    EXPECT_EQ(appCalled("edit", two), two[1].app);
}

TEST(AppChoice, FindsNothingForPartsOfNames) {
    EXPECT_EQ(appCalled("gean", apps), std::nullopt);
    EXPECT_EQ(appCalled("", apps), std::nullopt);
}

TEST(AppChoice, FindsByProcess) {
    EXPECT_EQ(appOfProcess(20, apps), apps[1].app);
    EXPECT_EQ(appOfProcess(99, apps), std::nullopt);
}

} // namespace
} // namespace quillon
