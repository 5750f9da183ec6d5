#include <quillon/app/core/trigger_key.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TriggerKey, ReadsItsStoredForms) {
    EXPECT_EQ(triggerKeyFromRawValue("command"), TriggerKey::command);
    EXPECT_EQ(triggerKeyFromRawValue("option"), TriggerKey::option);
    EXPECT_EQ(triggerKeyFromRawValue("control"), TriggerKey::control);
}

TEST(TriggerKey, TakesAnythingElseForCommand) {
    for (const char* text : {"", "shift", "Command", "option ", "⌥"})
        EXPECT_EQ(triggerKeyFromRawValue(text), TriggerKey::command) << text;
}

TEST(TriggerKey, HasAModifierAndAGlyph) {
    EXPECT_EQ(modifier(TriggerKey::command), Modifiers::command);
    EXPECT_EQ(modifier(TriggerKey::option), Modifiers::option);
    EXPECT_EQ(modifier(TriggerKey::control), Modifiers::control);
    EXPECT_EQ(glyph(TriggerKey::command), "⌘");
    EXPECT_EQ(glyph(TriggerKey::option), "⌥");
    EXPECT_EQ(glyph(TriggerKey::control), "⌃");
}

TEST(TriggerKey, RoundTripsThroughItsStoredForm) {
    for (const TriggerKey key : allTriggerKeys)
        EXPECT_EQ(triggerKeyFromRawValue(rawValue(key)), key);
}

} // namespace
} // namespace quillon
