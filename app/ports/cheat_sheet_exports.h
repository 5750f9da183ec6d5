#pragma once

#include <quillon/kit/base/outcome.h>
#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/shortcut/key_names.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace quillon {

/// What a cheat sheet on paper is made of. All of it is looked at during the call only.
struct CheatSheetSource {
    const AppSheet& sheet;
    const Annotations& annotations;  ///< of the sheet's application
    const KeyNames* names = nullptr; ///< what keys are shown by; null for symbols
};

/// Why a cheat sheet could not be made, kept or printed.
struct ExportFailure {
    std::string
        text; ///< for the user, in the program's language: what failed and why, in one or two sentences

    bool operator==(const ExportFailure&) const = default;
};

/// Takes cheat sheets out of the program: as documents, files and paper. For the main thread.
class CheatSheetExports {
  public:
    virtual ~CheatSheetExports() = default;

    /// The name that a document of the sheet is offered under: "Sketchpad Shortcuts.pdf", without anything
    /// that file systems refuse.
    virtual std::string fileName(const AppSheet& sheet) const = 0;
    /// The bytes of the document in PDF. Without entries it is one without pages.
    virtual Outcome<std::string, ExportFailure> pdf(const CheatSheetSource& source) = 0;
    /// Writes the whole file, in the place of one that is there already, or leaves all as it was. Absent when
    /// it was written.
    virtual std::optional<ExportFailure> save(std::string_view bytes, const std::filesystem::path& file) = 0;
    /// Shows the system's print dialog over `window`, which takes no input as long, and prints what the user
    /// confirms. Returns at once. `failed` is called later, at most once, and only when something went wrong;
    /// not once this object or the window is gone. Cancelling is no failure.
    virtual void print(
        const CheatSheetSource& source, QWidget& window,
        std::function<void(const ExportFailure&)> failed) = 0;
};

} // namespace quillon
