#pragma once

#include <cstddef>

namespace quillon {

/// What is known when the reading of an application's menus ends.
struct SheetArrivalFacts {
    bool produced = true;          ///< the reading came to a sheet at all
    bool complete = true;          ///< it was not cut short
    std::size_t entries = 0;       ///< of the new sheet
    std::size_t cachedEntries = 0; ///< of the sheet kept for that application; 0 when none is
    bool isIdentified = true;      ///< the application has an identifier to keep its sheet under
    bool anythingCurrent = false;
    bool currentIsThatApp = false; ///< the current sheet is of that application
    bool thatAppIsInFront = false; ///< still, at the end of the reading
};

/// What to do with the sheet.
struct SheetArrival {
    enum class Current { keep, takeNew, takeCached };

    Current current = Current::keep;
    bool store = false; ///< keep the new sheet, and save

    bool operator==(const SheetArrival&) const = default;
};

/// A late answer leaves another application's sheet alone; an empty one is never kept; and neither an empty
/// one nor a shorter one of an application that stopped answering replaces a good sheet.
SheetArrival decideSheetArrival(const SheetArrivalFacts& facts);

} // namespace quillon
