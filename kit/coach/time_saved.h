#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/base/instant.h>

namespace quillon {

/// What an average skilled typist saves by a shortcut of two keys (0.2 s each) against choosing its command
/// from a menu: two pointings with a mouse (1.1 s each) and two clicks (0.2 s each). The times are those of
/// the keystroke-level model (Card, Moran and Newell, Communications of the ACM 23, 7, 1980); the hand's way
/// to the mouse and back, 0.8 s more, is not counted, nor is the search for the command.
inline constexpr Seconds savedByTyping{2 * 1.1 + 2 * 0.2 - 2 * 0.2};

/// An estimate of what `typed` uses saved.
constexpr Seconds timeSaved(Count typed) {
    return static_cast<double>(typed) * savedByTyping;
}

} // namespace quillon
