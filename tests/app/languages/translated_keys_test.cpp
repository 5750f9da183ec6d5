#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/languages/translations.h>
#include <quillon/kit/menu/shortcut_search.h>

#include <gmock/gmock.h>

#include <QCoreApplication>

#include <string>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using M = Modifiers;

const Shortcut saveAs{M::control | M::shift, Key::character("S")};

std::string shownIn(const QString& language, const Shortcut& shortcut) {
    const Translations translations({language});
    const KeyNames names = translatedKeyNames();
    return displayWith(shortcut, &names);
}

TEST(TranslatedKeys, AreWhatAKeyboardOfTheLanguageHasPrintedOnIt) {
    EXPECT_EQ(shownIn(u"en"_s, saveAs), "Ctrl Shift S");
    EXPECT_EQ(shownIn(u"de"_s, saveAs), "Strg Umschalt S");
    EXPECT_EQ(shownIn(u"fr"_s, saveAs), "Ctrl Maj S");
    EXPECT_EQ(shownIn(u"es"_s, saveAs), "Ctrl Mayús S");
    EXPECT_EQ(shownIn(u"de"_s, {M::option, Key::special(SpecialKey::pageUp)}), "Alt Bild auf");
    EXPECT_EQ(shownIn(u"fr"_s, {M::option, Key::special(SpecialKey::forwardDelete)}), "Alt Suppr");
    EXPECT_EQ(shownIn(u"es"_s, {M::option, Key::special(SpecialKey::left)}), "Alt ←");
}

/// Each key is told from every other, and everything shown can be searched for, in every language.
TEST(TranslatedKeys, AreFoundByWhatIsShown) {
    for (const QString& language : Translations::available() + QStringList{u"en"_s}) {
        const Translations translations({language});
        const KeyNames names = translatedKeyNames();
        const KeyWords words = translatedKeyWords();
        std::vector<MenuEntry> entries;
        for (const SpecialKey key : allSpecialKeys) {
            if (key != SpecialKey::backTab)
                entries.push_back({{"Menu", "Title"}, {M::control, Key::special(key)}, true});
        }
        for (const MenuEntry& entry : entries) {
            const std::string shown = displayWith(entry.shortcut, &names);
            EXPECT_THAT(ShortcutSearch::filter(entries, shown, {}, words), testing::Contains(entry))
                << language.toStdString() << ": " << shown;
            for (const MenuEntry& other : entries) {
                if (other != entry) {
                    EXPECT_NE(displayWith(other.shortcut, &names), shown) << language.toStdString();
                }
            }
        }
    }
}

TEST(TranslatedKeys, AreSearchedForInTheLanguageAndInEnglish) {
    const Translations german({u"de"_s});
    const std::vector<MenuEntry> entries{
        {{"Datei", "Speichern unter"}, saveAs, true},
        {{"Bearbeiten", "Ausschneiden"}, {M::control, Key::special(SpecialKey::forwardDelete)}, true},
        {{"Ansicht", "Nach oben"}, {M::option, Key::special(SpecialKey::pageUp)}, true}};
    const auto found = [&](const char* query) {
        std::vector<std::string> titles;
        for (const MenuEntry& entry : ShortcutSearch::filter(entries, query, {}, translatedKeyWords()))
            titles.emplace_back(entry.title());
        return titles;
    };
    for (const char* query : {"strg umschalt s", "ctrl shift s", "⌃ ⇧ s", "⌃⇧S", "Strg+Umschalt+S"})
        EXPECT_THAT(found(query), ElementsAre("Speichern unter")) << query;
    for (const char* query : {"entf", "strg entf", "ctrl delete"})
        EXPECT_THAT(found(query), ElementsAre("Ausschneiden")) << query;
    for (const char* query : {"bild auf", "alt bild auf", "page up", "alt pageup"})
        EXPECT_THAT(found(query), ElementsAre("Nach oben")) << query;
}

TEST(TranslatedKeys, LabelModifiersInSentences) {
    EXPECT_EQ(modifierLabel(M::command, KeyLabels::symbols), u"⌘"_s);
    EXPECT_EQ(modifierLabel(M::command, KeyLabels::names), u"Super"_s);
    const Translations german({u"de"_s});
    EXPECT_EQ(modifierLabel(M::control, KeyLabels::symbols), u"⌃"_s);
    EXPECT_EQ(modifierLabel(M::control, KeyLabels::names), u"Strg"_s);
}

TEST(TranslatedKeys, AreAbsentForSymbols) {
    EXPECT_FALSE(shownNames(KeyLabels::symbols));
    EXPECT_EQ(shownNames(KeyLabels::names), KeyNames::english());
}

} // namespace
} // namespace quillon
