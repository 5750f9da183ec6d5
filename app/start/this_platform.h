#pragma once

#include <quillon/app/ports/platform.h>

#include <memory>

namespace quillon {

/// The platform that this program is built for. Each has a file in this folder that says so.
std::unique_ptr<Platform> thisPlatform();

/// Gives memory that was used and freed back to the system, as far as it can. On any thread; others may
/// have to wait for it when they need memory.
void returnFreedMemory();

} // namespace quillon
