#include "lit_keys.h"

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/key_code.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

using Codes = std::set<std::int64_t>;

Codes modifierCodes(Modifiers modifiers) {
    constexpr std::array keys{
        std::pair{Modifiers::control, ModifierKeyCodes::control},
        std::pair{Modifiers::option, ModifierKeyCodes::option},
        std::pair{Modifiers::shift, ModifierKeyCodes::shift},
        std::pair{Modifiers::command, ModifierKeyCodes::command},
    };
    Codes codes;
    for (const auto& [modifier, code] : keys)
        if (modifiers.contains(modifier))
            codes.insert(code);
    return codes;
}

Codes characterCodes(const std::string& character, const PrintedKeys& printed) {
    const auto placeOf = [&](std::string KeyPrint::*print) -> std::optional<std::int64_t> {
        const auto found = std::ranges::find_if(
            printed.keys, [&](const auto& key) { return unicode::toUpper(key.second.*print) == character; });
        return found == printed.keys.end() ? std::nullopt : std::optional(found->first);
    };
    if (const auto place = placeOf(&KeyPrint::plain))
        return {*place};
    if (const auto place = placeOf(&KeyPrint::shifted))
        return {*place, ModifierKeyCodes::shift};
    return {};
}

Codes specialCodes(SpecialKey key) {
    if (key == SpecialKey::backTab)
        return {KeyCodes::of(SpecialKey::tab).value_or(0), ModifierKeyCodes::shift};
    const auto code = KeyCodes::of(key);
    return code ? Codes{*code} : Codes();
}

} // namespace

std::set<std::int64_t> litKeys(const Shortcut& shortcut, const PrintedKeys& printed) {
    Codes codes = modifierCodes(shortcut.modifiers);
    const std::string* const character = shortcut.key.asCharacter();
    const SpecialKey* const special = shortcut.key.asSpecial();
    codes.merge(
        character ? characterCodes(unicode::toUpper(*character), printed)
        : special ? specialCodes(*special)
                  : Codes());
    return codes;
}

PrintedKeys usualKeys() {
    constexpr std::string_view characters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-=[]\\;',./`";
    PrintedKeys printed;
    for (std::size_t i = 0; i < characters.size(); ++i)
        if (const auto place = KeyCodes::ofCharacter(characters.substr(i, 1)))
            printed.keys[*place] = {.plain = std::string(characters.substr(i, 1)), .shifted = {}};
    return printed;
}

} // namespace quillon
