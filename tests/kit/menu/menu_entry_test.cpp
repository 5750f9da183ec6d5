#include <quillon/kit/menu/menu_entry.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <unordered_set>
#include <vector>

namespace quillon {
namespace {

using M = Modifiers;

MenuEntry entryAt(std::vector<std::string> path) {
    return {std::move(path), {M::command, Key::character("K")}, true};
}

TEST(MenuEntry, NamesItsParts) {
    struct Row {
        std::vector<std::string> path;
        const char* id;
        const char* menu;
        const char* title;
        const char* submenuPath;
    };
    for (const Row& row : std::vector<Row>{
             {{}, "", "", "", ""},
             {{"File"}, "File", "File", "File", ""},
             {{"File", "Save"}, "File › Save", "File", "Save", ""},
             {{"Edit", "Find", "Find Next"}, "Edit › Find › Find Next", "Edit", "Find Next", "Find"},
             {{"Object", "Arrange", "Align", "Left"},
              "Object › Arrange › Align › Left",
              "Object",
              "Left",
              "Arrange › Align"},
             {{"", ""}, " › ", "", "", ""}}) {
        const MenuEntry entry = entryAt(row.path);
        EXPECT_EQ(entry.id(), row.id);
        EXPECT_EQ(entry.menu(), row.menu);
        EXPECT_EQ(entry.title(), row.title);
        EXPECT_EQ(entry.submenuPath(), row.submenuPath);
    }
}

TEST(MenuEntry, SeparatesItsPathByASpacedGuillemet) {
    EXPECT_EQ(pathSeparator, " \xe2\x80\xba ");
}

TEST(MenuEntry, KnowsItsIdWithoutBuildingIt) {
    const MenuEntry entry = entryAt({"File", "Save"});
    EXPECT_TRUE(entry.hasId("File › Save"));
    for (const char* other :
         {"", "File", "File › ", "File › Sav", "File › Save ", "File > Save", "Fil", "File › Save › Save",
          " › File › Save"})
        EXPECT_FALSE(entry.hasId(other)) << other;
    EXPECT_TRUE(entryAt({}).hasId(""));
    EXPECT_FALSE(entryAt({}).hasId("x"));
}

TEST(MenuEntry, HasIdAgreesWithItsId) {
    RandomValues random(11);
    for (int round = 0; round < 2000; ++round) {
        const MenuEntry entry = random.entry();
        const MenuEntry other = random.entry();
        EXPECT_TRUE(entry.hasId(entry.id()));
        EXPECT_EQ(entry.hasId(other.id()), entry.id() == other.id());
    }
}

TEST(MenuEntry, SearchTermsSpellTheShortcutInEveryWay) {
    const auto terms = [](M modifiers, const char* character) {
        return searchTerms({modifiers, Key::character(character)});
    };
    EXPECT_EQ(
        terms(M::control | M::option | M::command, "K"), "⌃⌥⌘k control option command k cmd opt alt ctrl");
    EXPECT_EQ(terms(M::shift | M::command, "S"), "⇧⌘s shift command s cmd");
    EXPECT_EQ(terms(M::shift, "S"), "⇧s shift s");
    EXPECT_EQ(terms(M::option, "1"), "⌥1 option 1 opt alt");
    EXPECT_EQ(terms(M::control, "É"), "⌃é control é ctrl");
    EXPECT_EQ(terms(M(), ","), ", comma");
    EXPECT_EQ(searchTerms({M::command, Key::special(SpecialKey::pageUp)}), "⌘⇞ command page up cmd");
}

TEST(MenuEntry, SearchTextIsPathAndTerms) {
    const MenuEntry entry{
        {"Object", "Arrange", "Bring to Front"}, {M::shift | M::command, Key::character("]")}, true};
    EXPECT_EQ(entry.searchText(), "Object Arrange Bring to Front ⇧⌘] shift command right bracket cmd");
    EXPECT_EQ(entryAt({}).searchText(), " ⌘k command k cmd");
}

TEST(MenuEntry, ElevenShortcutsBelongToTheSystem) {
    const std::set<std::string> reserved{"⌃⌘Q", "⌘⇥",  "⇧⌘⇥", "⌘Space", "⌃⌘Space", "⌥⌘Space",
                                         "⇧⌘3", "⇧⌘4", "⇧⌘5", "⌥⌘⎋",    "⌥⌘D"};
    std::set<std::string> found;
    std::vector<Key> keys;
    keys.reserve(200);
    for (const SpecialKey key : allSpecialKeys)
        keys.push_back(Key::special(key));
    for (char character = '!'; character < 0x7f; ++character)
        keys.push_back(Key::character(std::string(1, character)));
    for (std::int64_t modifiers = 0; modifiers < 16; ++modifiers) {
        for (const Key& key : keys) {
            const Shortcut shortcut{M(modifiers), key};
            const MenuEntry entry{{"File", "X"}, shortcut, true};
            EXPECT_EQ(entry.isSystemReserved(), isSystemReserved(shortcut));
            if (entry.isSystemReserved())
                found.insert(shortcut.display());
        }
    }
    EXPECT_EQ(found, reserved);
    EXPECT_EQ(reserved.size(), 11u);
}

TEST(MenuEntry, ComparesAndHashesByAllFields) {
    const MenuEntry entry = entryAt({"File", "Save"});
    MenuEntry disabled = entry;
    disabled.enabled = false;
    MenuEntry moved = entry;
    moved.path = {"File Save"};
    MenuEntry other = entry;
    other.shortcut.modifiers = M::shift;
    const std::unordered_set<MenuEntry> set{entry, entry, disabled, moved, other};
    EXPECT_EQ(set.size(), 4u);
}

} // namespace
} // namespace quillon
