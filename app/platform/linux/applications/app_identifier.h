#pragma once

#include "app_facts.h"
#include "desktop_entries.h"

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/clock.h>
#include <quillon/kit/base/subscription.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// Names the applications of windows, by the desktop entries that are installed. These are read in the
/// background, and read anew when a window belongs to none of them: it may have been installed since. Of the
/// main thread.
class AppIdentifier {
  public:
    using Loader = std::function<DesktopEntries()>;

    /// `load` is called off the main thread. `processes` is the folder of the running processes.
    AppIdentifier(
        Background& background, const Clock& clock, Loader load = DesktopEntries::installed,
        std::string processes = "/proc");
    AppIdentifier(const AppIdentifier&) = delete;
    AppIdentifier& operator=(const AppIdentifier&) = delete;

    /// Absent until the entries have been read.
    std::optional<AppIdentity> identify(const WindowFacts& window);
    /// The entries that were read last; nullptr until then.
    std::shared_ptr<const DesktopEntries> entries() const { return m_entries; }
    /// Called on the main thread when entries have been read, for the first time and anew.
    Subscription onRead(std::function<void()> callback) { return m_read.subscribe(std::move(callback)); }

  private:
    void load();
    void loadAnewIfDue();

    Background& m_background;
    const Clock& m_clock;
    Loader m_load;
    std::string m_processes;
    std::shared_ptr<const DesktopEntries> m_entries;
    Instant m_loadedAt = distantPast;
    std::map<WindowFacts, AppIdentity> m_known;
    Event<> m_read;
    Subscription m_loading; ///< a reading that is under way
};

} // namespace quillon
