#pragma once

#include "release.h"

namespace quillon {

/// What the user who asked for updates is told when there is no newer release to show.
enum class UpdateNotice {
    upToDate,
    unreachable, ///< the list of releases could not be asked for
    unreadable,  ///< it was got and is none
    withSystem,  ///< the program has no list of releases: they come as it came itself
};

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
