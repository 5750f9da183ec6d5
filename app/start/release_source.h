#pragma once

#include <quillon/app/core/updates/release_look.h>

namespace quillon {

/// Where this build looks for newer releases of itself (see QUILLON_FEED_URL).
ReleaseSource releaseSource();

} // namespace quillon
