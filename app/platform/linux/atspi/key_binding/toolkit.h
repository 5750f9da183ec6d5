#pragma once

#include <string_view>

namespace quillon::atspi {

/// The toolkits whose ways this reader knows, by how they write key bindings and lay out menus.
enum class ToolkitFamily {
    gtk,   ///< GTK 2 to 4, wxGTK, LibreOffice's GTK front end
    qt,    ///< Qt 5 and 6
    other, ///< anything else that is on the accessibility bus
};

/// From `ToolkitName` of `org.a11y.atspi.Application`: "gtk", "GTK", "GAIL", "Qt". Unknown and empty names
/// are `other`.
ToolkitFamily toolkitFamily(std::string_view toolkitName);

} // namespace quillon::atspi
