#pragma once

#include <QtGlobal>

namespace quillon {

/// A part of a text, in characters from its beginning.
struct TextPart {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const TextPart&) const = default;
};

} // namespace quillon
