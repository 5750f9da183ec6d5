#include <quillon/kit/menu/menu_group.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <unordered_set>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MenuEntry entryAt(std::vector<std::string> path) {
    return {std::move(path), {Modifiers::command, Key::character("K")}, true};
}

std::vector<std::string> idsOf(const MenuGroup& group) {
    std::vector<std::string> ids;
    ids.reserve(group.entries.size());
    for (const MenuEntry& entry : group.entries)
        ids.push_back(entry.id());
    return ids;
}

TEST(MenuGroup, CollectsEntriesThatAreNotNeighbours) {
    const auto groups = MenuGroup::group(std::vector{
        entryAt({"File", "Open"}), entryAt({"Edit", "Copy"}), entryAt({"File", "Save"}), entryAt({}),
        entryAt({"Edit", "Find", "Next"}), entryAt({"", "Odd"})});
    ASSERT_EQ(groups.size(), 3u);
    EXPECT_EQ(groups[0].id(), "File");
    EXPECT_THAT(idsOf(groups[0]), ElementsAre("File › Open", "File › Save"));
    EXPECT_EQ(groups[1].id(), "Edit");
    EXPECT_THAT(idsOf(groups[1]), ElementsAre("Edit › Copy", "Edit › Find › Next"));
    EXPECT_EQ(groups[2].id(), "");
    EXPECT_THAT(idsOf(groups[2]), ElementsAre("", " › Odd"));
}

TEST(MenuGroup, OfNothingIsNothing) {
    EXPECT_THAT(MenuGroup::group({}), IsEmpty());
}

TEST(MenuGroup, KeepsEveryEntryOnceAndInOrder) {
    RandomValues random(21);
    for (int round = 0; round < 200; ++round) {
        const std::vector<MenuEntry> entries = random.entries(random.number(0, 60));
        const std::vector<MenuGroup> groups = MenuGroup::group(entries);
        std::set<std::string> menus;
        std::size_t total = 0;
        for (const MenuGroup& group : groups) {
            EXPECT_TRUE(menus.insert(group.menu).second) << "two groups of one menu";
            std::vector<MenuEntry> expected;
            std::ranges::copy_if(entries, std::back_inserter(expected), [&group](const MenuEntry& entry) {
                return entry.menu() == group.menu;
            });
            EXPECT_EQ(group.entries, expected);
            total += group.entries.size();
        }
        EXPECT_EQ(total, entries.size());
        auto from = entries.begin();
        for (const MenuGroup& group : groups) {
            from = std::ranges::find_if(
                entries, [&group](const MenuEntry& e) { return e.menu() == group.menu; });
            EXPECT_TRUE(std::ranges::none_of(entries.begin(), from, [&](const MenuEntry& earlier) {
                return std::ranges::none_of(groups.data(), &group, [&](const MenuGroup& before) {
                    return before.menu == earlier.menu();
                });
            })) << "groups come in order of first appearance";
        }
    }
}

TEST(MenuGroup, ComparesAndHashesByBothFields) {
    const MenuGroup file{"File", {entryAt({"File", "Save"})}};
    const std::unordered_set<MenuGroup> set{file, file, {"File", {}}, {"Edit", file.entries}};
    EXPECT_EQ(set.size(), 3u);
}

} // namespace
} // namespace quillon
