#include <quillon/app/views/practice/answer_keys.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

std::optional<AnswerKeys> pressed(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    return answerKeys(QKeyEvent(QEvent::KeyPress, key, held));
}

std::string shown(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    const auto keys = pressed(key, held);
    return keys ? keys->shortcut.display() : "none";
}

TEST(AnswerKeysTest, AreShownAsMenusShowThem) {
    EXPECT_EQ(shown(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier), "⌃⇧S");
    EXPECT_EQ(shown(Qt::Key_S), "S");
    EXPECT_EQ(shown(Qt::Key_F5), "F5");
    EXPECT_EQ(shown(Qt::Key_F19, Qt::MetaModifier), "⌘F19");
    EXPECT_EQ(shown(Qt::Key_Delete, Qt::AltModifier), "⌥⌦");
    EXPECT_EQ(shown(Qt::Key_Odiaeresis, Qt::ControlModifier), "⌃Ö");
}

TEST(AnswerKeysTest, AreTheUseOfTheShortcutThatTheyShow) {
    for (const int key : {+Qt::Key_A, +Qt::Key_Comma, +Qt::Key_9, +Qt::Key_F1, +Qt::Key_Left, +Qt::Key_Space})
        for (const Qt::KeyboardModifiers shift :
             {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
            if (key == Qt::Key_Comma && shift)
                continue; // no keyboard gives a comma with ⇧ and tells it as one
            const auto keys = pressed(key, Qt::ControlModifier | shift);
            ASSERT_TRUE(keys) << key;
            EXPECT_TRUE(keys->stroke.matches(keys->shortcut)) << keys->shortcut.display();
        }
}

TEST(AnswerKeysTest, ASymbolCountsByWhatItIsAndByItsKey) {
    const auto plus = pressed(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(plus);
    EXPECT_TRUE(plus->stroke.matches({Modifiers::control | Modifiers::shift, Key::character("=")}));
    EXPECT_FALSE(plus->stroke.matches({Modifiers::control, Key::character("-")}));
}

TEST(AnswerKeysTest, AreNoneOfModifiersAndKeysWithoutAName) {
    for (const int key :
         {+Qt::Key_Control, +Qt::Key_Shift, +Qt::Key_Super_L, +Qt::Key_AltGr, +Qt::Key_CapsLock,
          +Qt::Key_Dead_Acute, +Qt::Key_Print, +Qt::Key_VolumeUp, +Qt::Key_unknown, 0})
        EXPECT_FALSE(pressed(key, Qt::ControlModifier)) << key;
}

TEST(AnswerKeysTest, LeaveTheWindowItsOwn) {
    for (const int key :
         {+Qt::Key_Tab, +Qt::Key_Return, +Qt::Key_Enter, +Qt::Key_Space, +Qt::Key_Escape, +Qt::Key_Left,
          +Qt::Key_Right, +Qt::Key_Up, +Qt::Key_Down}) {
        EXPECT_FALSE(pressed(key)) << key;
        EXPECT_TRUE(pressed(key, Qt::ControlModifier)) << key;
    }
    EXPECT_FALSE(pressed(Qt::Key_Backtab, Qt::ShiftModifier));
    EXPECT_EQ(shown(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), "⌃⇧⇥");
}

} // namespace
} // namespace quillon
