#include "this_platform.h"

#include <quillon/app/platform/linux/desktop/linux_platform.h>

#include <malloc.h>

namespace quillon {

std::unique_ptr<Platform> thisPlatform() {
    return std::make_unique<LinuxPlatform>();
}

void returnFreedMemory() {
#ifdef __GLIBC__
    malloc_trim(0); // by itself it keeps what each thread once used
#endif
}

} // namespace quillon
