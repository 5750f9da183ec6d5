#pragma once

#include "geometry.h"

namespace quillon {

/// A monitor: all of it, and what panels and docks leave free of it.
struct Screen {
    Rect frame;
    Rect visibleFrame;

    bool operator==(const Screen&) const = default;
};

} // namespace quillon
