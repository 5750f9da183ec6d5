#include "toolkit.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace quillon::atspi {

ToolkitFamily toolkitFamily(std::string_view toolkitName) {
    std::string lower(toolkitName);
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return std::tolower(c); });
    if (lower == "gtk" || lower == "gail")
        return ToolkitFamily::gtk;
    if (lower == "qt")
        return ToolkitFamily::qt;
    return ToolkitFamily::other;
}

} // namespace quillon::atspi
