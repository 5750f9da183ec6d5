#include <quillon/app/languages/shown_numbers.h>
#include <quillon/app/languages/translations.h>

#include <gtest/gtest.h>

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

TEST(ShownNumbersTest, HaveTheMarkOfTheLanguage) {
    for (const QString& language : {u"de"_s, u"fr"_s, u"es"_s}) {
        const Translations translations({language});
        EXPECT_EQ(withOneDecimal(0.8), u"0,8"_s) << language.toStdString();
    }
}

} // namespace
} // namespace quillon
