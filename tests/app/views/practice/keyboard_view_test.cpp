#include <quillon/app/views/practice/keyboard_plan.h>
#include <quillon/app/views/practice/keyboard_view.h>
#include <quillon/app/views/practice/lit_keys.h>
#include <quillon/kit/shortcut/key_code.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace Codes = ModifierKeyCodes;

Shortcut shortcut(Modifiers held, std::string character) {
    return {held, Key::character(std::move(character))};
}

std::int64_t place(std::string_view character) {
    return KeyCodes::ofCharacter(character).value_or(-1);
}

/// What a German keyboard has in some places.
PrintedKeys germanKeys() {
    return {
        .shape = KeyboardShape::iso,
        .keys = {
            {place("Y"), {"z", "Z"}},
            {place("Z"), {"y", "Y"}},
            {place("]"), {"+", "*"}},
            {place("7"), {"7", "/"}},
            {KeyCodes::isoSection, {"<", ">"}}}};
}

TEST(LitKeysTest, AreThoseOfTheModifiersAndTheKey) {
    const PrintedKeys usual = usualKeys();
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control | Modifiers::shift, "S"), usual),
        UnorderedElementsAre(Codes::control, Codes::shift, place("S")));
    EXPECT_THAT(
        litKeys({Modifiers::command | Modifiers::option, Key::special(SpecialKey::left)}, usual),
        UnorderedElementsAre(Codes::command, Codes::option, 123));
    EXPECT_THAT(
        litKeys({Modifiers::control, Key::special(SpecialKey::backTab)}, usual),
        UnorderedElementsAre(Codes::control, Codes::shift, 48));
}

TEST(LitKeysTest, AreWhereTheLayoutHasThem) {
    const PrintedKeys german = germanKeys();
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control, "Z"), german), UnorderedElementsAre(Codes::control, place("Y")));
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control, "+"), german), UnorderedElementsAre(Codes::control, place("]")));
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control, "/"), german),
        UnorderedElementsAre(Codes::control, Codes::shift, place("7")))
        << "a character that takes ⇧";
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control, "<"), german),
        UnorderedElementsAre(Codes::control, KeyCodes::isoSection));
}

TEST(LitKeysTest, AKeyThatTheKeyboardLacksIsMissing) {
    EXPECT_THAT(
        litKeys(shortcut(Modifiers::control, "Ж"), usualKeys()), UnorderedElementsAre(Codes::control));
    EXPECT_THAT(litKeys({{}, Key::special(SpecialKey::eject)}, usualKeys()), IsEmpty());
}

TEST(KeyboardPlanTest, NoTwoKeysAreInOnePlace) {
    for (const KeyboardShape shape : {KeyboardShape::ansi, KeyboardShape::iso}) {
        const std::vector<PlannedKey> keys = keyboardPlan(shape);
        std::map<std::int64_t, int> found;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            EXPECT_TRUE(QRectF(QPointF(), keyboardSize).contains(keys[i].place)) << i;
            EXPECT_TRUE(!keys[i].code || ++found[*keys[i].code] == 1) << *keys[i].code;
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_TRUE(keys[i].place.intersected(keys[j].place).isEmpty()) << i << ", " << j;
                EXPECT_TRUE(!keys[i].more || keys[i].more->intersected(keys[j].place).isEmpty());
            }
        }
        for (const auto& [code, print] : usualKeys().keys)
            EXPECT_EQ(found[code], 1) << print.plain;
        EXPECT_EQ(found.contains(KeyCodes::isoSection), shape == KeyboardShape::iso);
    }
}

TEST(KeyboardViewTest, LightsAndSaysTheKeys) {
    ViewDesk desk;
    KeyboardView view(desk.themes);
    EXPECT_THAT(view.lit(), IsEmpty());
    EXPECT_EQ(view.accessibleName(), u"Keyboard"_s);
    view.light(shortcut(Modifiers::control, "S"), shortcut(Modifiers::option, "S"));
    EXPECT_THAT(view.lit(), UnorderedElementsAre(Codes::control, place("S")));
    EXPECT_THAT(view.marked(), UnorderedElementsAre(Codes::option, place("S")));
    EXPECT_EQ(view.accessibleName(), u"Keyboard, lit: ⌃S"_s);
    desk.settings.setKeyLabels(KeyLabels::names);
    EXPECT_EQ(view.accessibleName(), u"Keyboard, lit: Ctrl S"_s);
    view.light(std::nullopt);
    EXPECT_THAT(view.lit(), IsEmpty());
    EXPECT_THAT(view.marked(), IsEmpty());
    EXPECT_EQ(view.accessibleName(), u"Keyboard"_s);
}

TEST(KeyboardViewTest, FollowsTheLayout) {
    ViewDesk desk;
    KeyboardView view(desk.themes);
    view.light(shortcut(Modifiers::control, "Z"));
    view.setPrinted(germanKeys());
    EXPECT_THAT(view.lit(), UnorderedElementsAre(Codes::control, place("Y")));
}

} // namespace
} // namespace quillon
