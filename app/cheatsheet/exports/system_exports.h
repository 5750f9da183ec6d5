#pragma once

#include <quillon/app/ports/cheat_sheet_exports.h>

#include <memory>

namespace quillon {

/// Cheat sheets as PDF documents, as files of the user's and on the system's printers. Documents and files
/// need the toolkit's fonts alone, printing needs its windows.
class SystemExports final : public CheatSheetExports {
  public:
    std::string fileName(const AppSheet& sheet) const override;
    Outcome<std::string, ExportFailure> pdf(const CheatSheetSource& source) override;
    std::optional<ExportFailure> save(std::string_view bytes, const std::filesystem::path& file) override;
    void print(
        const CheatSheetSource& source, QWidget& window,
        std::function<void(const ExportFailure&)> failed) override;

  private:
    struct Alive {};
    std::shared_ptr<Alive> m_alive = std::make_shared<Alive>(); ///< ends with this
};

} // namespace quillon
