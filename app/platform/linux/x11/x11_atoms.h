#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace quillon {

/// The names that this program uses with the X server.
enum class X11Name {
    gtkApplicationID,
    gtkWorkAreas, ///< of the first workspace
    netActiveWindow,
    netClientList,
    netClientListStacking,
    netStartupInfo,
    netStartupInfoBegin,
    netSupported,
    netSupportingWmCheck,
    netWmDesktop,
    netWmIcon,
    netWmName,
    netWmPid,
    netWmState,
    netWmStateAbove,
    netWmStateSkipPager,
    netWmStateSkipTaskbar,
    netWmStateSticky,
    netWmStrut,
    netWmStrutPartial,
    netWmUserTime,
    netWmWindowType,
    netWmWindowTypeCombo,
    netWmWindowTypeDnd,
    netWmWindowTypeNotification,
    netWmWindowTypeTooltip,
    netWorkArea,
    utf8String,
};

inline constexpr std::array<std::string_view, 28> x11Names{
    "_GTK_APPLICATION_ID",
    "_GTK_WORKAREAS_D0",
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST",
    "_NET_CLIENT_LIST_STACKING",
    "_NET_STARTUP_INFO",
    "_NET_STARTUP_INFO_BEGIN",
    "_NET_SUPPORTED",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_WM_DESKTOP",
    "_NET_WM_ICON",
    "_NET_WM_NAME",
    "_NET_WM_PID",
    "_NET_WM_STATE",
    "_NET_WM_STATE_ABOVE",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_STICKY",
    "_NET_WM_STRUT",
    "_NET_WM_STRUT_PARTIAL",
    "_NET_WM_USER_TIME",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_COMBO",
    "_NET_WM_WINDOW_TYPE_DND",
    "_NET_WM_WINDOW_TYPE_NOTIFICATION",
    "_NET_WM_WINDOW_TYPE_TOOLTIP",
    "_NET_WORKAREA",
    "UTF8_STRING",
};

static_assert(x11Names.size() == static_cast<std::size_t>(X11Name::utf8String) + 1);

} // namespace quillon
