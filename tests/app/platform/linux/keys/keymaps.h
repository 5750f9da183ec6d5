#pragma once

#include <quillon/app/platform/linux/keys/keymap.h>

#include <xkbcommon/xkbcommon.h>

#include <utility>

namespace quillon {

/// A keymap of xkeyboard-config, as setxkbmap makes it.
struct Layouts {
    const char* names;
    const char* variants = "";
    const char* options = "";
};

inline Keymap keymapOf(const Layouts& layouts) {
    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    const xkb_rule_names names{"evdev", "pc105", layouts.names, layouts.variants, layouts.options};
    Keymap::Handle keymap(
        xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS), xkb_keymap_unref);
    xkb_context_unref(context);
    return Keymap(std::move(keymap));
}

} // namespace quillon
