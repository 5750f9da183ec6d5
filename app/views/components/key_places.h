#pragma once

#include "vocabulary.h"

#include <QString>

namespace quillon {

/// Where the keys that can open the overlay are on the keyboard: "⌘ is the Super or Windows key, …"; empty
/// where they are labelled with these signs.
QString placesOfKeys(const Vocabulary& vocabulary);

} // namespace quillon
