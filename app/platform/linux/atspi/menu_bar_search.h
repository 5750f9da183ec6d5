#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <optional>

namespace quillon::atspi {

/// The menu bar in a window, see `chosenMenuBar`. Waits; absent when there is none within sane bounds.
std::optional<ObjectRef> findMenuBar(AccessibilityCalls& calls, const ObjectRef& window);

} // namespace quillon::atspi
