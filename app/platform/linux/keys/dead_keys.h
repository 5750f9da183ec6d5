#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// The accent that is printed on a dead key, by its symbol (`XKB_KEY_dead_…`): "´". "" for a symbol of
/// another kind.
std::string accentOfDeadKey(std::uint32_t symbol);

} // namespace quillon
