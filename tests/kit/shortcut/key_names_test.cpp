#include <quillon/kit/shortcut/key_names.h>

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using M = Modifiers;

const KeyNames& english = KeyNames::english();
constexpr const KeyNames* symbols = nullptr;

std::vector<Modifiers> everySetOfModifiers() {
    std::vector<Modifiers> sets;
    for (std::int64_t raw = 0; raw < 16; ++raw)
        sets.emplace_back(raw);
    return sets;
}

TEST(KeyName, IsReadFromAList) {
    EXPECT_EQ(KeyName::of("Tab"), (KeyName{"Tab", {}}));
    EXPECT_EQ(KeyName::of("Super|Windows|Win"), (KeyName{"Super", {"Windows", "Win"}}));
    EXPECT_EQ(KeyName::of("Page Up||PgUp|"), (KeyName{"Page Up", {"PgUp"}}));
    EXPECT_EQ(KeyName::of(""), (KeyName{"", {}}));
}

TEST(KeyName, IsSpokenAsAWordWhereItIsASign) {
    EXPECT_EQ(KeyName::of("Ctrl|Control").spoken(), "Ctrl");
    EXPECT_EQ(KeyName::of("←|Left").spoken(), "Left");
    EXPECT_EQ(KeyName::of("Échap|Esc").spoken(), "Échap");
    EXPECT_EQ(KeyName::of("↑").spoken(), "↑");
}

TEST(KeyNames, AreShownInTheOrderOfTheSymbols) {
    const Shortcut all{M::command | M::shift | M::option | M::control, Key::character("S")};
    EXPECT_EQ(displayWith(all, &english), "Ctrl Alt Shift Super S");
    EXPECT_THAT(capsOf(all, &english), ElementsAre("Ctrl", "Alt", "Shift", "Super", "S"));
    EXPECT_THAT(capsOf(all, symbols), ElementsAre("⌃", "⌥", "⇧", "⌘", "S"));
}

TEST(KeyNames, OfEverySpecialKeyAreWhatIsPrintedOnIt) {
    const auto shown = [](SpecialKey key) { return displayWith({{}, Key::special(key)}, &english); };
    EXPECT_EQ(shown(SpecialKey::returnKey), "Enter");
    EXPECT_EQ(shown(SpecialKey::enter), "Num Enter");
    EXPECT_EQ(shown(SpecialKey::tab), "Tab");
    EXPECT_EQ(shown(SpecialKey::backTab), "Shift Tab");
    EXPECT_EQ(shown(SpecialKey::space), "Space");
    EXPECT_EQ(shown(SpecialKey::delete_), "Backspace");
    EXPECT_EQ(shown(SpecialKey::forwardDelete), "Delete");
    EXPECT_EQ(shown(SpecialKey::escape), "Esc");
    EXPECT_EQ(shown(SpecialKey::clear), "Clear");
    EXPECT_EQ(shown(SpecialKey::left), "←");
    EXPECT_EQ(shown(SpecialKey::right), "→");
    EXPECT_EQ(shown(SpecialKey::up), "↑");
    EXPECT_EQ(shown(SpecialKey::down), "↓");
    EXPECT_EQ(shown(SpecialKey::pageUp), "Page Up");
    EXPECT_EQ(shown(SpecialKey::pageDown), "Page Down");
    EXPECT_EQ(shown(SpecialKey::home), "Home");
    EXPECT_EQ(shown(SpecialKey::end), "End");
    EXPECT_EQ(shown(SpecialKey::help), "Help");
    EXPECT_EQ(shown(SpecialKey::eject), "Eject");
    EXPECT_EQ(shown(SpecialKey::f1), "F1");
    EXPECT_EQ(shown(SpecialKey::f19), "F19");
}

TEST(KeyNames, TellEveryKeyFromEveryOther) {
    std::set<std::string> seen;
    for (const SpecialKey key : allSpecialKeys)
        EXPECT_TRUE(seen.insert(displayWith({{}, Key::special(key)}, &english)).second) << name(key);
    for (const M modifiers : everySetOfModifiers())
        EXPECT_TRUE(seen.insert(displayWith({modifiers, Key::character("A")}, &english)).second);
}

