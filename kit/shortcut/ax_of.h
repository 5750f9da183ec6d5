#pragma once

#include "shortcut.h"

namespace quillon {

/// The attributes by which a menu tells a shortcut: the way back from `Shortcut::fromAX`. For every shortcut
/// that `fromAX` can give, `fromAX(axOf(shortcut))` is that shortcut; for any other (a key of several
/// characters, in lower case, a blank; modifiers without a name) no attribute is present.
///
/// Special keys are told by their character, function and arrow keys thus by their private-use code points;
/// only Eject, which has none, by its menu glyph number. The virtual key is never used. The mask is present
/// with every key.
AxKeyEquivalent axOf(const Shortcut& shortcut);

/// The same for a key that has a name.
AxKeyEquivalent axOf(SpecialKey key, Modifiers modifiers);

/// The same for a key that types `character`, in whatever case. No attribute for what is no printable
/// character: controls, surrogates, private use, blanks other than the space.
AxKeyEquivalent axOfCharacter(char32_t character, Modifiers modifiers);

} // namespace quillon
