#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// Whether a process uses GTK 2, whose programs are on the accessibility bus only by a module of its own
/// (package libatk-adaptor, GTK_MODULES=gail:atk-bridge). False when the process is gone or another user's.
/// `processes` is the folder of the running processes, /proc. Reads a file of some hundred kilobytes.
bool usesGtk2(std::int64_t pid, const std::string& processes);

} // namespace quillon
