#include "system_exports.h"

#include "print_job.h"
#include "whole_file.h"

#include <quillon/app/cheatsheet/cheat_sheet_texts.h>
#include <quillon/app/cheatsheet/file_name.h>
#include <quillon/app/cheatsheet/pdf_document.h>

#include <QPrintDialog>
#include <QTimer>

#include <utility>

namespace quillon {

namespace {

ExportFailure failure(const QString& text) {
    return {text.toStdString()};
}

QString titleOf(const PrintedSheet& sheet) {
    return CheatSheetTexts::documentTitle(sheet.appName);
}

/// The system's dialog over `window`. The printer lives as long as it.
QPrintDialog* makeDialog(QWidget& window, std::shared_ptr<QPrinter> printer, int pages) {
    auto* const dialog = new QPrintDialog(printer.get(), &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMinMax(1, pages);
    dialog->setOption(QAbstractPrintDialog::PrintPageRange);
    QObject::connect(dialog, &QObject::destroyed, [printer = std::move(printer)] {});
    return dialog;
}

} // namespace

std::string SystemExports::fileName(const AppSheet& sheet) const {
    const std::string& name = sheet.appName.empty() ? sheet.bundleID : sheet.appName;
    const QString title = CheatSheetTexts::documentTitle(QString::fromStdString(name));
    return safeFileName(title, QStringLiteral(".pdf"), CheatSheetTexts::documentTitle({})).toStdString();
}

Outcome<std::string, ExportFailure> SystemExports::pdf(const CheatSheetSource& source) {
    const PrintedSheet sheet = PrintedSheet::of(source);
    const std::optional<QByteArray> document = pdfDocument(sheet, titleOf(sheet));
    if (!document)
        return failure(CheatSheetTexts::cannotMake());
    return document->toStdString();
}

std::optional<ExportFailure> SystemExports::save(std::string_view bytes, const std::filesystem::path& file) {
    const std::optional<QString> reason = writeWhole(file, bytes);
    if (!reason)
        return std::nullopt;
    return failure(CheatSheetTexts::cannotWrite(QString::fromStdString(file.string()), *reason));
}

void SystemExports::print(
    const CheatSheetSource& source, QWidget& window, std::function<void(const ExportFailure&)> failed) {
    PrintedSheet sheet = PrintedSheet::of(source);
    const auto tell = [alive = std::weak_ptr(m_alive), failed = std::move(failed)](const QString& text) {
        if (!alive.expired() && failed)
            failed(failure(text));
    };
    if (sheet.pages.empty()) {
        QTimer::singleShot(0, &window, [tell] { tell(CheatSheetTexts::nothingToPrint()); });
        return;
    }
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    setUpPrinter(*printer, titleOf(sheet));
    QPrintDialog* const dialog = makeDialog(window, printer, static_cast<int>(sheet.pages.size()));
    QObject::connect(dialog, &QDialog::accepted, dialog, [printer, sheet = std::move(sheet), tell] {
        if (!printSheet(*printer, sheet))
            tell(CheatSheetTexts::cannotPrint());
    });
    dialog->open();
}

} // namespace quillon
