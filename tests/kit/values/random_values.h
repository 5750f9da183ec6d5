#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/menu/raw_menu_item.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/usage.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace quillon {

/// Arbitrary values for tests of laws; the same seed gives the same values.
class RandomValues {
  public:
    explicit RandomValues(std::uint64_t seed) : m_random(seed) {}

    /// From `least` to `most`, both included.
    std::size_t number(std::size_t least, std::size_t most);
    bool chance(double probability);
    /// Any 64-bit number, small ones more often.
    std::int64_t integer();
    /// What a counter that was read from a file can hold.
    Count count();

    /// Well-formed text, often odd: quotes, slashes, controls, separators, joined and rare characters.
    std::string text();
    /// A menu's or item's title: never blank at its ends, never empty.
    std::string title();
    /// Any instant of the years 1 to 9999, in whole seconds.
    Instant instant();

    Key key();
    Modifiers modifiers();
    Shortcut shortcut();
    MenuEntry entry();
    /// `count` entries from few menus and titles, so that they meet each other often.
    std::vector<MenuEntry> entries(std::size_t count);
    AppSheet sheet();
    SheetMap sheets();
    UsageRecord usageRecord();
    UsageBook usageBook();
    AnnotationBook annotationBook();
    /// A tree with all that menus come with: separators, submenus, blank titles, doubles, disabled items.
    RawMenuItem rawItem(int depth);
    std::vector<RawMenuItem> menuBar();

  private:
    std::mt19937_64 m_random;
};

} // namespace quillon
