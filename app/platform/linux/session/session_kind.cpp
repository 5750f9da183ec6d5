#include "session_kind.h"

#include <cstdlib>

namespace quillon {

std::string processEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

SessionKind sessionKind(const Environment& environment) {
    if (!environment("WAYLAND_DISPLAY").empty() || environment("XDG_SESSION_TYPE") == "wayland")
        return SessionKind::wayland;
    return environment("DISPLAY").empty() ? SessionKind::none : SessionKind::x11;
}

} // namespace quillon
