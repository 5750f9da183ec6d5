#include "dead_keys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace quillon {

std::string accentOfDeadKey(std::uint32_t symbol) {
    switch (symbol) {
    case XKB_KEY_dead_grave: return "`";
    case XKB_KEY_dead_acute: return "´";
    case XKB_KEY_dead_circumflex: return "^";
    case XKB_KEY_dead_tilde: return "~";
    case XKB_KEY_dead_macron: return "¯";
    case XKB_KEY_dead_breve: return "˘";
    case XKB_KEY_dead_abovedot: return "˙";
    case XKB_KEY_dead_diaeresis: return "¨";
    case XKB_KEY_dead_abovering: return "°";
    case XKB_KEY_dead_doubleacute: return "˝";
    case XKB_KEY_dead_caron: return "ˇ";
    case XKB_KEY_dead_cedilla: return "¸";
    case XKB_KEY_dead_ogonek: return "˛";
    case XKB_KEY_dead_stroke: return "/";
    default: return {};
    }
}

} // namespace quillon
