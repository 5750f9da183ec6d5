#pragma once

#include <quillon/kit/shortcut/special_key.h>

#include <cstdint>
#include <optional>

namespace quillon {

/// The named key that stands behind a key symbol (`XKB_KEY_…`), which is also what GDK calls a key value. By
/// what is printed on the key; the number pad's navigation keys are those of the same meaning. Absent for
/// characters and for keys without a name here (Insert, Print, media keys).
std::optional<SpecialKey> specialKeyOfSymbol(std::uint32_t symbol);

} // namespace quillon
