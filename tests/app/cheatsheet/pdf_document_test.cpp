#include <quillon/app/cheatsheet/page_layout.h>
#include <quillon/app/cheatsheet/pdf_document.h>
#include <quillon/app/views/components/key_pictograms.h>
#include <quillon/tests/app/cheatsheet/support/pdf_tools.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
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

constexpr int dotsPerInch = 300;

/// What the signs of a page look like, drawn as the screen's are: black on white.
QImage drawnSigns(const PageLayout& page) {
    QImage image(2550, 3300, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerInch / 72.0, dotsPerInch / 72.0);
    for (const Placed& placed : page)
        if (const auto* sign = std::get_if<PlacedSign>(&placed)) {
            const auto [size, path] = KeyPictograms::drawing(sign->sign, 190);
            const double fit = sign->box.width() / size.width();
            painter.save();
            painter.translate(sign->box.topLeft());
            painter.scale(fit, fit);
            painter.fillPath(path.simplified(), Qt::black);
            painter.restore();
        }
    return image;
}

/// Whether the pixel and all around it are of this grey.
bool isAmid(const QImage& image, int x, int y, int grey) {
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (qGray(image.pixel(x + dx, y + dy)) != grey)
                return false;
    return true;
}

struct Ink {
    int missing = 0;
    int tooMuch = 0;
};

/// How many pixels of a sign's box are not the ink or the blank that they should be.
Ink differences(const QImage& page, const QImage& wanted, const QRectF& box) {
    const QRect pixels = QRectF(box.topLeft() * dotsPerInch / 72, box.size() * dotsPerInch / 72).toRect();
    Ink ink;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const bool isInk = qGray(page.pixel(x, y)) < 160; // some are grey, and all caps are lighter
            ink.missing += isAmid(wanted, x, y, 0) && !isInk ? 1 : 0;
            ink.tooMuch += isAmid(wanted, x, y, 255) && isInk ? 1 : 0;
        }
    return ink;
}

TEST(PdfDocument, SignsAreDrawnAsOnTheScreen) {
    const PrintedSheet sheet = printed(hostileSheet());
    const PageLayout page = layOutPage(sheet, 1, PageFonts());
    const QImage wanted = drawnSigns(page);
    const PdfTools tools(documentOf(sheet));
    std::set<QString> signs;
    for (const QImage& image : {tools.drawnByPoppler(1, dotsPerInch), tools.drawnByMuPdf(1, dotsPerInch)}) {
        ASSERT_EQ(image.size(), wanted.size());
        for (const Placed& placed : page)
            if (const auto* sign = std::get_if<PlacedSign>(&placed)) {
                const Ink ink = differences(image, wanted, sign->box);
                EXPECT_EQ(ink.missing, 0) << sign->sign.toStdString() << " at " << sign->box.x();
                EXPECT_EQ(ink.tooMuch, 0) << sign->sign.toStdString() << " at " << sign->box.x();
                signs.insert(sign->sign);
            }
    }
    EXPECT_GE(signs.size(), 10U);
}

/// Signs are filled with a pen at hand. What it would draw is too thin to be seen in a picture of the page.
TEST(PdfDocument, ThePenOfSignsNeverComesDown) {
    const PdfTools tools(documentOf(printed(gimpSheet())));
    const QString drawn =
        tools.said(u"qpdf"_s, {u"--qdf"_s, u"--object-streams=disable"_s, u"FILE"_s, u"-"_s});
    static const QRegularExpression dashes(u"\\[([\\d.]+) ([\\d.]+) ?\\] ?([\\d.]+) +d\\n"_s);
    int pens = 0;
    for (const QRegularExpressionMatch& match : dashes.globalMatch(drawn)) {
        ++pens;
        EXPECT_GT(match.captured(3).toDouble(), match.captured(1).toDouble()) << "begins in a dash";
        EXPECT_GE(match.captured(2).toDouble(), 1e5) << "the next dash is near";
    }
    EXPECT_GT(pens, 100);
}

} // namespace
} // namespace quillon
