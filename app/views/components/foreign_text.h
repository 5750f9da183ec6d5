#pragma once

#include <QString>

#include <string_view>

namespace quillon {

/// A title or name from another application for one line on the screen. Runs of blanks and tabs become single
/// blanks. Line breaks, control characters and whatever turns the direction of the text around it are shown
/// as signs instead of doing what they do; more accents on one letter than a line has room for are left out.
QString foreignLine(std::string_view utf8);

} // namespace quillon
