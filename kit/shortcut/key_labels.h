#pragma once

namespace quillon {

/// How keys are shown to the user.
enum class KeyLabels {
    symbols, ///< "⌃⇧S"
    names    ///< as printed on the keyboard: "Ctrl Shift S"
};

} // namespace quillon
