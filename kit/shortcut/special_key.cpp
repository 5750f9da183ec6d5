#include "special_key.h"

#include <algorithm>

namespace quillon {

namespace {

using enum SpecialKey;

struct Row {
    SpecialKey key;
    std::string_view rawValue;
    std::string_view name;
    std::string_view glyph;
};

constexpr std::array<Row, specialKeyCount> rows{{
    {returnKey, "returnKey", "Return", "↩"},
    {enter, "enter", "Enter", "⌤"},
    {tab, "tab", "Tab", "⇥"},
    {backTab, "backTab", "Shift-Tab", "⇤"},
    {space, "space", "Space", "Space"},
    {delete_, "delete", "Delete", "⌫"},
    {forwardDelete, "forwardDelete", "Forward Delete", "⌦"},
    {escape, "escape", "Escape", "⎋"},
    {clear, "clear", "Clear", "⌧"},
    {left, "left", "Left Arrow", "←"},
    {right, "right", "Right Arrow", "→"},
    {up, "up", "Up Arrow", "↑"},
    {down, "down", "Down Arrow", "↓"},
    {pageUp, "pageUp", "Page Up", "⇞"},
    {pageDown, "pageDown", "Page Down", "⇟"},
    {home, "home", "Home", "↖"},
    {end, "end", "End", "↘"},
    {help, "help", "Help", "Help"},
    {eject, "eject", "Eject", "⏏"},
    {f1, "f1", "F1", "F1"},
    {f2, "f2", "F2", "F2"},
    {f3, "f3", "F3", "F3"},
    {f4, "f4", "F4", "F4"},
    {f5, "f5", "F5", "F5"},
    {f6, "f6", "F6", "F6"},
    {f7, "f7", "F7", "F7"},
    {f8, "f8", "F8", "F8"},
    {f9, "f9", "F9", "F9"},
    {f10, "f10", "F10", "F10"},
    {f11, "f11", "F11", "F11"},
    {f12, "f12", "F12", "F12"},
    {f13, "f13", "F13", "F13"},
    {f14, "f14", "F14", "F14"},
    {f15, "f15", "F15", "F15"},
    {f16, "f16", "F16", "F16"},
    {f17, "f17", "F17", "F17"},
    {f18, "f18", "F18", "F18"},
    {f19, "f19", "F19", "F19"},
}};

constexpr bool rowsFollowDeclaration() {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].key) != i)
            return false;
    }
    return true;
}
static_assert(rowsFollowDeclaration());

constexpr const Row& rowOf(SpecialKey key) {
    return rows[static_cast<std::size_t>(key)];
}

constexpr std::array<SpecialKey, specialKeyCount> keysOfRows() {
    std::array<SpecialKey, specialKeyCount> keys{};
    for (std::size_t i = 0; i < keys.size(); ++i)
        keys[i] = rows[i].key;
    return keys;
}

} // namespace

constinit const std::array<SpecialKey, specialKeyCount> allSpecialKeys = keysOfRows();

std::string_view rawValue(SpecialKey key) {
    return rowOf(key).rawValue;
}

std::string_view name(SpecialKey key) {
    return rowOf(key).name;
}

std::string_view glyph(SpecialKey key) {
    return rowOf(key).glyph;
}

std::optional<SpecialKey> SpecialKeys::fromRawValue(std::string_view rawValue) {
    const auto row = std::ranges::find(rows, rawValue, &Row::rawValue);
    return row == rows.end() ? std::nullopt : std::optional(row->key);
}

} // namespace quillon
