#pragma once

#include <quillon/app/ports/geometry.h>
#include <quillon/app/ports/screen.h>

#include <span>

namespace quillon {

/// Where panels go.
namespace PanelPlacement {

/// The visible frame of the screen that holds the pointer; else that of the first (main) screen; without any
/// screen 1440 × 900 at the origin.
Rect visibleFrame(std::span<const Screen> screens, Point pointer);

/// The visible frame of the screen that shows most of `frame`; else that of the first (main) screen; without
/// any screen as above.
Rect visibleFrameAround(std::span<const Screen> screens, Rect frame);

/// The overlay: 86 % of the width up to 1180, 80 % of the height up to 760, centred.
Rect overlayFrame(Rect visibleFrame);

/// The toast: 360 × 92, just below the pointer and centred on it, at least 12 inside of the visible frame.
Rect toastFrame(Rect visibleFrame, Point pointer);

} // namespace PanelPlacement

} // namespace quillon
