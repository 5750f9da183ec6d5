#include <quillon/app/platform/linux/atspi/key_binding/key_binding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::atspi {
namespace {

/// What a key cap would show of a binding's shortcut; "" for none.
std::string shown(std::string_view text, ToolkitFamily family, std::string_view title) {
    const auto shortcut = Shortcut::fromAX(keyEquivalent({text, family, title}));
    return shortcut ? shortcut->display() : "";
}

std::string gtk(std::string_view accelerator) {
    return shown("x;<Alt>f:x;" + std::string(accelerator), ToolkitFamily::gtk, "Title");
}

std::string qt(std::string_view text, std::string_view title = "") {
    return shown(text, ToolkitFamily::qt, title);
}

struct Case {
    const char* text;
    const char* shown;
};

TEST(GtkKeyBinding, OnlyTheThirdPartIsTheAccelerator) {
    EXPECT_EQ(shown("s;<Alt>f:s;<Primary>s", ToolkitFamily::gtk, "Save"), "⌃S");
    EXPECT_EQ(shown(";;<Primary>s", ToolkitFamily::gtk, "Save"), "⌃S");
    EXPECT_EQ(shown("s;<Alt>f:s;", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown("s;<Alt>f:s", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown("<Primary>s", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown("", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown(";;;", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown(";;<Primary>s;<Primary>t", ToolkitFamily::gtk, "Save"), "⌃S");
}

TEST(GtkKeyBinding, ModifiersMapByTheirPlaceOnTheKeyboard) {
    for (const Case& c : std::vector<Case>{
             {"<Primary>s", "⌃S"},
             {"<Control>s", "⌃S"},
             {"<Ctrl>s", "⌃S"},
             {"<Ctl>s", "⌃S"},
             {"<control>s", "⌃S"},
             {"<Alt>s", "⌥S"},
             {"<Mod1>s", "⌥S"},
             {"<Meta>s", "⌘S"},
             {"<Shift>s", "⇧S"},
             {"<Shft>s", "⇧S"},
             {"<Super>s", "⌘S"},
             {"<Super><Meta>s", "⌘S"},
             {"<Mod4>s", "⌘S"},
             {"<Primary><Shift>s", "⌃⇧S"},
             {"<Shift><Primary><Alt><Super>s", "⌃⌥⇧⌘S"},
             {"<Alt><Meta>s", "⌥⌘S"},
             {"s", "S"},
         })
        EXPECT_EQ(gtk(c.text), c.shown) << c.text;
}

TEST(GtkKeyBinding, ModifiersAreRecognisedWhateverTheirCase) {
    EXPECT_EQ(gtk("<PRIMARY><SHIFT>s"), "⌃⇧S");
    EXPECT_EQ(gtk("<pRIMARY>s"), "⌃S");
    EXPECT_EQ(gtk("<Pr\u0130mary>s"), "") << "a letter that only resembles one of ASCII";
}

TEST(GtkKeyBinding, ModifiersWithoutANameHereGiveNoShortcut) {
    for (const char* text :
         {"<Hyper>s", "<Release>s", "<Mod2>s", "<Mod3>s", "<Mod5>s", "<Primary><Hyper>s", "<>s", "<Bogus>s",
          "<Primary", "<", "<<Primary>s", "<Primary>>s"})
        EXPECT_EQ(gtk(text), "") << text;
}

TEST(GtkKeyBinding, CharacterKeysAreSpelledByName) {
    for (const Case& c : std::vector<Case>{
             {"<Primary>plus", "⌃+"},      {"<Primary>minus", "⌃-"},       {"<Primary>semicolon", "⌃;"},
             {"<Primary>colon", "⌃:"},     {"<Primary>bracketleft", "⌃["}, {"<Primary>less", "⌃<"},
             {"<Primary>greater", "⌃>"},   {"<Primary>comma", "⌃,"},       {"<Primary>question", "⌃?"},
             {"<Primary>0", "⌃0"},         {"<Primary>adiaeresis", "⌃Ä"},  {"<Primary>Cyrillic_a", "⌃А"},
             {"<Primary>EuroSign", "⌃€"},  {"<Primary>U+20AC", "⌃€"},      {"<Primary>U20AC", "⌃€"},
             {"<Primary>KP_Add", "⌃+"},    {"<Primary>KP_Subtract", "⌃-"}, {"<Primary>KP_Multiply", "⌃*"},
             {"<Primary>KP_Divide", "⌃/"}, {"<Primary>KP_Equal", "⌃="},    {"<Primary>KP_Decimal", "⌃."},
             {"<Primary>KP_5", "⌃5"},
         })
        EXPECT_EQ(gtk(c.text), c.shown) << c.text;
}

TEST(GtkKeyBinding, SpecialKeysAreKnownByTheirMeaning) {
    for (const Case& c : std::vector<Case>{
             {"Return", "↩"},
             {"KP_Enter", "⌤"},
             {"ISO_Enter", "⌤"},
             {"Tab", "⇥"},
             {"KP_Tab", "⇥"},
             {"ISO_Left_Tab", "⇤"},
             {"space", "Space"},
             {"KP_Space", "Space"},
             {"BackSpace", "⌫"},
             {"Delete", "⌦"},
             {"KP_Delete", "⌦"},
             {"Escape", "⎋"},
             {"Clear", "⌧"},
             {"Left", "←"},
             {"KP_Left", "←"},
             {"Right", "→"},
             {"KP_Right", "→"},
             {"Up", "↑"},
             {"KP_Up", "↑"},
             {"Down", "↓"},
             {"KP_Down", "↓"},
             {"Page_Up", "⇞"},
             {"Prior", "⇞"},
             {"KP_Page_Up", "⇞"},
             {"KP_Prior", "⇞"},
             {"Page_Down", "⇟"},
             {"Next", "⇟"},
             {"KP_Next", "⇟"},
             {"Home", "↖"},
             {"KP_Home", "↖"},
             {"End", "↘"},
             {"KP_End", "↘"},
             {"Help", "Help"},
             {"XF86Eject", "⏏"},
             {"Eject", "⏏"},
             {"<Alt>Right", "⌥→"},
             {"<Shift>Tab", "⇧⇥"},
             {"<Primary>space", "⌃Space"},
             {"<Primary>Delete", "⌃⌦"},
             {"KP_F1", "F1"},
         })
        EXPECT_EQ(gtk(c.text), c.shown) << c.text;
}

TEST(GtkKeyBinding, NineteenFunctionKeysExist) {
    for (int number = 1; number <= 19; ++number) {
        const std::string key = "F" + std::to_string(number);
        EXPECT_EQ(gtk(key), key);
    }
    EXPECT_EQ(gtk("F20"), "");
    EXPECT_EQ(gtk("F35"), "");
}

TEST(GtkKeyBinding, KeysThatCannotBeExpressedGiveNoShortcut) {
    for (const char* text :
         {"Insert",    "KP_Insert",     "KP_Begin",   "Print",        "Pause",     "Menu",
          "Undo",      "Linefeed",      "Multi_key",  "Shift_L",      "Caps_Lock", "dead_acute",
          "AudioPlay", "XF86AudioPlay", "VoidSymbol", "nobreakspace", "NoSuchKey", "U+F700",
          "U+D800",    "U+110000",      "U+7F",       "<Primary>",    "n extra",   "\xff\xfe"})
        EXPECT_EQ(gtk(text), "") << text;
}

TEST(GtkKeyBinding, Gtk4TellsNoAccelerator) {
    EXPECT_EQ(shown("<Space>", ToolkitFamily::gtk, "Save"), "");
    EXPECT_EQ(shown("<VoidSymbol>", ToolkitFamily::gtk, "Save"), "");
}

TEST(QtKeyBinding, ModifiersMapByTheirPlaceOnTheKeyboard) {
    EXPECT_EQ(qt("Ctrl+S"), "⌃S");
    EXPECT_EQ(qt("Ctrl+Shift+S"), "⌃⇧S");
    EXPECT_EQ(qt("Meta+L"), "⌘L");
    EXPECT_EQ(qt("Ctrl+Alt+Shift+Meta+X"), "⌃⌥⇧⌘X");
    EXPECT_EQ(qt("Ctrl+Num+5"), "⌃5");
    EXPECT_EQ(qt("S"), "S");
}

TEST(QtKeyBinding, SpecialKeysAreKnown) {
    for (const Case& c : std::vector<Case>{
             {"Return", "↩"},       {"Enter", "⌤"},     {"Tab", "⇥"},        {"Backtab", "⇤"},
             {"Space", "Space"},    {"Backspace", "⌫"}, {"Del", "⌦"},        {"Esc", "⎋"},
             {"Clear", "⌧"},        {"Left", "←"},      {"Right", "→"},      {"Up", "↑"},
             {"Down", "↓"},         {"PgUp", "⇞"},      {"PgDown", "⇟"},     {"Home", "↖"},
             {"End", "↘"},          {"Help", "Help"},   {"Eject", "⏏"},      {"F1", "F1"},
             {"F11", "F11"},        {"F19", "F19"},     {"Alt+Right", "⌥→"}, {"Shift+F5", "⇧F5"},
             {"Ctrl+PgDown", "⌃⇟"},
         })
        EXPECT_EQ(qt(c.text), c.shown) << c.text;
}

TEST(QtKeyBinding, TheListsSeparatorMayItselfBeAKey) {
    EXPECT_EQ(qt("Ctrl+;"), "⌃;");
    EXPECT_EQ(qt("Ctrl+;;Ctrl+X"), "⌃;");
    EXPECT_EQ(qt("Ins;Ctrl+;"), "⌃;");
    EXPECT_EQ(qt("Ins;Ctrl+;;Ctrl+X"), "⌃;");
    EXPECT_EQ(qt("Ctrl++;Ctrl+="), "⌃+");
    EXPECT_EQ(qt("Ins;Ctrl++"), "⌃+");
    EXPECT_EQ(qt("Ctrl+,"), "⌃,");
    EXPECT_EQ(qt(";"), ";");
    EXPECT_EQ(qt(";;Ctrl+X"), ";");
}

TEST(QtKeyBinding, TheFirstSequenceThatCanBeExpressedCounts) {
    EXPECT_EQ(qt("Ctrl+C;Ctrl+Ins"), "⌃C");
    EXPECT_EQ(qt("Ctrl+Ins;Ctrl+C"), "⌃C");
    EXPECT_EQ(qt("Ctrl+K, Ctrl+C;F5"), "F5");
    EXPECT_EQ(qt("Media Play;Ctrl+P;F5"), "⌃P");
    EXPECT_EQ(qt("Ins;Ins;Ins;Ins;Ins;Ins;Ins;Ins;F5"), "") << "only the first eight are looked at";
}

TEST(QtKeyBinding, ChordsAndKeysThatCannotBeExpressedGiveNoShortcut) {
    for (const char* text :
         {"Ctrl+K, Ctrl+C", "Ctrl+,, A", "Ctrl+K, ;", "Ins", "Print", "Media Play", "F20", "Ctrl+", "Ctrl",
          "Shift", "Foo", "Ctrl+Foo", "Ctrl+Ins;Pause", "", "Ctrl+\x01"})
        EXPECT_EQ(qt(text), "") << text;
}

TEST(QtKeyBinding, AltAndACharacterOfTheTitleIsTheMnemonic) {
    EXPECT_EQ(qt("Alt+N", "New"), "");
    EXPECT_EQ(qt("Alt+n", "Open Read-Only…"), "");
    EXPECT_EQ(qt("Alt+Ö", "Öffnen"), "");
    EXPECT_EQ(qt("Alt+1", "1 notes.txt"), "");
}

TEST(QtKeyBinding, AltAndACharacterThatTheTitleLacksIsAShortcut) {
    EXPECT_EQ(qt("Alt+N", "Open Read-Only…"), "⌥N");
    EXPECT_EQ(qt("Alt+X", "New"), "⌥X");
    EXPECT_EQ(qt("Alt+3", "Tools"), "⌥3");
}

TEST(QtKeyBinding, OnlyALoneAltAndCharacterCanBeAMnemonic) {
    EXPECT_EQ(qt("Alt+Right", "Right"), "⌥→");
    EXPECT_EQ(qt("Ctrl+Alt+P", "Print"), "⌃⌥P");
    EXPECT_EQ(qt("Alt+Shift+P", "Print"), "⌥⇧P");
    EXPECT_EQ(qt("Alt+P;Ctrl+P", "Print"), "⌥P");
    EXPECT_EQ(qt("Alt+F4", "F4"), "⌥F4");
}

TEST(KeyBinding, UnknownToolkitsAreReadLikeGtk) {
    EXPECT_EQ(shown("n;<Alt>f:n;<Control>n", ToolkitFamily::other, "New"), "⌃N");
    EXPECT_EQ(shown("f", ToolkitFamily::other, "File"), "");
    EXPECT_EQ(shown("Ctrl+S", ToolkitFamily::other, "Save"), "");
}

TEST(KeyBinding, ABareFunctionKeyHasTheMaskWithoutCommand) {
    const AxKeyEquivalent f11 = keyEquivalent({";;F11", ToolkitFamily::gtk, ""});
    EXPECT_EQ(f11.modifiers, 8);
    EXPECT_EQ(f11.character, "\uf70e");
    EXPECT_EQ(f11.glyph, std::nullopt);
    EXPECT_EQ(f11.virtualKey, std::nullopt);
}

TEST(KeyBinding, TheMaskSaysNoCommandUnlessSuperIsHeld) {
    EXPECT_EQ(keyEquivalent({"Ctrl+S", ToolkitFamily::qt, ""}).modifiers, 4 + 8);
    EXPECT_EQ(keyEquivalent({"Meta+S", ToolkitFamily::qt, ""}).modifiers, 0);
    EXPECT_EQ(keyEquivalent({"Meta+Alt+Shift+S", ToolkitFamily::qt, ""}).modifiers, 1 + 2);
}

TEST(KeyBinding, TheSpaceArrivesAsABlank) {
    EXPECT_EQ(keyEquivalent({";;<Primary>space", ToolkitFamily::gtk, ""}).character, " ");
    EXPECT_EQ(keyEquivalent({"Ctrl+Space", ToolkitFamily::qt, ""}).character, " ");
}

TEST(KeyBinding, NoShortcutLeavesEveryFieldAbsent) {
    EXPECT_EQ(keyEquivalent({";;Insert", ToolkitFamily::gtk, ""}), AxKeyEquivalent{});
    EXPECT_EQ(keyEquivalent({"Ins", ToolkitFamily::qt, ""}), AxKeyEquivalent{});
}

TEST(KeyBinding, EverySpecialKeyCanBeTold) {
    // Each by a GDK name that stands for it, in the order of the special keys.
    const std::vector<std::string> names{"Return",    "KP_Enter", "Tab",    "ISO_Left_Tab", "space",
                                         "BackSpace", "Delete",   "Escape", "Clear",        "Left",
                                         "Right",     "Up",       "Down",   "Page_Up",      "Page_Down",
                                         "Home",      "End",      "Help",   "XF86Eject"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto shortcut = Shortcut::fromAX(keyEquivalent({";;" + names[i], ToolkitFamily::gtk, ""}));
        ASSERT_TRUE(shortcut) << names[i];
        ASSERT_TRUE(shortcut->key.asSpecial()) << names[i];
        EXPECT_EQ(*shortcut->key.asSpecial(), allSpecialKeys[i]) << names[i];
    }
}

TEST(ToolkitFamilyNames, AreRecognisedWhateverTheirCase) {
    EXPECT_EQ(toolkitFamily("gtk"), ToolkitFamily::gtk);
    EXPECT_EQ(toolkitFamily("GTK"), ToolkitFamily::gtk);
    EXPECT_EQ(toolkitFamily("GAIL"), ToolkitFamily::gtk);
    EXPECT_EQ(toolkitFamily("Qt"), ToolkitFamily::qt);
    EXPECT_EQ(toolkitFamily("Gecko"), ToolkitFamily::other);
    EXPECT_EQ(toolkitFamily(""), ToolkitFamily::other);
}

} // namespace
} // namespace quillon::atspi
