#pragma once

#include "release_version.h"

#include <string>

namespace quillon {

/// One release of the program, as its publisher announces it. All texts are valid UTF-8.
struct Release {
    ReleaseVersion version;
    std::string shownVersion;   ///< as people read it
    std::string notes = {};     ///< what is new, as `ReleaseNotes` makes it; "" for none
    std::string notesPage = {}; ///< the page that says what is new; "" for none, else https
    std::string page = {};      ///< the page to get it from; "" for none, else https

    bool operator==(const Release&) const = default;
};

} // namespace quillon
