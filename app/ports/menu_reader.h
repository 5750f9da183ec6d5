#pragma once

#include "running_app.h"

#include <quillon/kit/menu/raw_menu_item.h>

#include <stop_token>
#include <vector>

namespace quillon {

/// How a reading of menus ended.
enum class ReadOutcome {
    complete,    ///< everything that the application shares within the limits
    limited,     ///< as much as the limits allow of an application that shares more
    partial,     ///< the application stopped answering or died
    noMenuBar,   ///< the application answered and has no menu bar that it shares
    noSuchApp,   ///< the application is not on the accessibility bus
    unavailable, ///< the accessibility bus could not be reached
};

struct MenuReading {
    std::vector<RawMenuItem> menuBar; ///< top-level menus; whatever was read before a failure
    ReadOutcome outcome = ReadOutcome::unavailable;

    bool operator==(const MenuReading&) const = default;
};

/// Reads the menus of another application. Every failure is an empty or shortened result.
class MenuReader {
  public:
    virtual ~MenuReader() = default;

    /// Waits for the other application within bounds (1.0 s per request, 4,000 items, a few seconds in
    /// total), so never to be called on the main thread. May be called from several threads at once; gives
    /// up early when `stop` is requested.
    virtual MenuReading readMenus(const RunningApp& app, std::stop_token stop) = 0;
};

} // namespace quillon
