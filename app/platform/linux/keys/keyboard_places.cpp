#include "keyboard_places.h"

#include <quillon/kit/shortcut/key_code.h>

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace quillon {

namespace {

/// Keys of the kernel's that follow one another, and the characters that an ANSI keyboard has in their
/// places.
struct Row {
    std::uint32_t first;
    std::string_view characters;
};

constexpr std::array rows{
    Row{KEY_1, "1234567890-="}, Row{KEY_Q, "QWERTYUIOP[]"}, Row{KEY_A, "ASDFGHJKL;'`"},
    Row{KEY_BACKSLASH, "\\"},   Row{KEY_Z, "ZXCVBNM,./"},
};

constexpr std::uint32_t firstOfServer = 8; // X key codes begin after those that its protocol reserves

bool hasCharacter(const PrintedKeys& printed, const std::string& character) {
    return std::ranges::any_of(printed.keys, [&](const auto& key) {
        return key.second.plain == character || key.second.shifted == character;
    });
}

} // namespace

PrintedKeys printedKeys(const Keymap& keymap, std::uint32_t group) {
    PrintedKeys printed;
    for (const Row& row : rows)
        for (std::uint32_t i = 0; i < row.characters.size(); ++i)
            if (const auto place = KeyCodes::ofCharacter(row.characters.substr(i, 1)))
                printed.keys[*place] = keymap.print(row.first + i + firstOfServer, group);
    const KeyPrint beside = keymap.print(KEY_102ND + firstOfServer, group);
    if (!beside.plain.empty() && !hasCharacter(printed, beside.plain))
        printed.shape = KeyboardShape::iso;
    if (printed.shape == KeyboardShape::iso)
        printed.keys[KeyCodes::isoSection] = beside;
    return printed;
}

} // namespace quillon
