#include <quillon/app/views/components/foreign_text.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

#include <QFontMetricsF>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(ForeignLine, OrdinaryTextStaysAsItIs) {
    for (const char* const title :
         {"Save As…", "Rückgängig", "העתקה", "ページ全体", "نص", "👩‍👩‍👧‍👦 🇩🇪", "क्षि"})
        EXPECT_EQ(foreignLine(title), QString::fromUtf8(title));
    EXPECT_EQ(foreignLine("  Save\t As  "), u"Save As"_s);
}

TEST(ForeignLine, LineBreaksAreSeen) {
    EXPECT_EQ(foreignLine("a\nb"), u"a\u2424b"_s);
    EXPECT_EQ(foreignLine("a\r\nb"), u"a\u2424b"_s);
    EXPECT_EQ(foreignLine("a\u2028b\u2029c\u0085d"), u"a\u2424b\u2424c\u2424d"_s);
}

TEST(ForeignLine, ControlCharactersAreSeen) {
    EXPECT_EQ(foreignLine("a\x1b[31mb"), u"a\u241b[31mb"_s);
    EXPECT_EQ(foreignLine("\x07"), u"\u2407"_s);
    EXPECT_EQ(foreignLine("\x7f"), u"\u2421"_s);
    EXPECT_EQ(foreignLine("\u009b"), u"\ufffd"_s);
    EXPECT_EQ(foreignLine(std::string_view("a\0b", 3)), u"a\u2400b"_s);
}

TEST(ForeignLine, NothingTurnsTheTextAround) {
    for (const char16_t code :
         {u'\u202a', u'\u202b', u'\u202c', u'\u202d', u'\u202e', u'\u2066', u'\u2067', u'\u2068',
          u'\u2069'}) {
        const QString title = u"gpj."_s + QChar(code) + u"exe"_s;
        EXPECT_EQ(foreignLine(title.toStdString()), u"gpj.\ufffdexe"_s) << static_cast<int>(code);
    }
}

TEST(ForeignLine, HeapsOfAccentsAreCutDown) {
    QString heap(u'e');
    heap += QString(200, u'\u0301');
    const QString shown = foreignLine(heap.toStdString());
    EXPECT_LE(shown.size(), 5);
    EXPECT_EQ(shown.front(), u'e');
}

} // namespace
} // namespace quillon
