#include "key_equivalents.h"

#include <quillon/app/platform/linux/keys/symbol_keys.h>
#include <quillon/kit/base/ascii.h>
#include <quillon/kit/shortcut/ax_of.h>

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace quillon::atspi {
namespace {

/// The third of the parts that ";" separates; "" when there are fewer. Keys are spelled by name, so a
/// semicolon that is a key never looks like a separator.
std::string_view acceleratorPart(std::string_view text) {
    for (int part = 0; part < 2; ++part) {
        const std::size_t separator = text.find(';');
        if (separator == std::string_view::npos)
            return {};
        text.remove_prefix(separator + 1);
    }
    return text.substr(0, text.find(';'));
}

/// The modifier behind a name in angle brackets, as gtk_accelerator_parse knows them. `<Meta>` is a virtual
/// modifier: GDK finds no key for it in the usual keymaps of xkeyboard-config, and the Windows keys where the
/// option altwin:meta_win is chosen, so by its place on the keyboard it is what `<Super>` is. Mod4 is where
/// those keymaps have Super, Mod1 where they have Alt.
std::optional<Modifiers> modifierNamed(std::string_view name) {
    static const std::array<std::pair<std::string_view, Modifiers>, 11> table{{
        {"primary", Modifiers::control},
        {"control", Modifiers::control},
        {"ctrl", Modifiers::control},
        {"ctl", Modifiers::control},
        {"shift", Modifiers::shift},
        {"shft", Modifiers::shift},
        {"alt", Modifiers::option},
        {"mod1", Modifiers::option},
        {"meta", Modifiers::command},
        {"super", Modifiers::command},
        {"mod4", Modifiers::command},
    }};
    const std::string lower = ascii::toLower(name);
    for (const auto& [known, modifier] : table)
        if (known == lower)
            return modifier;
    return std::nullopt;
}

/// GDK's names are xkbcommon's but for two spellings: "U+20AC" for "U20AC", and media keys without "XF86".
xkb_keysym_t keysymNamed(std::string_view name) {
    std::string spelled(name);
    if (spelled.starts_with("U+"))
        spelled.erase(1, 1);
    const xkb_keysym_t keysym = xkb_keysym_from_name(spelled.c_str(), XKB_KEYSYM_NO_FLAGS);
    if (keysym != XKB_KEY_NoSymbol)
        return keysym;
    return xkb_keysym_from_name(("XF86" + spelled).c_str(), XKB_KEYSYM_NO_FLAGS);
}

} // namespace

AxKeyEquivalent gtkKeyEquivalent(std::string_view text) {
    std::string_view rest = acceleratorPart(text);
    Modifiers modifiers;
    while (rest.starts_with('<')) {
        const std::size_t end = rest.find('>');
        if (end == std::string_view::npos)
            return {};
        const auto modifier = modifierNamed(rest.substr(1, end - 1));
        if (!modifier)
            return {};
        modifiers.insert(*modifier);
        rest.remove_prefix(end + 1);
    }
    const xkb_keysym_t keysym = keysymNamed(rest);
    if (const auto special = specialKeyOfSymbol(keysym))
        return axOf(*special, modifiers);
    return axOfCharacter(xkb_keysym_to_utf32(keysym), modifiers);
}

} // namespace quillon::atspi
