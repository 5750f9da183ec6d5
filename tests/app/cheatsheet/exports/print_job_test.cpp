#include <quillon/app/cheatsheet/exports/print_job.h>
#include <quillon/tests/app/cheatsheet/support/pdf_tools.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

PrintedSheet manyPages() {
    const AnnotatedSheet many = manyEntries(400);
    return PrintedSheet::of({many.sheet, many.annotations});
}

TEST(PagesToPrint, AllOfThemInTheirOrder) {
    EXPECT_THAT(pagesToPrint(3, {}), ElementsAre(1, 2, 3));
}

TEST(PagesToPrint, OnlyThoseInTheRangeThatThereAre) {
    EXPECT_THAT(pagesToPrint(5, {.first = 2, .last = 3}), ElementsAre(2, 3));
    EXPECT_THAT(pagesToPrint(5, {.first = 4, .last = 99}), ElementsAre(4, 5));
    EXPECT_THAT(pagesToPrint(5, {.first = 7, .last = 9}), ElementsAre());
}

TEST(PagesToPrint, BackwardsForPrintersThatPileThemUp) {
    EXPECT_THAT(pagesToPrint(3, {.isReversed = true}), ElementsAre(3, 2, 1));
}

TEST(PagesToPrint, CopiesOneAfterTheOtherOrPageByPage) {
    EXPECT_THAT(pagesToPrint(2, {.copies = 2}), ElementsAre(1, 2, 1, 2));
    EXPECT_THAT(pagesToPrint(2, {.copies = 2, .isCollated = false}), ElementsAre(1, 1, 2, 2));
}

class PrintJobTest : public testing::Test {
  protected:
    PrintJobTest() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        setUpPrinter(printer, u"Atelier Shortcuts"_s);
    }

    QByteArray printed() const {
        QFile written(file);
        EXPECT_TRUE(written.open(QIODevice::ReadOnly));
        return written.readAll();
    }

    TemporaryFolder folder;
    const QString file = QString::fromStdString((folder.path() / "printed.pdf").string());
    QPrinter printer{QPrinter::HighResolution};
};

TEST_F(PrintJobTest, PaperIsAcrossAndUsedToItsEdges) {
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.pageLayout().margins(), QMarginsF(0, 0, 0, 0));
    EXPECT_TRUE(printer.fullPage());
    EXPECT_EQ(printer.docName(), u"Atelier Shortcuts"_s);
}

TEST_F(PrintJobTest, EveryPageIsPrintedAndTurnedToThePaper) {
    printer.setPageSize(QPageSize(QPageSize::Letter));
    const PrintedSheet sheet = manyPages();
    ASSERT_TRUE(printSheet(printer, sheet));
    const PdfTools tools(printed());
    EXPECT_EQ(tools.info(u"Pages"_s), QString::number(sheet.pages.size()));
    EXPECT_EQ(tools.info(u"Page size"_s), u"792 x 612 pts (letter)"_s);
    EXPECT_EQ(tools.info(u"Title"_s), u"Atelier Shortcuts"_s);
    EXPECT_THAT(
        tools.said(u"pdftotext"_s, {u"-raw"_s, u"FILE"_s, u"-"_s}).simplified().toStdString(),
        testing::HasSubstr("Page 1 of " + std::to_string(sheet.pages.size())));
}

TEST_F(PrintJobTest, OnlyTheChosenPagesArePrinted) {
    printer.setFromTo(2, 2);
    ASSERT_TRUE(printSheet(printer, manyPages()));
    const PdfTools tools(printed());
    EXPECT_EQ(tools.info(u"Pages"_s), u"1"_s);
    EXPECT_THAT(
        tools.said(u"pdftotext"_s, {u"-raw"_s, u"FILE"_s, u"-"_s}).simplified().toStdString(),
        testing::HasSubstr("Page 2 of "));
}

TEST_F(PrintJobTest, APrinterThatTakesNothingIsToldOf) {
    printer.setOutputFileName(u"/dev/null/nowhere/sheet.pdf"_s);
    EXPECT_FALSE(printSheet(printer, manyPages()));
}

} // namespace
} // namespace quillon
