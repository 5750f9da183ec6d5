#include <quillon/app/cheatsheet/exports/system_exports.h>
#include <quillon/tests/app/cheatsheet/support/pdf_tools.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPrintDialog>
#include <QPrinter>
#include <QTest>
#include <QWidget>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class SystemExportsTest : public testing::Test {
  protected:
    CheatSheetSource source() const { return {sample.sheet, sample.annotations}; }
    void print(const CheatSheetSource& of) {
        exports->print(
            of, window, [this](const ExportFailure& failure) { failures.push_back(failure.text); });
    }
    QPrintDialog* dialog() const { return window.findChild<QPrintDialog*>(); }

    const AnnotatedSheet sample = sampleSheet();
    std::unique_ptr<SystemExports> exports = std::make_unique<SystemExports>();
    QWidget window;
    std::vector<std::string> failures;
    TemporaryFolder folder;
};

TEST_F(SystemExportsTest, ADocumentIsOfferedUnderTheApplicationsName) {
    EXPECT_EQ(exports->fileName(sample.sheet), "Sketchpad Shortcuts.pdf");
    EXPECT_EQ(exports->fileName(emptySheet("a/b\n").sheet), "a-b Shortcuts.pdf");
    EXPECT_EQ(exports->fileName(AppSheet()), "Shortcuts.pdf");
    const std::string longest = exports->fileName(emptySheet(std::string(400, 'x')).sheet);
    EXPECT_LE(longest.size(), 255U);
    EXPECT_TRUE(longest.ends_with(".pdf"));
}

TEST_F(SystemExportsTest, AnApplicationWithoutANameLendsItsIdentifierToFileAndDocument) {
    AnnotatedSheet nameless = sample;
    nameless.sheet.bundleID = "org.example.Nameless";
    nameless.sheet.appName.clear();
    EXPECT_EQ(exports->fileName(nameless.sheet), "org.example.Nameless Shortcuts.pdf");
    const auto document = exports->pdf({nameless.sheet, nameless.annotations});
    ASSERT_TRUE(document);
    EXPECT_EQ(
        PdfTools(QByteArray::fromStdString(*document)).info(u"Title"_s), u"org.example.Nameless Shortcuts"_s);
}

TEST_F(SystemExportsTest, ADocumentIsMadeAndKept) {
    const auto document = exports->pdf(source());
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->starts_with("%PDF-"));
    EXPECT_EQ(PdfTools(QByteArray::fromStdString(*document)).info(u"Title"_s), u"Sketchpad Shortcuts"_s);
    const std::filesystem::path file = folder.path() / "sheet.pdf";
    EXPECT_EQ(exports->save(*document, file), std::nullopt);
    EXPECT_EQ(std::filesystem::file_size(file), document->size());
}

TEST_F(SystemExportsTest, AFailureNamesTheFileAndTheReason) {
    const auto failure = exports->save("bytes", "/nowhere/at/all.pdf");
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->text, "“/nowhere/at/all.pdf” cannot be written: No such file or directory.");
}

TEST_F(SystemExportsTest, ThePrintDialogStandsOverTheWindowAndKeepsItsSettings) {
    window.show();
    print(source());
    ASSERT_NE(dialog(), nullptr);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog()->printer()->pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(dialog()->printer()->pageLayout().margins(), QMarginsF(0, 0, 0, 0));
    EXPECT_EQ(dialog()->printer()->docName(), u"Sketchpad Shortcuts"_s);
}

TEST_F(SystemExportsTest, WhatIsConfirmedIsPrinted) {
    const std::filesystem::path file = folder.path() / "printed.pdf";
    print(source());
    ASSERT_NE(dialog(), nullptr);
    dialog()->printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog()->printer()->setOutputFileName(QString::fromStdString(file.string()));
    dialog()->done(QDialog::Accepted);
    EXPECT_GT(std::filesystem::file_size(file), 1000U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog() == nullptr; }));
    EXPECT_TRUE(failures.empty());
}

TEST_F(SystemExportsTest, CancellingIsNoFailure) {
    print(source());
    ASSERT_NE(dialog(), nullptr);
    dialog()->reject();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog() == nullptr; }));
    EXPECT_TRUE(failures.empty());
}

TEST_F(SystemExportsTest, APrinterThatDoesNotTakeItIsToldOf) {
    print(source());
    ASSERT_NE(dialog(), nullptr);
    dialog()->printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog()->printer()->setOutputFileName(u"/dev/null/nowhere.pdf"_s);
    dialog()->done(QDialog::Accepted);
    EXPECT_THAT(failures, testing::ElementsAre(testing::HasSubstr("printer")));
}

TEST_F(SystemExportsTest, WithoutShortcutsThereIsNothingToPrint) {
    const AnnotatedSheet empty = emptySheet("Empty");
    print({empty.sheet, empty.annotations});
    EXPECT_TRUE(failures.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failures.empty(); }));
    EXPECT_THAT(failures, testing::ElementsAre("There are no shortcuts to print."));
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(SystemExportsTest, NothingIsToldOnceTheExportsAreGone) {
    print(source());
    ASSERT_NE(dialog(), nullptr);
    exports.reset();
    dialog()->printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog()->printer()->setOutputFileName(u"/dev/null/nowhere.pdf"_s);
    dialog()->done(QDialog::Accepted);
    EXPECT_TRUE(failures.empty());
}

} // namespace
} // namespace quillon
