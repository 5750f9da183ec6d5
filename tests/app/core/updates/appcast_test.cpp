#include <quillon/app/core/updates/appcast.h>
#include <quillon/app/core/updates/feed_request.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

std::string list(const std::string& items) {
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle" xmlns:dc="http://purl.org/dc/elements/1.1/">
  <channel><title>Quillon</title><link>https://example.org/</link>)"
           + items + "</channel></rss>";
}

std::string versionsOf(const std::string& bytes) {
    const auto releases = Appcast::read(bytes);
    if (!releases)
        return "no list";
    std::string versions;
    for (const Release& release : *releases)
        versions += release.shownVersion + " ";
    return versions;
}

std::string item(const std::string& version, const std::string& more = "") {
    return "<item><sparkle:version>" + version + "</sparkle:version>" + more + "</item>";
}

TEST(AppcastTest, ReadsWhatAReleaseSaysInElements) {
    const auto releases = Appcast::read(list(R"(<item>
        <title>Version 2.0</title>
        <link>https://example.org/download</link>
        <sparkle:version>200</sparkle:version>
        <sparkle:shortVersionString> 2.0 </sparkle:shortVersionString>
        <sparkle:minimumSystemVersion>13.0</sparkle:minimumSystemVersion>
        <sparkle:releaseNotesLink>https://example.org/notes</sparkle:releaseNotesLink>
        <description><![CDATA[<ul><li>Faster</li></ul>]]></description>
        <pubDate>Wed, 01 May 2024 09:30:00 +0000</pubDate>
        <enclosure url="https://example.org/q.zip" length="1" type="application/octet-stream" sparkle:edSignature="x"/>
    </item>)"));
    ASSERT_TRUE(releases);
    EXPECT_THAT(
        *releases, ElementsAre(Release{
                       .version = *ReleaseVersion::fromText("2.0"),
                       .shownVersion = "2.0",
                       .notes = "<ul><li>Faster</li></ul>",
                       .notesPage = "https://example.org/notes",
                       .page = "https://example.org/download"}));
}

TEST(AppcastTest, ReadsVersionsThatStandAtTheFile) {
    EXPECT_EQ(versionsOf(list(R"(<item><enclosure sparkle:version="1.5" url="x"/></item>)")), "1.5 ");
    EXPECT_EQ(
        versionsOf(
            list(R"(<item><enclosure sparkle:version="42" sparkle:shortVersionString="1.5"/></item>)")),
        "1.5 ");
    EXPECT_EQ(
        versionsOf(
            list(R"(<item><sparkle:version>1.6</sparkle:version><enclosure sparkle:version="1.5"/></item>)")),
        "1.6 ");
}

TEST(AppcastTest, LeavesOutWhatIsNotForEverybodyHere) {
    EXPECT_EQ(
        versionsOf(list(
            item("1.0") + item("1.1", "<sparkle:channel>beta</sparkle:channel>")
            + item("1.2", R"(<enclosure sparkle:os="windows"/>)")
            + item("1.3", R"(<enclosure sparkle:os="linux"/>)") + item("1.4", "<sparkle:channel/>")
            + item("1.5", R"(<enclosure sparkle:os="macos"/>)"))),
        "1.0 1.3 1.4 ");
}

TEST(AppcastTest, LeavesOutWhatHasNoVersionThatCanBeRead) {
    EXPECT_EQ(
        versionsOf(
            list("<item><title>Version 3</title></item>" + item("soon") + item("<b>9</b>x y") + item("1.0"))),
        "1.0 ");
}

TEST(AppcastTest, OnlyPagesOfTheWebAreKept) {
    const auto releases = Appcast::read(list(item(
        "1.0", "<link>http://example.org/</link><sparkle:releaseNotesLink>file:///etc/passwd</"
               "sparkle:releaseNotesLink>")));
    ASSERT_TRUE(releases);
    ASSERT_EQ(releases->size(), 1U);
    EXPECT_EQ(releases->front().page, "");
    EXPECT_EQ(releases->front().notesPage, "");
}

TEST(AppcastTest, NotesMayBePlainText) {
    const auto releases =
        Appcast::read(list(item("1.0", R"(<description sparkle:format="plain-text">a &lt;b&gt;
c</description>)")));
    ASSERT_TRUE(releases);
    EXPECT_EQ(releases->front().notes, "a &lt;b&gt;<br>c");
}

TEST(AppcastTest, WordsOfOtherLanguagesOfTheFormatAreNotTaken) {
    EXPECT_EQ(
        versionsOf(list(item("1.0", "<dc:link>x</dc:link><version>9</version><dc:version>8</dc:version>"))),
        "1.0 ");
}

TEST(AppcastTest, AnEmptyListIsAList) {
    EXPECT_THAT(Appcast::read(list("")), Optional(IsEmpty()));
}

TEST(AppcastTest, WhatIsNoWholeListIsNone) {
    const std::string whole = list(item("1.0"));
    EXPECT_EQ(versionsOf(whole), "1.0 ");
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(versionsOf(whole.substr(0, length)), "no list") << length;
    for (const char* const other :
         {"", " ", "<html><body>Sign in to the network</body></html>", "<rss/>", "<rss></rss>",
          "{\"version\": 1}", "\xff\xfe\xfd", "<rss><channel/></rss><rss/>",
          "<feed><rss><channel/></rss></feed>"})
        EXPECT_EQ(versionsOf(other), "no list") << other;
    EXPECT_EQ(versionsOf(whole + "<more/>"), "no list");
}

TEST(AppcastTest, ADocumentTypeIsNotReadOn) {
    EXPECT_EQ(versionsOf("<!DOCTYPE rss [<!ENTITY v '1.0'>]>" + list(item("&v;")).substr(38)), "no list");
    EXPECT_EQ(versionsOf("<!DOCTYPE rss SYSTEM 'file:///etc/passwd'><rss><channel/></rss>"), "no list");
}

TEST(AppcastTest, SizeAndNumberHaveTheirLimits) {
    std::string items;
    for (std::size_t number = 0; number < Appcast::mostItems + 5; ++number)
        items += item("1." + std::to_string(number));
    const auto releases = Appcast::read(list(items));
    ASSERT_TRUE(releases);
    EXPECT_EQ(releases->size(), Appcast::mostItems);

    const std::string large = list(item("1.0"));
    EXPECT_NE(
        versionsOf(large + std::string(static_cast<std::size_t>(largestFeed) - large.size(), ' ')),
        "no list");
    EXPECT_EQ(
        versionsOf(large + std::string(static_cast<std::size_t>(largestFeed) - large.size() + 1, ' ')),
        "no list");
}

TEST(NewerReleaseTest, IsTheNewestOfThoseThatAreNewer) {
    const auto releases = Appcast::read(list(item("0.9") + item("1.10") + item("1.2") + item("1.10-beta")));
    ASSERT_TRUE(releases);
    const auto newer = [&](std::string_view own) {
        const auto release = newerRelease(*releases, *ReleaseVersion::fromText(own));
        return release ? release->shownVersion : "none";
    };
    EXPECT_EQ(newer("0.1"), "1.10");
    EXPECT_EQ(newer("1.9"), "1.10");
    EXPECT_EQ(newer("1.10-rc1"), "1.10");
    EXPECT_EQ(newer("1.10"), "none");
    EXPECT_EQ(newer("2"), "none");
    EXPECT_EQ(newerRelease({}, *ReleaseVersion::fromText("1")), std::nullopt);
}

} // namespace
} // namespace quillon
