#pragma once

#include "release_look.h"

#include <quillon/app/ports/update_framework.h>

namespace quillon {

/// The program's own updates: reads the list of releases, and shows a newer one or tells that there is none.
/// It loads nothing else and runs nothing; the user gets a release from its page or the software centre.
class AppcastUpdates final : public UpdateFramework {
  public:
    /// What `needs` refers to and `notices` outlive it.
    AppcastUpdates(ReleaseLook::Needs needs, UpdateNotices& notices, const ReleaseSource& source);

    std::string feedAddress() const override { return m_feedAddress; }
    void checkForUpdates() override;

  private:
    std::string m_feedAddress;
    UpdateNotices& m_notices;
    ReleaseLook m_look;
};

} // namespace quillon
