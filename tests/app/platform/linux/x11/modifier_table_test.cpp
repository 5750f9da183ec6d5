#include <quillon/app/platform/linux/x11/modifier_table.h>

#include <xkbcommon/xkbcommon-keysyms.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr std::uint32_t shiftBit = 1;
constexpr std::uint32_t lockBit = 2;
constexpr std::uint32_t controlBit = 4;
constexpr std::uint32_t mod1Bit = 8;
constexpr std::uint32_t mod2Bit = 16;
constexpr std::uint32_t mod4Bit = 64;
constexpr std::uint32_t mod5Bit = 128;

TEST(ModifierTableTest, AnOrdinaryKeyboardHasAltOnMod1AndSuperOnMod4) {
    const ModifierTable table;
    EXPECT_EQ(table.modifiers(0), Modifiers());
    EXPECT_EQ(table.modifiers(shiftBit), Modifiers::shift);
    EXPECT_EQ(table.modifiers(controlBit), Modifiers::control);
    EXPECT_EQ(table.modifiers(mod1Bit), Modifiers::option);
    EXPECT_EQ(table.modifiers(mod4Bit), Modifiers::command);
    EXPECT_EQ(
        table.modifiers(shiftBit | controlBit | mod1Bit | mod4Bit),
        Modifiers::shift | Modifiers::control | Modifiers::option | Modifiers::command);
}

TEST(ModifierTableTest, LocksStandForNothing) {
    EXPECT_EQ(ModifierTable().modifiers(lockBit | mod2Bit), Modifiers());
}

TEST(ModifierTableTest, FollowsTheKeysThatAreBound) {
    ModifierTable::Symbols symbols;
    symbols[3] = {XKB_KEY_Super_L};
    symbols[6] = {XKB_KEY_Alt_L, XKB_KEY_Alt_R};
    const ModifierTable table(symbols);
    EXPECT_EQ(table.modifiers(mod1Bit), Modifiers::command);
    EXPECT_EQ(table.modifiers(mod4Bit), Modifiers::option);
}

TEST(ModifierTableTest, AltWinsOverTheMetaThatSharesItsKey) {
    ModifierTable::Symbols symbols;
    symbols[3] = {XKB_KEY_Alt_L, XKB_KEY_Meta_L};
    EXPECT_EQ(ModifierTable(symbols).modifiers(mod1Bit), Modifiers::option);
}

TEST(ModifierTableTest, MetaWithoutAltIsCommand) {
    ModifierTable::Symbols symbols;
    symbols[6] = {XKB_KEY_Meta_L, XKB_KEY_Hyper_L};
    EXPECT_EQ(ModifierTable(symbols).modifiers(mod4Bit), Modifiers::command);
}

TEST(ModifierTableTest, LevelChoosersStandForNothing) {
    ModifierTable::Symbols symbols;
    symbols[7] = {XKB_KEY_ISO_Level3_Shift, XKB_KEY_Mode_switch};
    EXPECT_EQ(ModifierTable(symbols).modifiers(mod5Bit), Modifiers());
}

TEST(ModifierTableTest, BitsBeyondTheEightAreIgnored) {
    EXPECT_EQ(ModifierTable().modifiers(0xFFFFFF00), Modifiers());
}

TEST(ModifierSymbolTest, ModifiersLocksAndLevelChoosersAreNoOrdinaryKeys) {
    for (const std::uint32_t symbol :
         {XKB_KEY_Shift_L, XKB_KEY_Control_R, XKB_KEY_Caps_Lock, XKB_KEY_Alt_L, XKB_KEY_Meta_R,
          XKB_KEY_Super_L, XKB_KEY_Hyper_R, XKB_KEY_ISO_Level3_Shift, XKB_KEY_ISO_Level5_Lock,
          XKB_KEY_Mode_switch, XKB_KEY_Num_Lock})
        EXPECT_TRUE(isModifierSymbol(symbol)) << symbol;
    for (const std::uint32_t symbol :
         {XKB_KEY_a, XKB_KEY_Escape, XKB_KEY_Delete, XKB_KEY_F1, XKB_KEY_ISO_Left_Tab, XKB_KEY_Print})
        EXPECT_FALSE(isModifierSymbol(symbol)) << symbol;
}

} // namespace
} // namespace quillon
