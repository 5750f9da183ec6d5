#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/cheat_sheet_exports.h>
#include <quillon/app/views/components/theme_source.h>

#include <QObject>
#include <QWidget>

#include <string>

namespace quillon {

/// Takes an application's cheat sheet out of the program: as a file, on paper, to the clipboard. What fails
/// is told by an alert over the window; nothing else changes then. Waits for no dialog.
class SheetExport : public QObject {
    Q_OBJECT

  public:
    /// All of them outlive it. The dialogs stand over the window of `view`.
    SheetExport(AppModel& model, ThemeSource& themes, CheatSheetExports& exports, QWidget& view);

    /// The application; without a sheet of it nothing is exported.
    void setApp(const std::string& bundleID) { m_bundleID = bundleID; }

    void saveAsPdf();
    void print();
    void copyAsMarkdown();

  private:
    const AppSheet* sheet() const;
    CheatSheetSource sourceOf(const AppSheet& sheet) const;
    /// Proposes this file, in the folder that people keep documents in where it names none.
    void askForFile(const QString& file, const std::string& bytes);
    void save(const QString& file, const std::string& bytes);
    void tell(const ExportFailure& failure);

    AppModel& m_model;
    ThemeSource& m_themes;
    CheatSheetExports& m_exports;
    QWidget& m_view;
    std::string m_bundleID;
};

} // namespace quillon
