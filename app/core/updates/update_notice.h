#pragma once

namespace quillon {

/// What the user who asked for updates is told when there is no newer release to show.
enum class UpdateNotice {
    upToDate,
    unreachable, ///< the list of releases could not be asked for
    unreadable,  ///< it was got and is none
    withSystem,  ///< the program has no list of releases: they come as it came itself
};

} // namespace quillon
