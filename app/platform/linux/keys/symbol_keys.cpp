#include "symbol_keys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace quillon {

std::optional<SpecialKey> specialKeyOfSymbol(std::uint32_t symbol) {
    if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F19)
        return static_cast<SpecialKey>(static_cast<std::uint32_t>(SpecialKey::f1) + symbol - XKB_KEY_F1);
    if (symbol >= XKB_KEY_KP_F1 && symbol <= XKB_KEY_KP_F4)
        return static_cast<SpecialKey>(static_cast<std::uint32_t>(SpecialKey::f1) + symbol - XKB_KEY_KP_F1);
    switch (symbol) {
    case XKB_KEY_Return: return SpecialKey::returnKey;
    case XKB_KEY_ISO_Enter: return SpecialKey::enter;
    case XKB_KEY_KP_Enter: return SpecialKey::enter;
    case XKB_KEY_Tab: return SpecialKey::tab;
    case XKB_KEY_KP_Tab: return SpecialKey::tab;
    case XKB_KEY_ISO_Left_Tab: return SpecialKey::backTab;
    case XKB_KEY_space: return SpecialKey::space;
    case XKB_KEY_KP_Space: return SpecialKey::space;
    case XKB_KEY_BackSpace: return SpecialKey::delete_;
    case XKB_KEY_Delete: return SpecialKey::forwardDelete;
    case XKB_KEY_KP_Delete: return SpecialKey::forwardDelete;
    case XKB_KEY_Escape: return SpecialKey::escape;
    case XKB_KEY_Clear: return SpecialKey::clear;
    case XKB_KEY_Left: return SpecialKey::left;
    case XKB_KEY_KP_Left: return SpecialKey::left;
    case XKB_KEY_Right: return SpecialKey::right;
    case XKB_KEY_KP_Right: return SpecialKey::right;
    case XKB_KEY_Up: return SpecialKey::up;
    case XKB_KEY_KP_Up: return SpecialKey::up;
    case XKB_KEY_Down: return SpecialKey::down;
    case XKB_KEY_KP_Down: return SpecialKey::down;
    case XKB_KEY_Page_Up: return SpecialKey::pageUp;
    case XKB_KEY_KP_Page_Up: return SpecialKey::pageUp;
    case XKB_KEY_Page_Down: return SpecialKey::pageDown;
    case XKB_KEY_KP_Page_Down: return SpecialKey::pageDown;
    case XKB_KEY_Home: return SpecialKey::home;
    case XKB_KEY_KP_Home: return SpecialKey::home;
    case XKB_KEY_End: return SpecialKey::end;
    case XKB_KEY_KP_End: return SpecialKey::end;
    case XKB_KEY_Help: return SpecialKey::help;
    case XKB_KEY_XF86Eject: return SpecialKey::eject;
    default: return std::nullopt;
    }
}

} // namespace quillon
