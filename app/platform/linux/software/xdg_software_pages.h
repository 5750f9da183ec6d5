#pragma once

#include <quillon/app/ports/software_pages.h>

namespace quillon {

/// Opens pages with the desktop's opener, and this program's page in the software centre. Both are started
/// and not waited for.
class XdgSoftwarePages final : public SoftwarePages {
  public:
    /// Only https pages are opened.
    bool openPage(const std::string& url) override;
    bool hasSoftwareCentre() const override;
    bool openSoftwareCentre() override;
};

} // namespace quillon
