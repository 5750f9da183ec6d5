#pragma once

#include <functional>
#include <string>

namespace quillon {

/// What kind of graphical session this is, by what the login set in the environment.
enum class SessionKind {
    x11,
    wayland,
    none, ///< a text console, or a service without a desktop
};

/// Looks a variable up; "" when it is not set.
using Environment = std::function<std::string(const char* name)>;

/// The environment of this process.
std::string processEnvironment(const char* name);

/// A Wayland session is one even where X11 programs can run beside it (XWayland).
SessionKind sessionKind(const Environment& environment = processEnvironment);

} // namespace quillon
