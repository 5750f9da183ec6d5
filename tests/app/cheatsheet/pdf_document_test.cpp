#include <quillon/app/cheatsheet/pdf_document.h>
#include <quillon/tests/app/cheatsheet/support/pdf_tools.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <set>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

PrintedSheet printed(const AnnotatedSheet& of, const KeyNames* names = nullptr) {
    return PrintedSheet::of({of.sheet, of.annotations, names});
}

QByteArray documentOf(const PrintedSheet& sheet, const QString& title = u"Title"_s) {
    const std::optional<QByteArray> document = pdfDocument(sheet, title);
    EXPECT_TRUE(document.has_value());
    return document.value_or(QByteArray());
}

/// The words of the document in the order in which they were drawn.
QString drawnText(const PdfTools& tools) {
    return tools.said(u"pdftotext"_s, {u"-raw"_s, u"FILE"_s, u"-"_s});
}

TEST(PdfDocument, ItIsOfLetterSizeWithTitleAndCreator) {
    const PrintedSheet sheet = printed(sampleSheet());
    const PdfTools tools(documentOf(sheet, u"Sketchpad’s “Shortcuts” – פתח"_s));
    EXPECT_EQ(tools.info(u"Title"_s), u"Sketchpad’s “Shortcuts” – פתח"_s);
    EXPECT_EQ(tools.info(u"Creator"_s), u"Quillon"_s);
    EXPECT_EQ(tools.info(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    EXPECT_EQ(tools.info(u"Pages"_s), QString::number(sheet.pages.size()));
}

TEST(PdfDocument, ItHasAPageForEachOfTheSheetsAndOtherReadersTakeIt) {
    for (const AnnotatedSheet& of : {gimpSheet(), manyEntries(1000), hostileSheet()}) {
        const PrintedSheet sheet = printed(of);
        const PdfTools tools(documentOf(sheet));
        EXPECT_EQ(tools.info(u"Pages"_s), QString::number(sheet.pages.size()));
        tools.said(u"qpdf"_s, {u"--check"_s, u"FILE"_s});
        EXPECT_EQ(
            tools.said(u"qpdf"_s, {u"--show-npages"_s, u"FILE"_s}).trimmed(),
            QString::number(sheet.pages.size()));
    }
}

TEST(PdfDocument, WithoutShortcutsItHasNoPageAndIsStillADocument) {
    const PdfTools tools(documentOf(printed(emptySheet("Empty")), u"Empty’s"_s));
    tools.said(u"qpdf"_s, {u"--check"_s, u"FILE"_s});
    // Poppler opens it, and wonders.
    EXPECT_EQ(tools.said(u"qpdf"_s, {u"--show-npages"_s, u"FILE"_s}), u"0\n"_s);
    EXPECT_EQ(
        tools.said(u"pdfdetach"_s, {u"-list"_s, u"FILE"_s}, "Syntax Error: Invalid page count 0\n"),
        u"0 embedded files\n"_s);
    const QString info = tools.said(u"mutool"_s, {u"show"_s, u"FILE"_s, u"trailer/Info"_s});
    EXPECT_TRUE(info.contains(u"/Title <FEFF0045006D00700074007920190073>"_s)) << info.toStdString();
    EXPECT_TRUE(info.contains(u"/Creator <FEFF005100750069006C006C006F006E>"_s)) << info.toStdString();
}

TEST(PdfDocument, EveryFontIsEmbedded) {
    for (const AnnotatedSheet& of : {sampleSheet(), hostileSheet()}) {
        const PdfTools tools(documentOf(printed(of)));
        const QStringList lines = tools.said(u"pdffonts"_s).split(u'\n', Qt::SkipEmptyParts);
        ASSERT_GT(lines.size(), 2);
        const qsizetype embedded = lines.first().indexOf(u"emb");
        const qsizetype unicode = lines.first().indexOf(u"uni");
        for (const QString& line : lines.sliced(2)) {
            EXPECT_EQ(line.mid(embedded, 3), u"yes"_s) << line.toStdString();
            EXPECT_EQ(line.mid(unicode, 3), u"yes"_s) << line.toStdString();
        }
    }
}

TEST(PdfDocument, WordsAreReadInTheirOrder) {
    AnnotatedSheet one = emptySheet("Office");
    one.sheet.entries = {
        {{"File", "Save office file"},
         {Modifiers{Modifiers::shift, Modifiers::command}, Key::character("S")}},
        {{"File", "Close"}, {Modifiers::command, Key::special(SpecialKey::delete_)}},
        {{"Edit", "Undo"}, {Modifiers::control, Key::special(SpecialKey::f5)}}};
    one.annotations[one.sheet.entries[1].id()].note = "A note of mine";
    const QString words = drawnText(PdfTools(documentOf(printed(one)))).simplified();
    const QString expected = u"Office 3 shortcuts ⌘ Command ⌥ Option ⌃ Control ⇧ Shift"_s;
    EXPECT_TRUE(words.startsWith(expected)) << words.toStdString();
    EXPECT_TRUE(words.endsWith(
        u"File Save office file ⇧⌘S Close ⌘⌫ A note of mine Edit Undo ⌃F5 Made with Quillon Page 1 of 1"_s))
        << words.toStdString();
}

TEST(PdfDocument, EveryTitleAndShortcutOfASheetIsFound) {
    for (const KeyNames* names : {static_cast<const KeyNames*>(nullptr), &KeyNames::english()}) {
        const AnnotatedSheet gimp = gimpSheet();
        const QString words = drawnText(PdfTools(documentOf(printed(gimp, names)))).simplified();
        for (const MenuEntry& entry : gimp.sheet.entries) {
            const QString title = QString::fromStdString(std::string(entry.title())).simplified();
            const QString keys = QString::fromStdString(displayWith(entry.shortcut, names));
            if (title.size() < 20) {
                EXPECT_TRUE(words.contains(QString(title + u' ' + keys))) << title.toStdString();
            }
        }
    }
}

/// As another reader measures them. Signs that lie over their drawings to be found are as wide as these.
TEST(PdfDocument, SizesAreExactInTheFile) {
    const PdfTools tools(documentOf(printed(sampleSheet())));
    const QString text = tools.said(u"mutool"_s, {u"draw"_s, u"-F"_s, u"stext"_s, u"FILE"_s});
    const QRegularExpression run(
        u"<font name=\"[^\"]*\" size=\"([^\"]*)\">(.*?)</font>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    std::set<QString> sizes;
    for (auto found = run.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        static const QRegularExpression letter(u" c=\"[a-zA-Z0-9]\""_s);
        if (match.captured(2).contains(letter))
            sizes.insert(match.captured(1));
    }
    EXPECT_EQ(sizes, (std::set<QString>{u"20"_s, u"9"_s, u"10.5"_s, u"8"_s, u"9.5"_s, u"8.5"_s}));
}

} // namespace
} // namespace quillon
