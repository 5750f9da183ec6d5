#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/panel_content.h>
#include <quillon/app/views/components/theme_source.h>

namespace quillon {

/// The view of the nudges of `model` as the content of a panel. Both outlive the content.
PanelContent toastContent(AppModel& model, ThemeSource& themes);

} // namespace quillon
