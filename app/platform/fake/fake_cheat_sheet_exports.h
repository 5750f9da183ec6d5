#pragma once

#include <quillon/app/ports/cheat_sheet_exports.h>

#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// Remembers what was exported.
class FakeCheatSheetExports : public CheatSheetExports {
  public:
    /// What a source was when it was handed over.
    struct Exported {
        AppSheet sheet;
        Annotations annotations;
        bool withNames = false;

        bool operator==(const Exported&) const = default;
    };

    std::string document = "%PDF-fake"; ///< what every document is
    /// Absent where it goes well.
    std::optional<ExportFailure> pdfFailure = {};
    std::optional<ExportFailure> saveFailure = {};

    std::vector<Exported> made = {};                                       ///< as documents
    std::vector<std::pair<std::string, std::filesystem::path>> saved = {}; ///< bytes and files
    std::vector<Exported> printed = {};
    QWidget* printWindow = nullptr; ///< that the dialog was asked for over last
    /// Of the last request to print: the test calls it for a printer that fails.
    std::function<void(const ExportFailure&)> printFailed = {};

    std::string fileName(const AppSheet& sheet) const override { return sheet.appName + " Shortcuts.pdf"; }
    Outcome<std::string, ExportFailure> pdf(const CheatSheetSource& source) override {
        made.push_back(copyOf(source));
        if (pdfFailure)
            return *pdfFailure;
        return document;
    }
    std::optional<ExportFailure> save(std::string_view bytes, const std::filesystem::path& file) override {
        if (!saveFailure)
            saved.emplace_back(bytes, file);
        return saveFailure;
    }
    void print(
        const CheatSheetSource& source, QWidget& window,
        std::function<void(const ExportFailure&)> failed) override {
        printed.push_back(copyOf(source));
        printWindow = &window;
        printFailed = std::move(failed);
    }

  private:
    static Exported copyOf(const CheatSheetSource& source) {
        return {source.sheet, source.annotations, source.names != nullptr};
    }
};

} // namespace quillon
