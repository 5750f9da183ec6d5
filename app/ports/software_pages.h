#pragma once

#include <string>

namespace quillon {

/// Where the user gets a newer release of the program from.
class SoftwarePages {
  public:
    virtual ~SoftwarePages() = default;

    /// Opens a page of the web in the user's browser. False when there is nothing to open it with.
    virtual bool openPage(const std::string& url) = 0;
    /// Whether the desktop has a software centre.
    virtual bool hasSoftwareCentre() const = 0;
    /// Shows the program in the desktop's software centre. False when there is none.
    virtual bool openSoftwareCentre() = 0;
};

} // namespace quillon
