#include "overlay_content.h"

#include <quillon/app/views/overlay/overlay_view.h>

#include <utility>

namespace quillon {

PanelContent overlayContent(AppModel& model, ThemeSource& themes, AppIconCache& icons, OverlayMode mode) {
    auto view = std::make_shared<OverlayView>(model, themes, icons, mode);
    auto prepare = [view = view.get()] { view->prepare(); };
    return {
        .widget = std::move(view),
        .traits = {.cornerRadius = OverlayView::cornerRadius},
        .prepare = std::move(prepare)};
}

} // namespace quillon
