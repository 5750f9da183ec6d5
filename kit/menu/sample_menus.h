#pragma once

#include "app_sheet.h"
#include "raw_menu_item.h"

#include <string_view>
#include <vector>

/// A fictitious drawing application, for showing every view before any real menu was read. Its menus go
/// through the same parser as real ones. Its usage and annotations are in records/sample_records.h.
namespace quillon::SampleMenus {

inline constexpr std::string_view bundleID = "com.example.sketchpad";
inline constexpr std::string_view appName = "Sketchpad";

/// Nine menus, as an accessibility reader would have copied them.
const std::vector<RawMenuItem>& menuBar();

/// The 59 entries of `menuBar`, read at 2026-10-10 02:40:00 UTC.
const AppSheet& sheet();

} // namespace quillon::SampleMenus
