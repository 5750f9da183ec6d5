#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/cheat_sheet_exports.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/desktop.h>
#include <quillon/app/ports/timers.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/windows/titled_windows.h>
#include <quillon/kit/base/subscription.h>

#include <QString>

#include <vector>

namespace quillon {

/// What the windows' views are made of. All of it outlives the handles of `offerWindows`.
struct WindowNeeds {
    AppModel& model;
    ThemeSource& themes;
    AppIconCache& icons;
    Desktop& desktop;
    Timers& timers;
    const Clock& clock;
    CheatSheetExports& exports;
    QString dataFolder = {}; ///< where everything learned is kept, as it is shown; empty for nowhere
};

/// Has `windows` offer every window that this program has, while the handles live.
std::vector<Subscription> offerWindows(TitledWindows& windows, const WindowNeeds& needs);

} // namespace quillon
