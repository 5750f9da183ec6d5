#pragma once

#include <quillon/kit/shortcut/shortcut.h>

#include <string_view>

/// The steps of `keyEquivalent`, one for each way of writing.
namespace quillon::atspi {

/// From "mnemonic;full path;accelerator".
AxKeyEquivalent gtkKeyEquivalent(std::string_view text);

/// From portable key sequences joined by ";".
AxKeyEquivalent qtKeyEquivalent(std::string_view text, std::string_view title);

} // namespace quillon::atspi
