#include <quillon/app/core/updates/web_address.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

QUrl url(const char* text) {
    return QUrl(QString::fromUtf8(text));
}

TEST(WebAddressTest, AFeedIsHttps) {
    EXPECT_TRUE(WebAddress::isFeed(url("https://example.org/appcast.xml")));
    EXPECT_TRUE(WebAddress::isFeed(url("HTTPS://example.org/appcast.xml")));
    for (const char* const other :
         {"", "appcast.xml", "http://example.org/appcast.xml", "https:///appcast.xml", "file:///etc/passwd",
          "ftp://example.org/a", "data:text/xml,<rss/>", "http://127.0.0.1.example.org/", "http://10.0.0.1/",
          "http://localhost.example.org/"})
        EXPECT_FALSE(WebAddress::isFeed(url(other))) << other;
}

TEST(WebAddressTest, AFeedOnThisComputerMayBePlain) {
    for (const char* const local :
         {"http://127.0.0.1:8080/a", "http://localhost/a", "http://[::1]:80/a", "http://127.1.2.3/"})
        EXPECT_TRUE(WebAddress::isFeed(url(local))) << local;
}

TEST(WebAddressTest, ARequestIsNeverLedToSomethingLessSafe) {
    const QUrl safe = url("https://example.org/a");
    const QUrl local = url("http://127.0.0.1/a");
    EXPECT_TRUE(WebAddress::mayLead(safe, url("https://cdn.example.org/b")));
    EXPECT_FALSE(WebAddress::mayLead(safe, url("http://example.org/a")));
    EXPECT_FALSE(WebAddress::mayLead(safe, url("http://127.0.0.1/b")));
    EXPECT_FALSE(WebAddress::mayLead(safe, url("file:///etc/passwd")));
    EXPECT_TRUE(WebAddress::mayLead(local, url("http://127.0.0.1/b")));
    EXPECT_TRUE(WebAddress::mayLead(local, safe));
    EXPECT_FALSE(WebAddress::mayLead(local, url("http://example.org/a")));
}

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
