#pragma once

#include "library_rows.h"

#include <quillon/app/views/components/symbols.h>

#include <array>
#include <cstddef>

namespace quillon {

/// What can be pressed in the row of a command, from left to right where people read so.
enum class RowButton { pin, note, mute };

inline constexpr std::array allRowButtons{RowButton::pin, RowButton::note, RowButton::mute};

/// Where it stands among the buttons of a row.
constexpr std::size_t positionOf(RowButton button) {
    return static_cast<std::size_t>(button);
}

Symbol symbolOf(RowButton button, const LibraryRow& row);
/// Whether the button stands for something that the user has said of the command: it is pinned, noted, muted.
bool isSet(RowButton button, const LibraryRow& row);
/// What pressing it does.
QString helpOf(RowButton button, const LibraryRow& row);
/// What screen readers call it: "Pin Save".
QString nameOf(RowButton button, const LibraryRow& row);

} // namespace quillon
