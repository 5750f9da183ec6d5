#pragma once

#include "menu_click_detector.h"

#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/menu_use.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// Feeds the detector of menu clicks with what the desktop notices and passes on the clicks, those in this
/// program's own menus left out.
class ClickWatcher {
  public:
    /// All of them outlive the watcher.
    ClickWatcher(MenuUse& menus, const Clock& clock, std::int64_t ownPid)
        : m_menus(menus), m_clock(clock), m_ownPid(ownPid) {}
    ClickWatcher(const ClickWatcher&) = delete;
    ClickWatcher& operator=(const ClickWatcher&) = delete;

    /// The command with this path, which has this shortcut, was chosen with the pointer.
    std::function<void(const RunningApp& app, const std::vector<std::string>& path, const Shortcut& shortcut)>
        onPick;

    /// Begins to watch; anew, and without knowing of a menu that is open, if it already does.
    void start();
    void stop();
    bool isWatching() const { return static_cast<bool>(m_evidence); }

    const MenuClickDetector& detector() const { return m_detector; }

  private:
    void handle(const MenuEvidence& evidence);

    MenuUse& m_menus;
    const Clock& m_clock;
    std::int64_t m_ownPid;
    MenuClickDetector m_detector;
    Subscription m_evidence;
};

} // namespace quillon
