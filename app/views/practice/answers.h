#pragma once

#include <quillon/kit/shortcut/key_stroke.h>
#include <quillon/kit/shortcut/shortcut.h>

namespace quillon {

/// What a key press is shown as when it answers a practice question.
Shortcut shownAs(const KeyStroke& stroke);

/// Whether the press works a window, by moving its focus or pressing its buttons, and so is no answer: Tab,
/// Return, Space, Esc and the arrows, without ⌃, ⌥ or ⌘. None of them can be the answer to any question.
bool worksWindow(const KeyStroke& stroke);

} // namespace quillon
