#include <quillon/tests/app/platform/linux/x11/support/test_keys.h>
#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/raw_input.h>
#include <quillon/app/platform/linux/x11/x11_key_reading.h>
#include <quillon/app/platform/qt/thread_background.h>
#include <quillon/kit/shortcut/key_code.h>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace testkeys;

constexpr std::uint32_t withShift = XCB_MOD_MASK_SHIFT;
constexpr std::uint32_t withControl = XCB_MOD_MASK_CONTROL;
constexpr std::uint32_t withSuper = XCB_MOD_MASK_4;
constexpr std::uint32_t withCapsLock = XCB_MOD_MASK_LOCK;
constexpr std::uint32_t inSecondLayout = 1U << 13;

struct X11KeyReadingTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        keyboard = std::make_unique<X11Keyboard>(x11, std::make_shared<RawInput>(x11));
        keys = std::make_unique<X11KeyReading>(*keyboard, background, x11Display());
    }
    void follow() {
        following = keys->follow([this] {
            ++changes;
            printedY = printedOn("Y");
        });
        ASSERT_TRUE(waitFor([this] { return changes > 0; }));
    }
    std::string read(std::uint32_t key, std::uint32_t state) {
        const auto stroke = keys->stroke({key, state});
        return stroke ? stroke->modifiers.glyphs() + stroke->characters : "none";
    }
    std::string printedOn(const char* key) {
        const auto printed = keys->printed();
        return printed ? printed->keys.at(KeyCodes::ofCharacter(key).value_or(-1)).plain : "";
    }

    ThreadBackground background;
    std::unique_ptr<X11Keyboard> keyboard;
    std::unique_ptr<X11KeyReading> keys;
    int changes = 0;
    std::string printedY; ///< when a change was last told
    Subscription following;
};

TEST_F(X11KeyReadingTest, NothingIsKnownWithoutAFollower) {
    EXPECT_FALSE(keys->stroke({letterS, withControl}));
    EXPECT_FALSE(keys->printed());
    follow();
    EXPECT_TRUE(keys->stroke({letterS, withControl}));
    EXPECT_TRUE(keys->printed());
    following.reset();
    EXPECT_FALSE(keys->stroke({letterS, withControl}));
}

TEST_F(X11KeyReadingTest, APressIsReadByItsOwnState) {
    follow();
    EXPECT_EQ(read(letterS, withControl), "⌃s");
    EXPECT_EQ(read(letterS, withControl | withShift), "⌃⇧S");
    EXPECT_EQ(read(letterS, withSuper | withCapsLock), "⌘s");
    EXPECT_EQ(read(keyCode(KEY_1), withShift), "⇧!");
    EXPECT_EQ(read(leftControl, 0), "none");
    EXPECT_EQ(read(leftSuper, withSuper), "none");
    const auto named = keys->stroke({keyCode(KEY_F4), withControl});
    ASSERT_TRUE(named);
    EXPECT_EQ(SpecialKeys::fromKeyCode(named->keyCode), SpecialKey::f4);
}

TEST_F(X11KeyReadingTest, ADeadKeyIsReadByItsAccent) {
    client->changeSymbols(
        keyCode(KEY_EQUAL), {XKB_KEY_dead_acute, XKB_KEY_dead_grave, XKB_KEY_dead_acute, XKB_KEY_dead_grave});
    settle();
    follow();
    ASSERT_TRUE(waitFor([this] { return read(keyCode(KEY_EQUAL), withControl) == "⌃´"; }));
    EXPECT_EQ(read(keyCode(KEY_EQUAL), withControl | withShift), "⌃⇧`");
}

TEST_F(X11KeyReadingTest, TheLayoutIsThatOfThePress) {
    client->changeSymbols(keyCode(KEY_Y), {XKB_KEY_y, XKB_KEY_Y, XKB_KEY_z, XKB_KEY_Z});
    settle();
    follow();
    ASSERT_TRUE(waitFor([this] { return read(keyCode(KEY_Y), withControl | inSecondLayout) == "⌃z"; }));
    EXPECT_EQ(read(keyCode(KEY_Y), withControl), "⌃y");
}

TEST_F(X11KeyReadingTest, AnotherMapIsTold) {
    follow();
    const int before = changes;
    client->changeSymbol(keyCode(KEY_A), XKB_KEY_q);
    ASSERT_TRUE(waitFor([&] { return changes > before && read(keyCode(KEY_A), withControl) == "⌃q"; }));
    EXPECT_EQ(printedOn("A"), "q");
}

TEST_F(X11KeyReadingTest, AnotherLayoutIsTold) {
    client->changeSymbols(keyCode(KEY_Y), {XKB_KEY_y, XKB_KEY_Y, XKB_KEY_z, XKB_KEY_Z});
    settle();
    follow();
    ASSERT_TRUE(waitFor([this] { return read(keyCode(KEY_Y), inSecondLayout) == "z"; }));
    EXPECT_EQ(printedY, "y");
    client->lockGroup(1);
    EXPECT_TRUE(waitFor([this] { return printedY == "z"; }));
    client->lockGroup(0);
    EXPECT_TRUE(waitFor([this] { return printedY == "y"; }));
}

} // namespace
} // namespace quillon
