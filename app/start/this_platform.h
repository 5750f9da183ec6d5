#pragma once

#include <quillon/app/ports/platform.h>

#include <memory>

namespace quillon {

/// The platform that this program is built for. Each has a file in this folder that says so.
std::unique_ptr<Platform> thisPlatform();

} // namespace quillon
