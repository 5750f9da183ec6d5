#pragma once

#include <quillon/kit/shortcut/shortcut.h>

#include <string_view>

/// The steps of `keyEquivalent`, one for each way of writing.
namespace quillon::atspi {

/// A key equivalent for a named key.
AxKeyEquivalent specialKeyEquivalent(SpecialKey key, Modifiers modifiers);

/// A key equivalent for a key that types `character`; none for what is no printable character: controls,
/// surrogates, private use, blanks other than the space.
AxKeyEquivalent characterEquivalent(char32_t character, Modifiers modifiers);

/// From "mnemonic;full path;accelerator".
AxKeyEquivalent gtkKeyEquivalent(std::string_view text);

/// From portable key sequences joined by ";".
AxKeyEquivalent qtKeyEquivalent(std::string_view text, std::string_view title);

} // namespace quillon::atspi
