#pragma once

#include <string>

namespace quillon {

/// What looks for a newer release of the program and shows it.
class UpdateFramework {
  public:
    virtual ~UpdateFramework() = default;

    /// The address of the list of releases; "" when the program has none.
    virtual std::string feedAddress() const = 0;
    /// The user's check: shows what there is, or says that there is nothing. Returns at once.
    virtual void checkForUpdates() = 0;
};

} // namespace quillon
