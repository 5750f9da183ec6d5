#pragma once

#include "symbols.h"
#include "text_part.h"

#include <QString>

#include <optional>

namespace quillon {

/// A state that is told in words, in place of what is not there.
struct MessageWords {
    std::optional<Symbol> symbol;
    QString title;
    QString body = {};       ///< may be empty, or of several lines
    QString action = {};     ///< label of the button; empty for none
    TextPart shortened = {}; ///< of the title, where it does not fit; with none the title wraps

    bool operator==(const MessageWords&) const = default;
};

} // namespace quillon
