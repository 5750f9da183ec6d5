#include <quillon/app/views/overlay/overlay_texts.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

MessageWords messageOn(const Vocabulary& platform, OverlayState state) {
    return OverlayTexts::message(state, u"Sketchpad"_s, u"⌘"_s, platform);
}

TEST(OverlayTexts, AskForPermissionInThePlatformsWords) {
    const MessageWords mac = messageOn(Vocabulary::macOS(), OverlayState::needsAccessibility);
    EXPECT_EQ(mac.symbol, Symbol::handRaised);
    EXPECT_EQ(mac.title, u"Quillon needs Accessibility to read menus"_s);
    EXPECT_EQ(
        mac.body,
        u"Allow it once in System Settings > Privacy & Security > Accessibility. Nothing leaves your Mac."_s);
    EXPECT_EQ(mac.action, u"Show Me How"_s);

    const MessageWords here = messageOn(Vocabulary::linuxDesktop(), OverlayState::needsAccessibility);
    EXPECT_EQ(
        here.body,
        u"Allow it once in your desktop’s accessibility settings. Nothing leaves your computer."_s);
    EXPECT_EQ(here.title, mac.title);
    EXPECT_EQ(here.action, mac.action);
}

TEST(OverlayTexts, TellEveryOtherState) {
    const Vocabulary& mac = Vocabulary::macOS();
    EXPECT_EQ(
        messageOn(mac, OverlayState::noSheet),
        (MessageWords{Symbol::keyboard, u"Switch to an app, then hold ⌘"_s, {}, {}, {}}));
    EXPECT_EQ(
        messageOn(mac, OverlayState::reading),
        (MessageWords{Symbol::hourglass, u"Reading Sketchpad’s menus…"_s, {}, {}}));
    EXPECT_EQ(
        messageOn(mac, OverlayState::noShortcuts),
        (MessageWords{
            Symbol::menuBarRectangle,
            u"No menu shortcuts in Sketchpad"_s,
            u"Some apps draw their own menus, which macOS doesn’t share."_s,
            {}}));
    EXPECT_EQ(
        messageOn(Vocabulary::linuxDesktop(), OverlayState::noShortcuts).body,
        u"Some apps draw their own menus, which Linux doesn’t share."_s);
}

TEST(OverlayTexts, CountAndCloseInPlainWords) {
    EXPECT_EQ(OverlayTexts::allShortcuts(59), u"59 shortcuts from its menus"_s);
    EXPECT_EQ(OverlayTexts::allShortcuts(1234), u"1234 shortcuts from its menus"_s);
    EXPECT_EQ(OverlayTexts::someShortcuts(0, 59), u"0 of 59 shortcuts"_s);
    EXPECT_EQ(OverlayTexts::closingHint(false, u"⌥"_s), u"Let go of ⌥ to close · click to keep it open"_s);
    EXPECT_EQ(OverlayTexts::closingHint(true, u"⌥"_s), u"Esc closes"_s);
    EXPECT_EQ(OverlayTexts::badge(14), u"clicked 14 times"_s);
    EXPECT_EQ(OverlayTexts::spokenBadge(14), u"You clicked this in the menu 14 times"_s);
    EXPECT_EQ(OverlayTexts::nothingMatches(u"xyz"_s).title, u"Nothing matches “xyz”"_s);
}

TEST(OverlayTexts, OnlyTheQueryIsShortened) {
    const MessageWords message = OverlayTexts::nothingMatches(u"N%1"_s);
    EXPECT_EQ(message.title, u"Nothing matches “N%1”"_s);
    EXPECT_EQ(message.title.mid(message.shortened.start, message.shortened.length), u"N%1"_s);
}

TEST(OverlayTexts, AnApplicationThatDoesNotAnswerIsSaidBelowTheEmptyStatesOwnWords) {
    const MessageWords empty = messageOn(Vocabulary::linuxDesktop(), OverlayState::noShortcuts);
    const MessageWords message = messageOn(Vocabulary::linuxDesktop(), OverlayState::noAnswer);
    EXPECT_EQ(message.title, empty.title);
    EXPECT_EQ(message.body, empty.body + u"\nSketchpad does not answer now."_s);
}

TEST(OverlayTexts, NamesWithPlaceholdersInThemAreLeftAlone) {
    EXPECT_EQ(
        OverlayTexts::message(OverlayState::reading, u"%1 %2 %n"_s, u"⌘"_s, Vocabulary::macOS()).title,
        u"Reading %1 %2 %n’s menus…"_s);
}

} // namespace
} // namespace quillon
