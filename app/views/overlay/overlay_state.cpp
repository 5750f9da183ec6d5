#include "overlay_state.h"

namespace quillon {

OverlayState overlayState(const OverlayFacts& facts) {
    if (facts.mode == OverlayMode::live && !facts.trusted)
        return OverlayState::needsAccessibility;
    if (!facts.hasSheet)
        return OverlayState::noSheet;
    if (facts.hasEntries)
        return OverlayState::shortcuts;
    if (facts.reading && !facts.retrying)
        return OverlayState::reading;
    return facts.answered ? OverlayState::noShortcuts : OverlayState::noAnswer;
}

} // namespace quillon
