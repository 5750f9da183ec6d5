#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillon {

/// The keys that have a name instead of a character. The order is the order of `allSpecialKeys`.
enum class SpecialKey {
    returnKey,
    enter,
    tab,
    backTab,
    space,
    delete_,
    forwardDelete,
    escape,
    clear,
    left,
    right,
    up,
    down,
    pageUp,
    pageDown,
    home,
    end,
    help,
    eject,
    f1,
    f2,
    f3,
    f4,
    f5,
    f6,
    f7,
    f8,
    f9,
    f10,
    f11,
    f12,
    f13,
    f14,
    f15,
    f16,
    f17,
    f18,
    f19,
};

inline constexpr std::size_t specialKeyCount = 38;

/// Every special key, in declaration order.
extern const std::array<SpecialKey, specialKeyCount> allSpecialKeys;

/// The stored form: "returnKey", "delete", "f5".
std::string_view rawValue(SpecialKey key);
/// The spoken name: "Return", "Forward Delete", "F5".
std::string_view name(SpecialKey key);
/// What a key cap shows: "↩", "⌦", "F5"; the space and help keys show the words "Space" and "Help".
std::string_view glyph(SpecialKey key);

/// How foreign numbers and texts name special keys. Whatever a table lacks is absent.
namespace SpecialKeys {

/// From the stored form.
std::optional<SpecialKey> fromRawValue(std::string_view rawValue);
/// From the accessibility menu glyph number (`kMenu…Glyph` of the Carbon Menu Manager). 0 means no glyph.
std::optional<SpecialKey> fromAXGlyph(std::int64_t glyph);
/// From a macOS virtual key code (`kVK_…` of the ANSI layout). Letters have no special key.
std::optional<SpecialKey> fromKeyCode(std::int64_t keyCode);
/// From one character (UTF-8): the control characters and the private-use function-key code points
/// (0xF700 to 0xF746) that menus use as key equivalents.
std::optional<SpecialKey> fromCharacter(std::string_view character);

/// The scalar that `fromCharacter` takes for the key; absent for Eject alone, which has none.
std::optional<char32_t> characterOf(SpecialKey key);
/// The number that `fromAXGlyph` takes for the key. Every special key has one.
std::int64_t axGlyphOf(SpecialKey key);

} // namespace SpecialKeys

} // namespace quillon
