#pragma once

#include "window_survey.h"

#include <vector>

namespace quillon {

/// The windows that the window manager lists, the topmost first, at most 256 of them. Empty without a window
/// manager that lists them.
std::vector<SurveyedWindow> openWindows(X11Connection& x11);

} // namespace quillon
