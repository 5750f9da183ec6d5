#pragma once

#include "keymap.h"

#include <quillon/app/ports/printed_keys.h>

#include <cstdint>

namespace quillon {

/// The keyboard of a keymap as one sees it while `group` is in effect. Keymaps do not tell how the keyboard
/// is made: it is taken for an ISO one where the key beside the left ⇧ has a character that no other key has.
PrintedKeys printedKeys(const Keymap& keymap, std::uint32_t group);

} // namespace quillon
