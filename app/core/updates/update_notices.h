#pragma once

#include "release.h"
#include "update_notice.h"

namespace quillon {

/// Whether the user waits for the answer or is at something else.
enum class Occasion { asked, unasked };

/// Tells the user what came of a check for updates.
class UpdateNotices {
  public:
    virtual ~UpdateNotices() = default;

    /// In front of other windows.
    virtual void tell(UpdateNotice notice) = 0;
    /// Shows a newer release. One that was not asked for does not take the keyboard.
    virtual void offer(const Release& release, Occasion occasion) = 0;
};

} // namespace quillon
