#include "sheet_arrival.h"

namespace quillon {

SheetArrival decideSheetArrival(const SheetArrivalFacts& facts) {
    using Current = SheetArrival::Current;

    if (!facts.produced)
        return {};
    const bool worseThanCached =
        facts.complete ? facts.entries == 0 && facts.cachedEntries > 0 : facts.entries < facts.cachedEntries;
    if (worseThanCached)
        return {facts.currentIsThatApp ? Current::takeCached : Current::keep, false};

    const bool refreshes = facts.currentIsThatApp && facts.isIdentified;
    const bool wanted = facts.thatAppIsInFront || !facts.anythingCurrent || refreshes;
    return {wanted ? Current::takeNew : Current::keep, facts.entries > 0 && facts.isIdentified};
}

} // namespace quillon
