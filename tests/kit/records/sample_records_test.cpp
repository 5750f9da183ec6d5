#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(SampleRecords, TellHowTheSampleWasUsed) {
    const UsageRecords expected{
        {"File › Duplicate", {14, 1, 1, 2}},  {"File › Export…", {9, 0, 0, 0}},
        {"Object › Group", {7, 2, 0, 1}},     {"Object › Arrange › Bring to Front", {6, 0, 0, 0}},
        {"View › Show Layers", {4, 3, 0, 0}}, {"Edit › Paste in Place", {3, 0, 0, 0}},
        {"File › Save", {0, 41, 3, 0}},       {"Edit › Undo", {0, 63, 0, 0}},
        {"Edit › Copy", {1, 38, 0, 0}},
    };
    EXPECT_EQ(SampleMenus::usage(), expected);
}

TEST(SampleRecords, TellWhatWasSaidOfTheSample) {
    const Annotations expected{
        {"File › Duplicate", {true, "Makes a copy next to the original", false}},
        {"Object › Group", {true, "", false}},
        {"Edit › Paste in Place", {true, "Same spot as the copied shape", false}},
        {"View › Zoom to Fit", {false, "Handy before exporting", false}},
    };
    EXPECT_EQ(SampleMenus::annotations(), expected);
}

TEST(SampleRecords, SpeakOfCommandsThatTheSampleHas) {
    for (const auto& [id, record] : SampleMenus::usage())
        EXPECT_NE(SampleMenus::sheet().entry(id), nullptr) << id;
    for (const auto& [id, annotation] : SampleMenus::annotations())
        EXPECT_NE(SampleMenus::sheet().entry(id), nullptr) << id;
}

} // namespace
} // namespace quillon
