#include "toolkit.h"

#include <quillon/kit/base/ascii.h>

namespace quillon::atspi {

ToolkitFamily toolkitFamily(std::string_view toolkitName) {
    const std::string lower = ascii::toLower(toolkitName);
    if (lower == "gtk" || lower == "gail")
        return ToolkitFamily::gtk;
    if (lower == "qt")
        return ToolkitFamily::qt;
    return ToolkitFamily::other;
}

} // namespace quillon::atspi
