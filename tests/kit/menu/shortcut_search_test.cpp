#include <quillon/kit/base/unicode.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using M = Modifiers;

MenuEntry entry(const char* title, M modifiers, Key key) {
    return {{"Menu", title}, {modifiers, std::move(key)}, true};
}

const std::vector<MenuEntry> entries{
    entry("Save", M::command, Key::character("S")),
    entry("Duplicate", M::shift | M::command, Key::character("S")),
    entry("Refresh", M::command, Key::special(SpecialKey::f5)),
    entry("Send", M::command, Key::special(SpecialKey::returnKey)),
    entry("Search", M::command, Key::special(SpecialKey::space)),
    entry("Options…", M::command, Key::character(",")),
    entry("Next Page", M::option, Key::special(SpecialKey::pageDown)),
    entry("Cut Word", M::control | M::option, Key::special(SpecialKey::forwardDelete)),
    entry("Help", M(), Key::special(SpecialKey::help)),
    entry("Größe", M::command, Key::character("É")),
    entry("Plain", M::shift, Key::character("X")),
};

std::vector<std::string> found(std::string_view query, const Notes& notes = {}) {
    std::vector<std::string> titles;
    for (const MenuEntry& match : ShortcutSearch::filter(entries, query, notes))
        titles.emplace_back(match.title());
    return titles;
}

TEST(ShortcutSearch, ABlankQueryFindsEverything) {
    for (const char* query : {"", " ", "\t \n", "\u00a0\u3000"})
        EXPECT_EQ(ShortcutSearch::filter(entries, query, {}), entries);
}

