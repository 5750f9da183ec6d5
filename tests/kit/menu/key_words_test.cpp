#include <quillon/kit/menu/key_words.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using M = Modifiers;

/// As a translation gives them; what is not among them stays English.
KeyNames german() {
    static const std::map<std::string, std::string> translations{
        {"Ctrl", "Strg|Steuerung"},
        {"Shift", "Umschalt|Umsch"},
        {"Super|Windows|Win|Meta", "Super|Windows|Win|Meta"},
        {"Enter|Return", "Eingabe|Enter|Return"},
        {"Num Enter|Enter|Keypad Enter", "Num Eingabe|Eingabe|Enter"},
        {"Delete|Del", "Entf|Entfernen"},
        {"Backspace", "Rücktaste|Rück"},
        {"Page Up|PgUp", "Bild auf|Bild hoch"},
        {"←|Left|Left Arrow", "←|Links|Pfeil links"},
        {"Comma", "Komma"},
    };
    return KeyNames::translated([](const char* english) {
        const auto row = translations.find(english);
        return row == translations.end() ? std::string(english) : row->second;
    });
}

const KeyWords& englishWords() {
    static const KeyWords words(std::vector{KeyNames::english()});
    return words;
}

const KeyWords& germanWords() {
    static const KeyWords words(std::vector{german(), KeyNames::english()});
    return words;
}

MenuEntry entry(const char* title, M modifiers, Key key) {
    return {{"Menu", title}, {modifiers, std::move(key)}, true};
}

const std::vector<MenuEntry> entries{
    entry("Save", M::control, Key::character("S")),
    entry("Save As", M::control | M::shift, Key::character("S")),
    entry("Settings", M::control, Key::character(",")),
    entry("Lock", M::command, Key::character("L")),
    entry("Windows", M::option, Key::character("W")),
    entry("Cut Word", M::control, Key::special(SpecialKey::forwardDelete)),
    entry("Rub Out", M::control, Key::special(SpecialKey::delete_)),
    entry("Send", M::control, Key::special(SpecialKey::returnKey)),
    entry("Sum", M::control, Key::special(SpecialKey::enter)),
    entry("Previous Page", {}, Key::special(SpecialKey::pageUp)),
    entry("First Page", M::control, Key::special(SpecialKey::pageUp)),
    entry("Back", M::option, Key::special(SpecialKey::left)),
    entry("Next Tab", M::control, Key::special(SpecialKey::tab)),
    entry("Last Tab", M::control, Key::special(SpecialKey::backTab)),
    entry("Grow", M::control, Key::character("+")),
};

std::vector<std::string> found(std::string_view query, const KeyWords& words) {
    std::vector<std::string> titles;
    for (const MenuEntry& match : ShortcutSearch::filter(entries, query, {}, words))
        titles.emplace_back(match.title());

    std::vector<std::string> indexed;
    for (const std::size_t position : SearchIndex(entries, {}, words).matches(query))
        indexed.emplace_back(entries[position].title());
    EXPECT_EQ(indexed, titles) << query;
    return titles;
}

TEST(KeyWords, AreNoneAtFirst) {
    EXPECT_TRUE(KeyWords().isEmpty());
    EXPECT_EQ(KeyWords().longestAt(std::vector<std::string>{"ctrl"}), nullptr);
    EXPECT_EQ(KeyWords().termsOf({M::control, Key::character("S")}), "");
    EXPECT_THAT(found("super l", {}), IsEmpty());
}

TEST(KeyWords, ReadAShortcutInNamesAndInSymbols) {
    for (const char* query : {"ctrl shift s", "⌃ ⇧ s", "shift ctrl S", "strg umschalt s", "STRG UMSCH S"})
        EXPECT_THAT(found(query, germanWords()), ElementsAre("Save As")) << query;
    EXPECT_THAT(found("⌃⇧S", germanWords()), ElementsAre("Save As"));
    EXPECT_THAT(found("strg umschalt s", englishWords()), IsEmpty());
}

TEST(KeyWords, CallTheSuperKeyByEveryNameOfIt) {
    for (const char* query : {"super l", "windows l", "win l", "meta l", "cmd l", "⌘ l"})
        EXPECT_THAT(found(query, englishWords()), ElementsAre("Lock")) << query;
    EXPECT_THAT(found("super", englishWords()), ElementsAre("Lock"));
    EXPECT_THAT(found("windows", englishWords()), ElementsAre("Lock", "Windows"));
}

TEST(KeyWords, OfSeveralWordsAreOneKey) {
    EXPECT_THAT(found("strg bild auf", germanWords()), ElementsAre("First Page"));
    EXPECT_THAT(found("bild hoch strg", germanWords()), ElementsAre("First Page"));
    EXPECT_THAT(found("ctrl page up", englishWords()), ElementsAre("First Page"));
    EXPECT_THAT(found("bild auf", germanWords()), ElementsAre("Previous Page", "First Page"));
    EXPECT_THAT(found("bild hoch", germanWords()), ElementsAre("Previous Page", "First Page"));
}

