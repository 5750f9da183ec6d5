#include "settings_fixture.h"

#include <quillon/app/languages/translations.h>
#include <quillon/app/views/settings/coach_page.h>
#include <quillon/app/views/settings/general_page.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::IsSupersetOf;

/// The settings of someone whose session is in German.
class GermanSettingsTest : public SettingsViewTest {
  protected:
    GermanSettingsTest() { open(); }

  private:
    Translations m_german{{u"de"_s}};
};

TEST_F(GermanSettingsTest, AreGermanToEyesAndScreenReaders) {
    EXPECT_THAT(
        texts(), IsSupersetOf(
                     {u"Diese Taste halten"_s, u"Haltedauer"_s, u"Tasten zeigen als"_s, u"Barrierefreiheit"_s,
                      u"⌘ ist die Super- oder Windows-Taste, ⌥ ist Alt, ⌃ ist Strg."_s}));
    EXPECT_EQ(view->general().trigger().currentText(), u"Befehl"_s);
    const auto labels = read(view->general().keyLabels()).relations(QAccessible::Label);
    ASSERT_FALSE(labels.isEmpty());
    EXPECT_EQ(labels.constFirst().first->text(QAccessible::Name), u"Tasten zeigen als"_s);
}

TEST_F(GermanSettingsTest, CallKeysAsAGermanKeyboardDoes) {
    desk.model.setTrigger(TriggerKey::control);
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_THAT(
        texts(), Contains(u"Wird die Taste in einem Tastenkürzel benutzt (Strg-Klick), öffnet sich die "
                          "Übersicht nie."_s));
}

TEST_F(GermanSettingsTest, WriteNumbersAsGermansDo) {
    desk.model.setHoldDelay(Seconds(1.2));
    EXPECT_EQ(read(view->general().holdTime()).text(QAccessible::Value), u"1,2 s"_s);
}

TEST_F(GermanSettingsTest, TellHowOftenInTheRightForm) {
    openTab(SettingsTab::coach);
    EXPECT_THAT(texts(), Contains(testing::Truly([](const QString& text) {
                    return text.contains(u"sobald Sie es 5-mal öfter getippt als geklickt haben"_s);
                })));
}

} // namespace
} // namespace quillon
