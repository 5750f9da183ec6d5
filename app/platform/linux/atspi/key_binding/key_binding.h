#pragma once

#include "toolkit.h"

#include <quillon/kit/shortcut/shortcut.h>

#include <string_view>

namespace quillon::atspi {

/// A menu item's key binding as its application told it (`org.a11y.atspi.Action.GetKeyBinding`).
struct KeyBinding {
    std::string_view text; ///< UTF-8; may be empty, foreign and of any length
    ToolkitFamily family = ToolkitFamily::other;
    std::string_view title; ///< the item's title; Qt's mnemonics can only be told by it
};

/// The key equivalent that a key binding stands for, told as `axOf` tells it; every field absent when it
/// stands for none, or for one that cannot be expressed: a chord of several strokes, a modifier without a
/// name here (`<Hyper>`,
/// `<Release>`, `<Mod5>`), a key with neither a character nor a `SpecialKey` (Insert, Print, media keys).
///
/// - GTK writes `mnemonic;full path;accelerator`; only the third part counts. So do Gecko and Java, so
///   unknown toolkits are expected to as well.
/// - Qt writes portable key sequences joined by ";". The first one that can be expressed counts. An item
///   without a shortcut tells its mnemonic instead, in the case it has in the title ("Alt+n"), so a binding
///   that is nothing but Alt and one character of the title is none.
AxKeyEquivalent keyEquivalent(const KeyBinding& binding);

} // namespace quillon::atspi
