#include <quillon/app/views/welcome/welcome_texts.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(WelcomeTexts, GreetAndPromise) {
    EXPECT_EQ(WelcomeTexts::title(), u"Welcome to Quillon"_s);
    EXPECT_EQ(WelcomeTexts::promise(), u"Learn the shortcuts of the apps you already use."_s);
    EXPECT_EQ(WelcomeTexts::later(), u"Later"_s);
    EXPECT_EQ(WelcomeTexts::done(), u"Done"_s);
}

TEST(WelcomeTexts, AskForThePermission) {
    EXPECT_EQ(WelcomeTexts::allowTitle(), u"Allow Accessibility"_s);
    EXPECT_EQ(WelcomeTexts::allowAccessibility(), u"Allow Accessibility…"_s);
    EXPECT_EQ(WelcomeTexts::openSystemSettings(), u"Open System Settings"_s);
    EXPECT_EQ(WelcomeTexts::allowed(), u"Allowed"_s);
}

TEST(WelcomeTexts, TellWhereThePermissionIsGivenOnEachPlatform) {
    EXPECT_EQ(
        WelcomeTexts::allowBody(Vocabulary::macOS()),
        u"Quillon reads the front app’s menus to find their shortcuts. macOS asks you to allow this once in "
        "System Settings > Privacy & Security > Accessibility. Turn on Quillon there; this window notices by "
        "itself."_s);
    EXPECT_EQ(
        WelcomeTexts::allowBody(Vocabulary::linuxDesktop()),
        u"Quillon reads the front app’s menus to find their shortcuts. Your desktop asks you to allow this "
        "once in its accessibility settings or in this window. Turn on accessibility there; this window "
        "notices by itself."_s);
}

TEST(WelcomeTexts, NameTheTriggerKey) {
    EXPECT_EQ(WelcomeTexts::holdTitle(u"⌘"_s), u"Hold ⌘ in any app"_s);
    EXPECT_EQ(WelcomeTexts::holdTitle(u"⌥"_s), u"Hold ⌥ in any app"_s);
    EXPECT_EQ(
        WelcomeTexts::holdBody(TriggerKey::option, u"⌥"_s),
        u"Keep the Option key (⌥) down for a moment and that app’s shortcuts appear, grouped by menu. Let go "
        "to close it, or click it to keep it open and search. No other permission is needed for this."_s);
    EXPECT_TRUE(WelcomeTexts::holdBody(TriggerKey::command, u"Super"_s)
                    .startsWith(u"Keep the Command key (Super) down "_s));
    EXPECT_TRUE(
        WelcomeTexts::holdBody(TriggerKey::control, u"⌃"_s).startsWith(u"Keep the Control key (⌃) down "_s));
}

TEST(WelcomeTexts, TellWhatThisDesktopAsksFor) {
    EXPECT_EQ(
        WelcomeTexts::opensLauncher(u"⌘"_s),
        u"Your desktop opens its launcher when ⌘ is pressed alone, so holding it may do both."_s);
    EXPECT_EQ(WelcomeTexts::useInstead(u"⌃"_s), u"Use ⌃ Instead"_s);
    EXPECT_EQ(
        WelcomeTexts::restart({u"Designer"_s}),
        u"To show the shortcuts of what was open before, quit it and start it again: Designer"_s);
    EXPECT_TRUE(WelcomeTexts::restart({u"A"_s, u"B"_s}).contains(u"A"_s));
    EXPECT_TRUE(WelcomeTexts::withoutTray().startsWith(u"This desktop shows no tray icons. "_s));
}

TEST(WelcomeTexts, TellWhatStays) {
    EXPECT_EQ(WelcomeTexts::privacyTitle(Vocabulary::macOS()), u"Nothing leaves your Mac"_s);
    EXPECT_EQ(WelcomeTexts::privacyTitle(Vocabulary::linuxDesktop()), u"Nothing leaves your computer"_s);
    EXPECT_EQ(
        WelcomeTexts::privacyBody(Vocabulary::macOS()),
        u"Menus, counts, pins and notes stay in your Library folder. Quillon only notices shortcuts and menu "
        "clicks (never what you type) and goes online only to look for updates."_s);
    EXPECT_TRUE(WelcomeTexts::privacyBody(Vocabulary::linuxDesktop())
                    .startsWith(u"Menus, counts, pins and notes stay in your data folder. Quillon only "_s));
}

} // namespace
} // namespace quillon
