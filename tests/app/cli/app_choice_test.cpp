#include <quillon/app/cli/app_choice.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

const std::vector<RunningApp> apps{
    {10, "org.geany.Geany", "Geany", {}},
    {20, "libreoffice-writer", "LibreOffice Writer", {}},
    {20, "libreoffice-calc", "LibreOffice Calc", {}},
    {30, "straße", "Straße", {}},
};

TEST(AppChoice, FindsByIdAndByNameCaseBlind) {
    EXPECT_EQ(appCalled("ORG.GEANY.geany", apps), apps[0]);
    EXPECT_EQ(appCalled("geany", apps), apps[0]);
    EXPECT_EQ(appCalled("libreoffice calc", apps), apps[2]);
    EXPECT_EQ(appCalled("STRAßE", apps), apps[3]);
}

TEST(AppChoice, FindsByTheLastPartOfAnId) {
    const std::vector<RunningApp> files{{5, "org.gnome.Nautilus", "Files", {}}};
    EXPECT_EQ(appCalled("nautilus", files), files[0]);
}

TEST(AppChoice, PrefersAnExactNameToALooseOne) {
    const std::vector<RunningApp> both{{1, "org.example.edit", "Viewer", {}}, {2, "edit", "Edit", {}}};
    EXPECT_EQ(appCalled("edit", both), both[1]);
}

TEST(AppChoice, FindsNothingForPartsOfNames) {
    EXPECT_EQ(appCalled("gean", apps), std::nullopt);
    EXPECT_EQ(appCalled("", apps), std::nullopt);
}

TEST(AppChoice, FindsByProcess) {
    EXPECT_EQ(appOfProcess(20, apps), apps[1]);
    EXPECT_EQ(appOfProcess(99, apps), std::nullopt);
}

} // namespace
} // namespace quillon