TEST(ShortcutSearch, AShortcutQueryFindsExactlyThatShortcut) {
    EXPECT_THAT(found("cmd s"), ElementsAre("Save"));
    EXPECT_THAT(found("shift cmd s"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("cmd shift s"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("s cmd shift"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("CMD  S"), ElementsAre("Save"));
    EXPECT_THAT(found("cmd cmd s"), ElementsAre("Save"));
    EXPECT_THAT(found("ctrl s"), IsEmpty());
    EXPECT_THAT(found("cmd ,"), ElementsAre("Options…"));
    EXPECT_THAT(found("cmd é"), ElementsAre("Größe"));
    EXPECT_THAT(found("cmd É"), ElementsAre("Größe"));
}

TEST(ShortcutSearch, EveryModifierTokenCounts) {
    for (const char* token : {"cmd", "command", "⌘", "COMMAND"})
        EXPECT_THAT(found(std::string(token) + " s"), ElementsAre("Save")) << token;
    for (const char* token : {"shift", "⇧"})
        EXPECT_THAT(found(std::string(token) + " x"), ElementsAre("Plain")) << token;
    for (const char* token : {"opt", "option", "alt", "⌥"})
        EXPECT_THAT(found(std::string(token) + " pagedown"), ElementsAre("Next Page")) << token;
    for (const char* token : {"ctrl", "control", "⌃"})
        EXPECT_THAT(found(std::string(token) + " alt forwarddelete"), ElementsAre("Cut Word")) << token;
}

TEST(ShortcutSearch, SpecialKeysGoByNameOrRawValue) {
    EXPECT_THAT(found("cmd f5"), ElementsAre("Refresh"));
    EXPECT_THAT(found("cmd return"), ElementsAre("Send"));
    EXPECT_THAT(found("cmd returnkey"), ElementsAre("Send"));
    EXPECT_THAT(found("cmd ↩"), ElementsAre("Send"));
    EXPECT_THAT(found("command space"), ElementsAre("Search"));
}

TEST(ShortcutSearch, EverySpecialKeyIsFoundByItsRawValue) {
    for (const SpecialKey key : allSpecialKeys) {
        const std::vector<MenuEntry> one{
            entry("Other", M::control, Key::character("S")), entry("It", M::control, Key::special(key))};
        const std::string token = unicode::toLower(rawValue(key));
        EXPECT_THAT(ShortcutSearch::filter(one, "ctrl " + token, {}), ElementsAre(one[1])) << token;
    }
}

TEST(ShortcutSearch, AModifierAloneIsFreeText) {
    EXPECT_THAT(
        found("cmd"), ElementsAre("Save", "Duplicate", "Refresh", "Send", "Search", "Options…", "Größe"));
    EXPECT_THAT(found("cmd shift"), ElementsAre("Duplicate"));
}

TEST(ShortcutSearch, TwoKeysAreFreeText) {
    EXPECT_THAT(found("cmd shift s t"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("cmd page down"), IsEmpty());
    EXPECT_THAT(found("alt page down"), ElementsAre("Next Page"));
}

TEST(ShortcutSearch, AnUnknownKeyIsFreeText) {
    EXPECT_THAT(found("cmd sav"), ElementsAre("Save"));
    EXPECT_THAT(found("cmd xyz"), IsEmpty());
    EXPECT_THAT(found("cmd xyz", {{"Menu › Send", "about XYZ"}}), ElementsAre("Send"));
}

TEST(ShortcutSearch, AShortcutWithoutModifiersIsFreeText) {
    EXPECT_THAT(found("help"), ElementsAre("Help"));
    EXPECT_THAT(found("f5"), ElementsAre("Refresh"));
}

TEST(ShortcutSearch, GlyphsTypedAsOneRunAreFreeTextInDisplayOrder) {
    EXPECT_THAT(found("⇧⌘S"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("⌘⇧S"), IsEmpty());
    EXPECT_THAT(found("⌘s"), ElementsAre("Save", "Duplicate", "Search")) << "⌘s is part of ⇧⌘s and of ⌘space";
    EXPECT_THAT(found("⌘ ⇧ s"), ElementsAre("Duplicate"));
}

TEST(ShortcutSearch, FreeTextFindsPartsOfWordsInAnyOrder) {
    EXPECT_THAT(found("dup"), ElementsAre("Duplicate"));
    EXPECT_THAT(found("page next"), ElementsAre("Next Page"));
    EXPECT_THAT(found("opt"), ElementsAre("Options…", "Next Page", "Cut Word"));
    EXPECT_THAT(found("menu").size(), entries.size());
    EXPECT_THAT(found("GRÖSSE"), IsEmpty()) << "lower-casing only, no folding";
    EXPECT_THAT(found("grÖß"), ElementsAre("Größe"));
    EXPECT_THAT(found("große"), IsEmpty());
}

TEST(ShortcutSearch, FreeTextFindsNotes) {
    const Notes notes{{"Menu › Duplicate", "A Group of things"}, {"Menu › Nothing", "group"}};
    EXPECT_THAT(found("group", notes), ElementsAre("Duplicate"));
    EXPECT_THAT(found("menu group", notes), ElementsAre("Duplicate"));
    EXPECT_THAT(found("group"), IsEmpty());
}

TEST(ShortcutSearch, AWordIsNotFoundAcrossPathAndNote) {
    EXPECT_THAT(found("cmdgroup", {{"Menu › Save", "group"}}), IsEmpty());
}

TEST(ShortcutSearch, SurvivesBrokenText) {
    EXPECT_THAT(found("\xff"), IsEmpty());
    EXPECT_THAT(found("cmd \xff"), IsEmpty());
    EXPECT_THAT(found("\xff", {{"Menu › Save", "\xfe"}}), ElementsAre("Save")) << "both become U+FFFD";
}

TEST(ShortcutSearch, FindsTheSampleThroughItsNotes) {
    const Notes notes{{"File › Duplicate", "Makes a copy next to the original"}};
    std::vector<std::string> titles;
    for (const MenuEntry& match : ShortcutSearch::filter(SampleMenus::sheet().entries, "copy", notes))
        titles.emplace_back(match.title());
    EXPECT_THAT(titles, ElementsAre("Duplicate", "Copy", "Copy Style"));
}

/// Queries of every kind, some of them words of the entries.
std::string randomQuery(RandomValues& random, const std::vector<MenuEntry>& from) {
    static const std::vector<std::string> words{"cmd",   "shift",    "⌥",    "ctrl", "s",   "f5",
                                                "space", "pagedown", "save", "fi",   "xyz", "⌘",
                                                "opt",   "…",        "ω",    "ÜB"};
    std::string query;
    for (std::size_t left = random.number(0, 4); left > 0; --left) {
        query += words[random.number(0, words.size() - 1)];
        query += random.chance(0.9) ? " " : "";
    }
    if (!from.empty() && random.chance(0.3))
        query += from[random.number(0, from.size() - 1)].title();
    return query;
}

TEST(ShortcutSearch, KeepsTheOrderAndInventsNothing) {
    RandomValues random(51);
    std::size_t matched = 0;
    for (int round = 0; round < 500; ++round) {
        const std::vector<MenuEntry> input = random.entries(random.number(0, 40));
        const std::vector<MenuEntry> kept = ShortcutSearch::filter(input, randomQuery(random, input), {});
        auto from = input.begin();
        for (const MenuEntry& one : kept) {
            from = std::find(from, input.end(), one);
            ASSERT_NE(from, input.end());
            ++from;
        }
        matched += kept.size();
    }
    EXPECT_GT(matched, 500u) << "the queries must find something";
}

TEST(SearchIndex, FindsWhatTheFilterFinds) {
    RandomValues random(52);
    for (int round = 0; round < 500; ++round) {
        const std::vector<MenuEntry> input = random.entries(random.number(0, 40));
        Notes notes;
        for (const MenuEntry& one : input) {
            if (random.chance(0.2))
                notes[one.id()] = random.text();
        }
        const std::string query = randomQuery(random, input);
        const SearchIndex index(input, notes);
        EXPECT_EQ(index.size(), input.size());
        std::vector<MenuEntry> indexed;
        for (const std::size_t position : index.matches(query))
            indexed.push_back(input.at(position));
        EXPECT_EQ(indexed, ShortcutSearch::filter(input, query, notes)) << query;
    }
}

TEST(SearchIndex, OfNothingFindsNothing) {
    EXPECT_THAT(SearchIndex().matches(""), IsEmpty());
    EXPECT_EQ(SearchIndex().size(), 0u);
}

} // namespace
} // namespace quillon
