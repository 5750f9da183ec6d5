#pragma once

#include <quillon/app/ports/software_pages.h>

namespace quillon {

/// A desktop without a browser and without a software centre.
class NoSoftwarePages final : public SoftwarePages {
  public:
    bool openPage(const std::string&) override { return false; }
    bool hasSoftwareCentre() const override { return false; }
    bool openSoftwareCentre() override { return false; }
};

} // namespace quillon
