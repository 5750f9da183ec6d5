#include "open_menu_search.h"

#include "gtk_open_menu_search.h"
#include "qt_open_menu_search.h"

namespace quillon::atspi {

std::unique_ptr<OpenMenuSearch>
makeOpenMenuSearch(AccessibilityCalls& calls, const ObjectRef& menuBar, ToolkitFamily family) {
    switch (family) {
    case ToolkitFamily::gtk: return std::make_unique<GtkOpenMenuSearch>(calls, menuBar);
    case ToolkitFamily::qt: return std::make_unique<QtOpenMenuSearch>(calls, menuBar);
    case ToolkitFamily::other: break;
    }
    return nullptr;
}

} // namespace quillon::atspi