TEST(KeyWords, OfASingleKeyFindWhateverItIsIn) {
    EXPECT_THAT(found("entf", germanWords()), ElementsAre("Cut Word"));
    EXPECT_THAT(found("entfernen", germanWords()), ElementsAre("Cut Word"));
    EXPECT_THAT(found("links", germanWords()), ElementsAre("Back"));
    EXPECT_THAT(found("last shift", englishWords()), ElementsAre("Last Tab"));
}

TEST(KeyWords, AreFoundWhileTheyAreTyped) {
    EXPECT_THAT(found("umsch", germanWords()), ElementsAre("Save As", "Last Tab"));
    EXPECT_THAT(found("umschal", germanWords()), ElementsAre("Save As", "Last Tab"));
    EXPECT_THAT(found("ent", germanWords()), ElementsAre("Cut Word", "Sum"));
}

TEST(KeyWords, ThatMeanTwoKeysFindBoth) {
    EXPECT_THAT(found("ctrl delete", englishWords()), ElementsAre("Cut Word", "Rub Out"));
    EXPECT_THAT(found("ctrl backspace", englishWords()), ElementsAre("Rub Out"));
    EXPECT_THAT(found("ctrl del", englishWords()), ElementsAre("Cut Word"));
    EXPECT_THAT(found("ctrl enter", englishWords()), ElementsAre("Send", "Sum"));
    EXPECT_THAT(found("strg eingabe", germanWords()), ElementsAre("Send", "Sum"));
    EXPECT_THAT(found("ctrl num enter", englishWords()), ElementsAre("Sum"));
}

TEST(KeyWords, OfShiftAndTabFindBackTab) {
    EXPECT_THAT(found("ctrl shift tab", englishWords()), ElementsAre("Last Tab"));
    EXPECT_THAT(found("ctrl tab", englishWords()), ElementsAre("Next Tab"));
    EXPECT_THAT(found("ctrl backtab", englishWords()), ElementsAre("Last Tab"));
    EXPECT_THAT(found("ctrl shift tab", {}), IsEmpty());
}

TEST(KeyWords, MayBeJoinedByPlusSigns) {
    EXPECT_THAT(found("ctrl+shift+s", englishWords()), ElementsAre("Save As"));
    EXPECT_THAT(found("Strg+Bild auf", germanWords()), ElementsAre("First Page"));
    EXPECT_THAT(found("ctrl + shift + s", englishWords()), ElementsAre("Save As"));
    EXPECT_THAT(found("ctrl + +", englishWords()), ElementsAre("Grow"));
    EXPECT_THAT(found("ctrl++", englishWords()), ElementsAre("Grow"));
    EXPECT_THAT(found("ctrl +", englishWords()), ElementsAre("Grow"));
    EXPECT_THAT(found("ctrl+s", {}), IsEmpty());
}

TEST(KeyWords, HoldTheNamesOfPunctuation) {
    EXPECT_THAT(found("strg komma", germanWords()), ElementsAre("Settings"));
    EXPECT_THAT(found("ctrl comma", englishWords()), ElementsAre("Settings"));
    EXPECT_THAT(found("ctrl plus", englishWords()), ElementsAre("Grow"));
}

TEST(KeyWords, LeaveOtherQueriesAsTheyAre) {
    EXPECT_THAT(found("save", englishWords()), ElementsAre("Save", "Save As"));
    EXPECT_THAT(found("c+s", englishWords()), IsEmpty());
    EXPECT_THAT(found("ctrl save", englishWords()), ElementsAre("Save", "Save As"));
    EXPECT_EQ(found("", englishWords()).size(), entries.size());
}

/// Whatever finds something without the words finds it with them too.
TEST(KeyWords, OnlyAddToWhatIsFound) {
    const AppSheet& sheet = SampleMenus::sheet();
    for (const char* query :
         {"cmd s", "shift cmd s", "cmd return", "opt", "group", "cmd", "space", "cmd ,", "delete", "up",
          "cmd up", "option", "new", "cmd delete", "shift", "f5", "cmd f5", "cmd xyz"}) {
        const auto plain = ShortcutSearch::filter(sheet.entries, query, {});
        const auto more = ShortcutSearch::filter(sheet.entries, query, {}, germanWords());
        for (const MenuEntry& match : plain)
            EXPECT_THAT(more, testing::Contains(match)) << query;
    }
}

/// Every shortcut is found by what is shown of it.
TEST(KeyWords, FindEveryKeyByTheNamesThatAreShown) {
    for (const KeyNames& names : {KeyNames::english(), german()}) {
        const KeyWords words(std::vector{names, KeyNames::english()});
        for (std::int64_t raw = 1; raw < 16; ++raw) {
            for (const SpecialKey special : allSpecialKeys) {
                const MenuEntry wanted = entry("Title", M(raw), Key::special(special));
                const std::string shown = displayWith(wanted.shortcut, &names);
                EXPECT_THAT(
                    ShortcutSearch::filter(std::vector{wanted}, shown, {}, words), ElementsAre(wanted))
                    << shown;
                EXPECT_THAT(
                    ShortcutSearch::filter(
                        std::vector{wanted}, spokenWith(wanted.shortcut, &names), {}, words),
                    ElementsAre(wanted))
                    << shown;
            }
        }
    }
}

} // namespace
} // namespace quillon
