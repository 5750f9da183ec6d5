#include <quillon/app/core/updates/release_notes.h>

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

std::string kept(const QString& html) {
    return ReleaseNotes::fromHtml(html);
}

TEST(ReleaseNotesTest, PlainElementsStay) {
    EXPECT_EQ(
        kept(
            u"<h2>New</h2><ul><li><b>Search</b> in <em>notes</em></li><li><code>quillon sheet</code></li></ul>"_s),
        "<h4>New</h4><ul><li><b>Search</b> in <i>notes</i></li><li><code>quillon sheet</code></li></ul>");
    EXPECT_EQ(kept(u"<div>one<br/>two</div>"_s), "<p>one<br>two</p>");
}

TEST(ReleaseNotesTest, AttributesAndOtherElementsGo) {
    EXPECT_EQ(kept(u"<p style=\"color:red\" onclick='x()'>a</p>"_s), "<p>a</p>");
    EXPECT_EQ(
        kept(u"<font size=9>a</font><img src=\"https://example.org/t.png\"><table><tr><td>b<td>c</table>"_s),
        "a<p> b c</p>");
    EXPECT_EQ(kept(u"a<!-- <b>secret</b> -->b<!DOCTYPE x><?php y ?>c"_s), "abc");
}

TEST(ReleaseNotesTest, WhatIsNotForReadingGoesWithItsText) {
    EXPECT_EQ(kept(u"a<script>alert('<b>')</script>b<STYLE>p { }</StYlE >c"_s), "abc");
    EXPECT_EQ(kept(u"<html><head><title>t</title></head><body>a</body></html>"_s), "a");
    EXPECT_EQ(kept(u"a<script>never ends"_s), "a");
}

TEST(ReleaseNotesTest, LinksLeadToPagesOfTheWebAndTellWhere) {
    EXPECT_EQ(
        kept(u"<a class=x href='https://example.org/?a=1&amp;b=2'>more</a>"_s),
        "<a href=\"https://example.org/?a=1&amp;b=2\" title=\"https://example.org/?a=1&amp;b=2\">more</a>");
    EXPECT_EQ(
        kept(u"<a href=https://example.org/>x</a>"_s),
        "<a href=\"https://example.org/\" title=\"https://example.org/\">x</a>");
    for (const auto& address :
         {u"http://example.org/"_s, u"javascript:alert(1)"_s, u"file:///etc/passwd"_s, u"#top"_s, u""_s,
          u"java&#115;cript:x"_s})
        EXPECT_EQ(kept(u"<a href=\"%1\">x</a>"_s.arg(address)), "x") << address.toStdString();
    EXPECT_EQ(kept(u"<a title=\"href=https://example.org/\">x</a>"_s), "x");
}

TEST(ReleaseNotesTest, NothingOfAnAddressGetsOutOfIt) {
    const std::string reduced = kept(u"<a href='https://example.org/\"><b>'>x</a>"_s);
    EXPECT_EQ(reduced.find("<b>"), std::string::npos) << reduced;
}

TEST(ReleaseNotesTest, SignsAreWrittenSoThatTheyAreOnlySigns) {
    EXPECT_EQ(
        kept(u"a < b &lt;script&gt; &amp;amp; \"c\""_s), "a &lt; b &lt;script&gt; &amp;amp; &quot;c&quot;");
    EXPECT_EQ(kept(u"&#65;&#x42;&hellip;&unknown;&;&"_s), "AB\u2026&amp;unknown;&amp;;&amp;");
    EXPECT_EQ(kept(u"&#0;&#x110000;&#xD800;"_s), "&amp;#0;&amp;#x110000;&amp;#xD800;");
}

TEST(ReleaseNotesTest, SignsThatDoSomethingGo) {
    EXPECT_EQ(kept(u"a\u202eb\u2066c\u0007d&#8238;e"_s), "abcde");
    EXPECT_EQ(ReleaseNotes::fromPlainText(u"a\u202eb\rc"_s), "abc");
}

TEST(ReleaseNotesTest, EveryElementIsClosed) {
    EXPECT_EQ(kept(u"<p><b>a"_s), "<p><b>a</b></p>");
    EXPECT_EQ(kept(u"<b><i>a</b>b</i>"_s), "<b><i>a</i></b>b");
    EXPECT_EQ(kept(u"</p></b>a</"_s), "a");
    EXPECT_EQ(kept(u"a<b"_s), "a");
    EXPECT_EQ(kept(u"<p>a<p>b"_s), "<p>a</p><p>b</p>");
    EXPECT_EQ(kept(u"<li>a<li>b"_s), "<ul><li>a</li><li>b</li></ul>");
    EXPECT_EQ(
        kept(u"<ul><li>a<ul><li>b</ul><li>c</ul>"_s), "<ul><li>a<ul><li>b</li></ul></li><li>c</li></ul>");
}

TEST(ReleaseNotesTest, DepthAndLengthHaveTheirLimits) {
    const std::string deep = kept(QString(u"<b>"_s).repeated(5000) + u"a"_s);
    EXPECT_LT(deep.size(), 200U);
    EXPECT_NE(deep.find('a'), std::string::npos);
    EXPECT_LE(
        kept(QString(u"x"_s).repeated(1'000'000)).size(), static_cast<std::size_t>(ReleaseNotes::longest));
    EXPECT_LE(
        ReleaseNotes::fromPlainText(QString(u"x"_s).repeated(1'000'000)).size(),
        static_cast<std::size_t>(ReleaseNotes::longest));
}

TEST(ReleaseNotesTest, PlainTextKeepsItsLines) {
    EXPECT_EQ(ReleaseNotes::fromPlainText(u"\n- <one>\n- two\n"_s), "- &lt;one&gt;<br>- two");
}

} // namespace
} // namespace quillon
