#pragma once

#include <quillon/app/ports/software_pages.h>

#include <vector>

namespace quillon {

/// Pages of which only is noted that they were opened.
class FakeSoftwarePages final : public SoftwarePages {
  public:
    bool openPage(const std::string& url) override {
        pages.push_back(url);
        return opensPages;
    }
    bool hasSoftwareCentre() const override { return hasCentre; }
    bool openSoftwareCentre() override {
        if (hasCentre)
            ++centreOpened;
        return hasCentre && opensCentre;
    }

    bool opensPages = true;
    bool opensCentre = true;
    bool hasCentre = false;
    std::vector<std::string> pages;
    int centreOpened = 0;
};

} // namespace quillon
