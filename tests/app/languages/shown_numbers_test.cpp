#include <quillon/app/languages/shown_numbers.h>
#include <quillon/app/languages/translations.h>

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(ShownNumbersTest, HaveOneDecimal) {
    EXPECT_EQ(withOneDecimal(0.3), u"0.3"_s);
    EXPECT_EQ(withOneDecimal(2), u"2.0"_s);
    EXPECT_EQ(withOneDecimal(0.84), u"0.8"_s);
    EXPECT_EQ(withOneDecimal(12.06), u"12.1"_s);
    EXPECT_EQ(withOneDecimal(-0.5), u"-0.5"_s);
}

TEST(PluralFormTest, IsTheCountOrTheNearest) {
    EXPECT_EQ(pluralForm(0), 0);
    EXPECT_EQ(pluralForm(1), 1);
    EXPECT_EQ(pluralForm(1234), 1234);
    EXPECT_EQ(pluralForm(-1), 0);
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(pluralForm(qint64(most) + 2), most) << "cut off it would be another form";
    EXPECT_EQ(pluralForm(std::numeric_limits<qint64>::max()), most);
    EXPECT_EQ(pluralForm(std::numeric_limits<qint64>::min()), 0);
}

TEST(ShownNumbersTest, HaveTheMarkOfTheLanguage) {
    for (const QString& language : {u"de"_s, u"fr"_s, u"es"_s}) {
        const Translations translations({language});
        EXPECT_EQ(withOneDecimal(0.8), u"0,8"_s) << language.toStdString();
    }
}

} // namespace
} // namespace quillon
