#include "this_platform.h"

#include <quillon/app/platform/linux/desktop/linux_platform.h>

namespace quillon {

std::unique_ptr<Platform> thisPlatform() {
    return std::make_unique<LinuxPlatform>();
}

} // namespace quillon
