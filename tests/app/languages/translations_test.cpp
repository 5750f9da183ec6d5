#include <quillon/app/languages/translations.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

QString quitItem() {
    return QCoreApplication::translate("Tray", "Quit Quillon");
}

QString clicked(int times) {
    return QCoreApplication::translate("Overlay", "clicked %1 times", nullptr, times).arg(times);
}

QString found(int count) {
    return QCoreApplication::translate("Overlay", "%1 of %2 shortcuts", nullptr, count).arg(1).arg(count);
}

TEST(Translations, AreGermanSpanishAndFrench) {
    EXPECT_EQ(Translations::available(), (QStringList{u"de"_s, u"es"_s, u"fr"_s}));
}

TEST(Translations, AreOfTheFirstLanguageThatTheProgramSpeaks) {
    const auto languageOf = [](const QStringList& locales) { return Translations(locales).language(); };
    EXPECT_EQ(languageOf({u"de-AT"_s}), u"de"_s);
    EXPECT_EQ(languageOf({u"de_CH.UTF-8"_s}), u"de"_s);
    EXPECT_EQ(languageOf({u"sv"_s, u"fr-CA"_s, u"de"_s}), u"fr"_s);
    EXPECT_EQ(languageOf({u"es@latin"_s}), u"es"_s);
    EXPECT_EQ(languageOf({u"en-GB"_s, u"de"_s}), u"en"_s) << "English stands before German";
    EXPECT_EQ(languageOf({u"sv"_s, u"den"_s}), u"en"_s);
    EXPECT_EQ(languageOf({}), u"en"_s);
}

TEST(Translations, LastAsLongAsTheyLive) {
    EXPECT_EQ(quitItem(), u"Quit Quillon"_s);
    {
        const Translations german({u"de"_s});
        EXPECT_EQ(quitItem(), u"Quillon beenden"_s);
    }
    EXPECT_EQ(quitItem(), u"Quit Quillon"_s);
    const Translations french({u"fr"_s});
    EXPECT_EQ(quitItem(), u"Quitter Quillon"_s);
}

TEST(Translations, LeaveEnglishWordForWord) {
    const Translations english({u"en"_s});
    EXPECT_EQ(clicked(1), u"clicked 1 times"_s);
    EXPECT_EQ(clicked(2), u"clicked 2 times"_s);
}

TEST(Translations, HaveAFormForOneAndOneForMore) {
    {
        const Translations german({u"de"_s});
        EXPECT_EQ(clicked(1), u"1-mal geklickt"_s);
        EXPECT_EQ(found(1), u"1 von 1 Tastenkürzel"_s);
        EXPECT_EQ(found(2), u"1 von 2 Tastenkürzeln"_s);
        EXPECT_EQ(found(0), u"1 von 0 Tastenkürzeln"_s);
    }
    {
        const Translations french({u"fr"_s});
        EXPECT_EQ(clicked(0), u"0 clic"_s) << "in French nothing is singular";
        EXPECT_EQ(clicked(1), u"1 clic"_s);
        EXPECT_EQ(clicked(2), u"2 clics"_s);
    }
    const Translations spanish({u"es"_s});
    EXPECT_EQ(clicked(1), u"1 clic"_s);
    EXPECT_EQ(clicked(2), u"2 clics"_s);
}

} // namespace
} // namespace quillon
