#include <quillon/app/core/updates/web_address.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(WebAddressTest, APageIsHttpsAndNamesNoUser) {
    EXPECT_EQ(WebAddress::page(u" https://example.org/new?a=b#c \n"_s), "https://example.org/new?a=b#c");
    EXPECT_EQ(WebAddress::page(u"https://example.org/gr\u00fcn"_s), "https://example.org/gr%C3%BCn");
    for (const char16_t* const other :
         {u"", u"http://example.org/", u"http://localhost/", u"javascript:alert(1)", u"//example.org/",
          u"/new", u"file:///etc/passwd", u"https://", u"https://your-bank.example@evil.example/", u"--help"})
        EXPECT_EQ(WebAddress::page(QString::fromUtf16(other)), std::nullopt)
            << QString::fromUtf16(other).toStdString();
    EXPECT_EQ(WebAddress::page(u"https://example.org/"_s + QString(WebAddress::longest, u'a')), std::nullopt);
}

} // namespace
} // namespace quillon
