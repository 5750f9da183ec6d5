#include "stall_hook.h"

namespace quillon {

std::unique_ptr<QObject> stallHook() {
    return nullptr;
}

} // namespace quillon
