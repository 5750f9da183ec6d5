#include <quillon/app/platform/linux/atspi/item_facts.h>
#include <quillon/kit/menu/menu_parser.h>

#include <gmock/gmock.h>

#include <vector>

namespace quillon::atspi {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

RawMenuItem command(const std::string& title, std::optional<std::string> character = "S") {
    RawMenuItem item;
    item.title = title;
    if (character)
        item.cmdModifiers = 0;
    item.cmdChar = std::move(character);
    return item;
}

TEST(ItemFactsTest, PathAndShortcutAreThoseOfTheSheet) {
    const std::vector<std::string> menus{"File "};
    const RawMenuItem item = command("Save\u00a0As…  ");
    RawMenuItem menu = command("File ", std::nullopt);
    menu.children = {command("New", "N"), item};
    const auto sheet = MenuParser::entries({&menu, 1}, MenuParser::defaultMaxDepth);
    const MenuItemFacts facts = factsOf(menus, item);
    ASSERT_EQ(sheet.size(), 2U);
    EXPECT_EQ(facts.path, sheet[1].path);
    EXPECT_EQ(facts.shortcut, sheet[1].shortcut);
    EXPECT_THAT(facts.path, ElementsAre("File", "Save As…"));
}

TEST(ItemFactsTest, AnItemWithoutAShortcutHasItsPathAllTheSame) {
    const MenuItemFacts facts = factsOf(std::vector<std::string>{"File"}, command("Print", std::nullopt));
    EXPECT_THAT(facts.path, ElementsAre("File", "Print"));
    EXPECT_FALSE(facts.shortcut);
}

TEST(ItemFactsTest, WhatCannotBeUsedSaysSo) {
    RawMenuItem item = command("Undo", "Z");
    item.enabled = false;
    EXPECT_FALSE(factsOf(std::vector<std::string>{"Edit"}, item).enabled);
}

TEST(ItemFactsTest, WhatTheSheetCannotHaveHasNoPath) {
    EXPECT_THAT(factsOf(std::vector<std::string>{"File"}, command(" ")).path, IsEmpty());
    EXPECT_THAT(factsOf(std::vector<std::string>{"a", "b", "c", "d", "e"}, command("f")).path, IsEmpty());
    EXPECT_FALSE(factsOf(std::vector<std::string>{"a", "b", "c", "d", "e"}, command("f")).shortcut);
}

TEST(ItemFactsTest, ATopLevelTitleIsNoCommand) {
    EXPECT_THAT(factsOf({}, command("File")).path, IsEmpty());
}

} // namespace
} // namespace quillon::atspi
