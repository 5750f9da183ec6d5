#include "sheet_export.h"

#include "library_texts.h"

#include <quillon/app/views/components/alert.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStandardPaths>

#include <filesystem>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString suffix = u"pdf"_s;

/// Documents are kept under names that say what they are, whatever was typed.
QString withSuffix(const QString& file) {
    return QFileInfo(file).suffix().compare(suffix, Qt::CaseInsensitive) == 0 ? file : file + u'.' + suffix;
}

} // namespace

SheetExport::SheetExport(AppModel& model, ThemeSource& themes, CheatSheetExports& exports, QWidget& view)
    : QObject(&view), m_model(model), m_themes(themes), m_exports(exports), m_view(view) {}

const AppSheet* SheetExport::sheet() const {
    const auto known = m_model.sheets().find(m_bundleID);
    return known == m_model.sheets().end() ? nullptr : &*known->second;
}

CheatSheetSource SheetExport::sourceOf(const AppSheet& sheet) const {
    return {
        .sheet = sheet,
        .annotations = m_model.annotations().annotations(sheet.bundleID),
        .names = m_themes.theme().keyNames.get()};
}

void SheetExport::saveAsPdf() {
    const AppSheet* const shown = sheet();
    if (!shown)
        return;
    const auto document = m_exports.pdf(sourceOf(*shown));
    if (document)
        askForFile(text(m_exports.fileName(*shown)), *document);
    else
        tell(*document.failure());
}

void SheetExport::askForFile(const QString& file, const std::string& bytes) {
    auto* const dialog = new QFileDialog(m_view.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(LibraryTexts::pdfDocuments(u"*."_s + suffix));
    dialog->setDefaultSuffix(suffix);
    if (QFileInfo(file).isRelative())
        dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile(file);
    connect(dialog, &QFileDialog::fileSelected, this, [this, bytes](const QString& chosen) {
        save(chosen, bytes);
    });
    dialog->open();
}

void SheetExport::save(const QString& file, const std::string& bytes) {
    const QString named = withSuffix(file);
    if (named != file && QFileInfo::exists(named)) {
        askForFile(named, bytes); // nobody has agreed to replace this one
        return;
    }
    if (const auto failure = m_exports.save(bytes, std::filesystem::path(utf8(named))))
        tell(*failure);
}

void SheetExport::print() {
    if (const AppSheet* const shown = sheet())
        m_exports.print(
            sourceOf(*shown), *m_view.window(), [this](const ExportFailure& failure) { tell(failure); });
}

void SheetExport::copyAsMarkdown() {
    if (const AppSheet* const shown = sheet()) {
        const CheatSheetSource source = sourceOf(*shown);
        QGuiApplication::clipboard()->setText(
            text(CheatSheet::markdown(source.sheet, source.annotations, source.names)));
    }
}

void SheetExport::tell(const ExportFailure& failure) {
    auto* const alert = new Alert(
        m_themes,
        {.title = LibraryTexts::exportFailed(), .message = text(failure.text), .close = LibraryTexts::ok()},
        m_view.window());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->open();
}

} // namespace quillon
