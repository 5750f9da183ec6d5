#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/panel_content.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/overlay/overlay_state.h>

namespace quillon {

/// The overlay's view of `model` as the content of a panel. All of them outlive the content.
PanelContent overlayContent(AppModel& model, ThemeSource& themes, AppIconCache& icons, OverlayMode mode);

} // namespace quillon