TEST(KeyNames, OfBackTabHoldShiftOnce) {
    const auto shown = [](M modifiers) {
        return displayWith({modifiers, Key::special(SpecialKey::backTab)}, &english);
    };
    EXPECT_EQ(shown(M::control), "Ctrl Shift Tab");
    EXPECT_EQ(shown(M::control | M::shift), "Ctrl Shift Tab");
}

TEST(KeyNames, LeaveCharactersAsTheyAre) {
    EXPECT_EQ(displayWith({M::control, Key::character(",")}, &english), "Ctrl ,");
    EXPECT_EQ(displayWith({M::control, Key::character("É")}, &english), "Ctrl É");
    EXPECT_EQ(displayWith({{}, Key::character("7")}, &english), "7");
}

TEST(KeyNames, AreReadWithWordsForSigns) {
    const auto spoken = [](M modifiers, Key key) {
        return spokenWith({modifiers, std::move(key)}, &english);
    };
    EXPECT_EQ(spoken(M::control | M::shift, Key::character("S")), "Ctrl Shift S");
    EXPECT_EQ(spoken(M::control, Key::character(",")), "Ctrl Comma");
    EXPECT_EQ(spoken(M::option, Key::special(SpecialKey::left)), "Alt Left");
    EXPECT_EQ(spoken(M::command, Key::special(SpecialKey::backTab)), "Shift Super Tab");
    EXPECT_EQ(spoken({}, Key::special(SpecialKey::f5)), "F5");
}

TEST(KeyNames, HaveAWordForEveryPunctuationMarkThatIsReadAsOne) {
    for (char sign = '!'; sign <= '~'; ++sign) {
        const Key key = Key::character(std::string(1, sign));
        EXPECT_EQ(english.nameOf(key).spoken(), key.name()) << sign;
    }
}

TEST(KeyNames, AreWithoutEffectOnSymbols) {
    for (const M modifiers : everySetOfModifiers()) {
        for (const SpecialKey special : allSpecialKeys) {
            const Shortcut shortcut{modifiers, Key::special(special)};
            EXPECT_EQ(displayWith(shortcut, symbols), shortcut.display());
            EXPECT_EQ(spokenWith(shortcut, symbols), shortcut.spoken());
        }
    }
}

TEST(KeyNames, AreShownAsOneCapEach) {
    for (const M modifiers : everySetOfModifiers()) {
        for (const SpecialKey special : allSpecialKeys) {
            const Shortcut shortcut{modifiers, Key::special(special)};
            std::string joined;
            for (const std::string& cap : capsOf(shortcut, &english))
                joined.append(joined.empty() ? "" : " ").append(cap);
            EXPECT_EQ(joined, displayWith(shortcut, &english));
        }
    }
}

TEST(KeyNames, AreTranslatedOneByOne) {
    std::vector<std::string> asked;
    const KeyNames names = KeyNames::translated([&](const char* text) {
        asked.emplace_back(text);
        return std::string(text) == "Shift"   ? "Umschalt|Umsch"
               : std::string(text) == "Comma" ? "Komma"
                                              : text;
    });
    EXPECT_EQ(displayWith({M::control | M::shift, Key::character("S")}, &names), "Ctrl Umschalt S");
    EXPECT_THAT(names.nameOf(M::shift).others, ElementsAre("Umsch"));
    EXPECT_EQ(spokenWith({M::shift, Key::character(",")}, &names), "Umschalt Komma");
    EXPECT_EQ(displayWith({M::shift, Key::special(SpecialKey::backTab)}, &names), "Umschalt Tab");

    const std::vector<const char*> texts = KeyNames::englishTexts();
    EXPECT_EQ(
        std::set<std::string>(asked.begin(), asked.end()), std::set<std::string>(texts.begin(), texts.end()));
}

TEST(KeyNames, AreNoneForModifiersThatAreNotThere) {
    EXPECT_THAT(capsOf({{}, Key::character("A")}, &english), ElementsAre("A"));
    EXPECT_THAT(KeyNames::english().nameOf(SpecialKey::f7).others, IsEmpty());
}

} // namespace
} // namespace quillon
