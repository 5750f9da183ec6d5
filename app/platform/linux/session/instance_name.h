#pragma once

namespace quillon {

/// Where the running program is found on the session bus.
inline constexpr const char* instanceName = "app.quillon.Quillon";
inline constexpr const char* instancePath = "/app/quillon/Quillon";
inline constexpr const char* instanceInterface = "app.quillon.Quillon1";

} // namespace quillon
