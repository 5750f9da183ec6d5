#include <quillon/app/core/updates/web/feed_address.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

QUrl url(const char* text) {
    return QUrl(QString::fromUtf8(text));
}

TEST(FeedAddressTest, AFeedIsHttps) {
    EXPECT_TRUE(FeedAddress::isFeed(url("https://example.org/appcast.xml")));
    EXPECT_TRUE(FeedAddress::isFeed(url("HTTPS://example.org/appcast.xml")));
    for (const char* const other :
         {"", "appcast.xml", "http://example.org/appcast.xml", "https:///appcast.xml", "file:///etc/passwd",
          "ftp://example.org/a", "data:text/xml,<rss/>", "http://127.0.0.1.example.org/", "http://10.0.0.1/",
          "http://localhost.example.org/"})
        EXPECT_FALSE(FeedAddress::isFeed(url(other))) << other;
}

TEST(FeedAddressTest, AFeedOnThisComputerMayBePlain) {
    for (const char* const local :
         {"http://127.0.0.1:8080/a", "http://localhost/a", "http://[::1]:80/a", "http://127.1.2.3/"})
        EXPECT_TRUE(FeedAddress::isFeed(url(local))) << local;
}

TEST(FeedAddressTest, ARequestIsNeverLedToSomethingLessSafe) {
    const QUrl safe = url("https://example.org/a");
    const QUrl local = url("http://127.0.0.1/a");
    EXPECT_TRUE(FeedAddress::mayLead(safe, url("https://cdn.example.org/b")));
    EXPECT_FALSE(FeedAddress::mayLead(safe, url("http://example.org/a")));
    EXPECT_FALSE(FeedAddress::mayLead(safe, url("http://127.0.0.1/b")));
    EXPECT_FALSE(FeedAddress::mayLead(safe, url("file:///etc/passwd")));
    EXPECT_TRUE(FeedAddress::mayLead(local, url("http://127.0.0.1/b")));
    EXPECT_TRUE(FeedAddress::mayLead(local, safe));
    EXPECT_FALSE(FeedAddress::mayLead(local, url("http://example.org/a")));
}

} // namespace
} // namespace quillon
